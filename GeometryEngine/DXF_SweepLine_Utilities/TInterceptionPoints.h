#pragma once

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine {

/// The points at which a pair of entities meets, in the order in which they were found.
/// The only way in is the unique append.
class GEOMETRYENGINE_API TInterceptionPoints {
 public:
  /// Appends the point unless a listed one is the same in x and in y within the linear tolerance.
  void AddUnique(const TEntityCoordinate& aPoint);
  /// Walks from the last entry to the first and removes every point that does not touch the arc.
  void RemoveNotTouching(const TDXFEntity& aArc);
  void Clear();
  bool IsEmpty() const;
  TIndex GetCount() const;
  /// (0, 0) outside the list.
  TEntityCoordinate GetPoint(TIndex aIndex) const;
  const TCoordinateArray& Points() const;

 private:
  TCoordinateArray fPoints;
};

}  // namespace GeometryEngine
