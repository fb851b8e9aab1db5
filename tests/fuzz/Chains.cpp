// A chain: what it holds, what is measured on it, what is made of it.

#include <algorithm>

#include "GeometryEngine/GeometryEngine.h"
#include "tests/fuzz/Bytes.h"
#include "tests/fuzz/FuzzSettings.h"
#include "tests/fuzz/FuzzTarget.h"

using namespace GeometryEngine;
using fuzz::Bytes;
using fuzz::IsSameBits;
using fuzz::Require;

namespace {

constexpr std::size_t kMostEntities = 8;
constexpr std::size_t kLongestChain = 200;  // entities; duplication stops there

void CheckMeasures(TEntityStorage& aChain, const TEntityCoordinate& aPoint) {
  const auto count = static_cast<std::size_t>(aChain.Count());
  Require(aChain.GetVertices().size() == count, "a chain has a vertex an entity");
  aChain.GetVertices_Surf(true);
  aChain.GetStartCoordinate();
  aChain.GetEndCoordinate();
  aChain.GetEntity_Next(aPoint);
  aChain.GetEntity_Previous(aPoint);
  aChain.CalculateMinMaxValues();
  aChain.CalculateMinMaxValues_RT();
  aChain.GetRadius_Maximum();
  aChain.GetRadius_MaximumSurf();
  Require(!(aChain.GetRadius_Minimum() > 1e9), "the least radius is bounded");
  aChain.PointInsideEntities(aPoint, true);
  aChain.PointOnEntities(aPoint);
  aChain.GetCentroid();
  Require(!(aChain.MinPointToEntitiesDistance(aPoint) < 0), "a distance is not negative");
  Require(IsSameBits(aChain.GetClosedArea(), aChain.GetClosedArea()), "an area stays");
}

// The container's operations against an array that does the same.
void ChangeContainer(TEntityStorage& aChain, Bytes& aBytes) {
  const TIndex index = aBytes.Index();
  const TIndex before = aChain.Count();
  const bool valid = index >= 0 && index < before;
  switch (aBytes.Below(8)) {
    case 0:
      Require(aChain.AddEntity_AtIndex(aBytes.Entity(), index) == before + 1, "an insertion adds one");
      break;
    case 1:
      aChain.RemoveEntityFromArray(index);
      Require(aChain.Count() == (index >= 0 && before > 0 ? before - 1 : before), "a removal takes one off");
      break;
    case 2:
      Require((aChain.GetEntityFromIndex_Pointer(index) != nullptr) == valid, "a pointer is for a valid index");
      break;
    case 3:
      aChain.Entities(index, aBytes.Entity());
      break;
    case 4:
      aChain.AddEntities(aChain.EntityArray());
      Require(aChain.Count() == 2 * before, "a storage takes its own array");
      break;
    case 5:
      aChain.CopyGeometry(aChain);
      aChain.CopyNewGeometry(aChain);
      Require(aChain.Count() == before, "a copy onto itself changes nothing");
      break;
    case 6:
      aChain.RemoveEntityFromArray(aBytes.Entity());
      break;
    default:
      aChain.QuickSortArray(index, aBytes.Index());
      Require(aChain.Count() == before, "a sort keeps every entity");
  }
}

void ChangeChain(TEntityStorage& aChain, Bytes& aBytes) {
  const TIndex before = aChain.Count();
  const std::uint32_t choice = aBytes.Below(8);
  const std::int32_t copies = aBytes.Index() % 20;
  const double number = aBytes.Number();
  switch (choice) {
    case 0: {
      const TEntityArray entities = aChain.EntityArray();
      aChain.ReverseEntities();
      aChain.ReverseEntities();
      Require(IsSameBits(entities, aChain.EntityArray()), "a chain reversed twice is as it was");
      break;
    }
    case 1:
      aChain.ReOrderEntities(aBytes.Coordinate());
      Require(aChain.Count() == before, "a new order keeps every entity");
      break;
    case 2:
      aChain.RotateEntities(GetRotationMatrix(aBytes.Angle()));
      break;
    case 3:
      aChain.Translate(number, aBytes.Number());
      break;
    case 4:
      aChain.Mirror(aBytes.Entity());
      Require(aChain.Count() == before, "a mirror keeps every entity");
      break;
    case 5:
      aChain.DuplicateAroundAxis(copies, aBytes.Index(), number, number > 0);
      break;
    case 6:
      aChain.DuplicateAlongAxis(copies, number);
      break;
    default:
      ChangeContainer(aChain, aBytes);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* aData, std::size_t aSize) {
  const fuzz::StartingSettings settings;
  Bytes bytes({aData, aSize});
  TEntityStorage chain;
  chain.AddEntities(bytes.Flag() ? bytes.Entities(kMostEntities) : bytes.Chain(kMostEntities));
  if (bytes.Flag()) fuzz::ChangeSetting(bytes);
  chain.StartCoordinate(chain.GetStartCoordinate());
  CheckMeasures(chain, bytes.Coordinate());
  for (int i = 0; i < 6 && !bytes.IsAtEnd() && chain.EntityArray().size() < kLongestChain; ++i) {
    ChangeChain(chain, bytes);
  }
  CheckMeasures(chain, bytes.Coordinate());
  return 0;
}
