// The parallel chain, of closed, open and broken chains.

#include "GeometryEngine/GeometryEngine.h"
#include "tests/fuzz/Bytes.h"
#include "tests/fuzz/FuzzSettings.h"
#include "tests/fuzz/FuzzTarget.h"
#include "tests/reference/plain/TEntityStorage.h"

using namespace GeometryEngine;
using fuzz::Bytes;
using fuzz::IsSameBits;
using fuzz::Require;

namespace {

constexpr std::size_t kMostPoints = 3000;  // the twin looks each up among all

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* aData, std::size_t aSize) {
  const fuzz::StartingSettings settings;
  Bytes bytes({aData, aSize});
  const TEntityArray entities = bytes.Flag() ? bytes.Entities(6) : bytes.Chain(10);
  if (bytes.Flag()) fuzz::ChangeSetting(bytes);
  TEntityStorage chain;
  chain.AddEntities(entities);
  Plain::TEntityStorage plain;
  plain.AddEntities(entities);

  chain.Offset(0);
  Require(IsSameBits(chain.EntityArray(), entities), "an offset of 0 changes nothing");
  const bool isQuick = chain.GetVertices_Surf(false).size() <= kMostPoints;
  const double distance = bytes.Number();
  chain.Offset(distance);
  if (isQuick) {
    plain.Offset(distance);
    Require(IsSameBits(chain.EntityArray(), plain.EntityArray()), "an offset is the plain twin's");
  }
  Require(chain.EntityArray().size() <= entities.size(), "an offset adds no entity");
  chain.Offset(-distance);
  chain.GetClosedArea();
  return 0;
}
