#pragma once

// The vertex walk along a chain, the one way in which anything measures or searches a chain. Private: hosts use the
// operations of `TEntityStorage`.

#include <cstddef>
#include <span>

#include "GeometryEngine/DXF_EntityStorage/detail/OtherEnd.h"
#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_Entity_Types/detail/Sameness.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine::detail {

/// Passes the entities of a chain in array order, each from the vertex where the walk meets it to its other end,
/// whichever way round its own record is stored:
///
///     for (TVertexWalk walk(chain, start); walk.Next();) Use(walk.Entity(), walk.From(), walk.To());
///
/// DEGENERATE: where an entity does not touch the vertex at which the walk meets it, its other end is (0, 0) and the
/// walk goes on from there. OWNS: nothing; the chain must outlive the walk and stay as it is.
class TVertexWalk {
 public:
  TVertexWalk(std::span<const TDXFEntity> aChain, const TEntityCoordinate& aStart)
      : fChain(aChain), fTolerance(ReadLinearTolerance()), fTo(aStart) {}

  /// Steps on to the next entity; false behind the last one.
  bool Next() {
    if (fPassed == fChain.size()) return false;
    fFrom = fTo;
    fTo = GetOtherEnd(fFrom, fChain[fPassed], fTolerance);
    ++fPassed;
    return true;
  }
  // REQUIRES, for all four: the last Next answered true.
  TIndex Index() const { return ToIndex(fPassed - 1); }
  const TDXFEntity& Entity() const { return fChain[fPassed - 1]; }
  const TEntityCoordinate& From() const { return fFrom; }
  const TEntityCoordinate& To() const { return fTo; }

 private:
  std::span<const TDXFEntity> fChain;
  double fTolerance;
  std::size_t fPassed = 0;
  TEntityCoordinate fFrom;
  TEntityCoordinate fTo;
};

}  // namespace GeometryEngine::detail
