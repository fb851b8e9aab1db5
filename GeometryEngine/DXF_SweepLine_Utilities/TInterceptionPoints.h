#pragma once

// The list that the pair checks of PairInterceptions.h fill.

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine {

/// The points at which a pair of entities meets, in the order in which they were found. The only way in is the unique
/// append, so that no two are the same within the linear tolerance as it was when they were added. A caller clears the
/// list before each pair.
class GEOMETRYENGINE_API TInterceptionPoints {
 public:
  /// Appends the point unless a listed one is the same in x and in y within the linear tolerance.
  void AddUnique(const TEntityCoordinate& aPoint);
  /// Removes every point that does not touch the arc; the others keep their order.
  void RemoveNotTouching(const TDXFEntity& aArc);
  void Clear();
  bool IsEmpty() const;
  TIndex GetCount() const;
  /// DEGENERATE: (0, 0) outside the list.
  TEntityCoordinate GetPoint(TIndex aIndex) const;
  const TCoordinateArray& Points() const;

 private:
  TCoordinateArray fPoints;
};

}  // namespace GeometryEngine
