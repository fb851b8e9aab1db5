#pragma once

// The bounded faces of a drawing, found by a general polygon kernel over finely chorded arcs: an answer that shares no
// line of code with the library, for comparing whole drawings region by region.

#include <cstddef>
#include <optional>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"

namespace GeometryEngine::reference {

struct PolygonFace {
  TCoordinateArray outer;
  std::vector<TCoordinateArray> holes;
  double netArea = 0;                 ///< area inside the outer ring less the holes
  double perimeter = 0;               ///< of the outer ring and the holes
  std::optional<std::size_t> parent;  ///< the face in one of whose holes this face lies, clear of its outer ring
};

/// All bounded faces; arcs stray from their chords by at most `aChordError`.
std::vector<PolygonFace> PolygonFaces(const TEntityArray& aEntities, double aChordError);

/// The face that holds the point; nothing when none does.
std::optional<std::size_t> FaceAt(const std::vector<PolygonFace>& aFaces, const TEntityCoordinate& aPoint);

}  // namespace GeometryEngine::reference
