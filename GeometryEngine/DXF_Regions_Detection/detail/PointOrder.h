#pragma once

// The order of the points along one entity, as interceptions are recorded. Private.

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"

namespace GeometryEngine::detail {

/// Whether a point of a line is to stand before one that is listed: descending x, and where x is the same under the
/// tolerance descending y. Not transitive, so the order in which points come in may count.
bool ComesBefore_Line(const TEntityCoordinate& aPoint, const TEntityCoordinate& aListed);

/// Where the points of an arc stand along it.
class TArcOrder {
 public:
  explicit TArcOrder(const TDXFEntity& aArc);
  /// UNITS: degrees, growing from the arc's start.
  double GetAngle(const TEntityCoordinate& aPoint) const;

 private:
  const TDXFEntity& fArc;
  double fStart;
  double fEnd;
};

}  // namespace GeometryEngine::detail
