#include "GeometryEngine/DXF_EntityStorage/detail/ClosedLoops.h"

#include <algorithm>
#include <utility>

#include "GeometryEngine/DXF_EntityStorage/EntityEnds.h"
#include "GeometryEngine/DXF_EntityStorage/detail/IsEntityEnd.h"

namespace GeometryEngine::detail {

namespace {

TDXFEntity TakeFirst(TEntityArray& aPieces, TEntityArray::iterator aPlace) {
  TDXFEntity piece = std::move(*aPlace);
  aPieces.erase(aPlace);
  return piece;
}

/// One loop, its pieces taken out of the others; empty when it doesn't close.
TEntityArray TakeClosedLoop(TEntityArray& aPieces) {
  TEntityArray loop{TakeFirst(aPieces, aPieces.begin())};
  const TEntityCoordinate start = loop.front().StartCoords;
  TEntityCoordinate vertex = loop.front().EndCoords;
  while (vertex != start) {
    const auto next = std::find_if(aPieces.begin(), aPieces.end(),
                                   [&](const TDXFEntity& aPiece) { return IsEntityEnd(aPiece, vertex); });
    if (next == aPieces.end()) return {};
    loop.push_back(TakeFirst(aPieces, next));
    vertex = GetEntityEndCoordinate(vertex, loop.back());
  }
  return loop;
}

}  // namespace

std::vector<TEntityArray> OrderIntoClosedLoops(TEntityArray aPieces) {
  std::vector<TEntityArray> loops;
  while (!aPieces.empty()) {
    loops.push_back(TakeClosedLoop(aPieces));
    if (loops.back().empty()) return {};
  }
  return loops;
}

}  // namespace GeometryEngine::detail
