// Region nodes with outline, hole and children: outputs, label points, copies.

#include <cmath>

#include "GeometryEngine/GeometryEngine.h"
#include "tests/fuzz/Bytes.h"
#include "tests/fuzz/FuzzSettings.h"
#include "tests/fuzz/FuzzTarget.h"

using namespace GeometryEngine;
using fuzz::Bytes;
using fuzz::Require;

namespace {

constexpr std::size_t kLongestChain = 10;
constexpr TIndex kMostEntities = 200;  // copies are made below that only

void Fill(TEntityStorage& aChain, Bytes& aBytes) {
  aChain.AddEntities(aBytes.Chain(kLongestChain));
  aChain.StartCoordinate(aChain.GetStartCoordinate());
}

TTreeNode_Geometry& AddRegion(TTree_Geometry& aTree, Bytes& aBytes, TTreeNode_Geometry* aParent) {
  auto node = aTree.CreateTreeNode();
  TTreeNode_Geometry* region = TTreeNode_Geometry::TypeCast(aTree.AddNewTreeNode(node));
  if (aParent != nullptr) aTree.MoveTreeNode(region, aParent);
  Fill(region->Entities(), aBytes);
  const std::uint8_t choice = aBytes.Byte();
  if (choice % 4 == 1) Fill(region->Entities_Internal(), aBytes);
  if (choice >= 240) region->RegionPolyType(static_cast<TPolyType>(choice % 4));
  if (choice >= 224) region->RegionType(static_cast<TGeometryRegionType>(aBytes.Byte()));
  return *region;
}

void ChangeRegion(TTree_Geometry& aTree, TTreeNode_Geometry& aRegion, Bytes& aBytes) {
  const std::uint32_t choice = aBytes.Below(10);
  const double number = aBytes.Number();
  const std::int32_t copies = aBytes.Index() % 12;
  switch (choice) {
    case 0:
      aRegion.Rotate(number);
      break;
    case 1:
      aRegion.Rotate_AboutPoint(number, aBytes.Coordinate());
      break;
    case 2:
      aRegion.Translate(number, aBytes.Number());
      break;
    case 3:
      aRegion.Mirror(aBytes.Entity());
      break;
    case 4:
      aRegion.Offset(number);
      break;
    case 5:
      aRegion.NumberDuplications(copies);
      aRegion.Duplicate();
      break;
    case 6:
      aRegion.NumberDuplications(copies);
      aRegion.DuplicateAndUnite(aBytes.Index() % 12, number > 0 ? gpRadial : gpAxial);
      break;
    case 7:
      aRegion.DuplicationAngle(aBytes.Angle());
      aRegion.HasFractionalChildDuplications();
      break;
    case 8:
      aRegion.CopyRegionParameters_Geometry(aRegion);
      break;
    default:
      aTree.Mirror(aBytes.Entity());
  }
}

void CheckOutputs(TTreeNode_Geometry& aRegion, const TEntityCoordinate& aPoint) {
  aRegion.UpdateGeometry_Outputs();
  const double area = aRegion.RegionArea_Base();
  Require(!(area < 0) || aRegion.GetNumEntities_Internal() > 0, "an outline's area is not negative");
  aRegion.GetRegionArea();
  aRegion.GetWidth();
  aRegion.GetHeight();
  const bool onBoundaryToo = aRegion.PointInsideRegion(aPoint, TGeometryRegionTypesSet::All(), true);
  const bool inside = aRegion.PointInsideRegion(aPoint, TGeometryRegionTypesSet::All(), false);
  Require(aRegion.IsRegionValid_Closed() || (!onBoundaryToo && !inside), "only a valid region holds a point");
  aRegion.RegionInsideRegion(aRegion, true);
  aRegion.UpdateRegionCoordinate();
  const TEntityCoordinate pole = GetPoleInaccessibility(&aRegion, 1.0, 0.001);
  Require(fuzz::IsSameBits(pole, GetPoleInaccessibility(&aRegion, 1.0, 0.001)), "a pole stays the same bits");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* aData, std::size_t aSize) {
  const fuzz::StartingSettings settings;
  Bytes bytes({aData, aSize});
  if (bytes.Byte() >= 200) fuzz::ChangeSetting(bytes);
  TTree_Geometry tree;
  TTreeNode_Geometry& parent = AddRegion(tree, bytes, nullptr);
  for (std::uint32_t children = bytes.Below(3); children > 0; --children) {
    AddRegion(tree, bytes, &parent).UpdateGeometry_Outputs();
  }
  CheckOutputs(parent, bytes.Coordinate());
  for (int i = 0; i < 3 && !bytes.IsAtEnd() && parent.GetNumEntities() < kMostEntities; ++i) {
    ChangeRegion(tree, parent, bytes);
  }
  CheckOutputs(parent, bytes.Coordinate());
  return 0;
}
