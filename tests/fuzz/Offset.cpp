// The parallel chain, of closed, open and broken chains.

#include "GeometryEngine/GeometryEngine.h"
#include "tests/fuzz/Bytes.h"
#include "tests/fuzz/FuzzSettings.h"
#include "tests/fuzz/FuzzTarget.h"

using namespace GeometryEngine;
using fuzz::Bytes;
using fuzz::IsSameBits;
using fuzz::Require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* aData, std::size_t aSize) {
  const fuzz::StartingSettings settings;
  Bytes bytes({aData, aSize});
  const TEntityArray entities = bytes.Flag() ? bytes.Entities(6) : bytes.Chain(10);
  if (bytes.Flag()) fuzz::ChangeSetting(bytes);
  TEntityStorage chain;
  chain.AddEntities(entities);
  TEntityStorage same;
  same.AddEntities(entities);

  chain.Offset(0);
  Require(IsSameBits(chain.EntityArray(), entities), "an offset of 0 changes nothing");
  const double distance = bytes.Number();
  chain.Offset(distance);
  same.Offset(distance);
  Require(IsSameBits(chain.EntityArray(), same.EntityArray()), "an offset stays the same bits");
  Require(chain.EntityArray().size() <= entities.size(), "an offset adds no entity");
  chain.Offset(-distance);
  chain.GetClosedArea();
  return 0;
}
