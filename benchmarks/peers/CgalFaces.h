#pragma once

// Faces by CGAL: the arrangement of lines and arcs in exact arithmetic. An arc goes through its two ends, so that it
// shares them with its neighbours, and through its middle.

#include <CGAL/Arr_circle_segment_traits_2.h>
#include <CGAL/Arrangement_2.h>
#include <CGAL/Exact_predicates_exact_constructions_kernel.h>

#include <cmath>
#include <numbers>
#include <vector>

#include "benchmarks/drawings/Drawing.h"

namespace peers {

using TKernel = CGAL::Exact_predicates_exact_constructions_kernel;
using TTraits = CGAL::Arr_circle_segment_traits_2<TKernel>;
using TArrangement = CGAL::Arrangement_2<TTraits>;
using TPoint = TKernel::Point_2;

inline TPoint ToPoint(const drawings::Point& aPoint) {
  return {aPoint.x, aPoint.y};
}

inline TPoint MiddleOf(const drawings::Entity& aArc) {
  const double sweep = aArc.endAngle - aArc.startAngle + (aArc.endAngle < aArc.startAngle ? 360 : 0);
  const double angle = (aArc.startAngle + sweep / 2) * std::numbers::pi / 180;
  return {aArc.centre.x + aArc.radius * std::cos(angle), aArc.centre.y + aArc.radius * std::sin(angle)};
}

class TCgalFaces {
 public:
  explicit TCgalFaces(const drawings::Drawing& aDrawing) {
    for (const drawings::Entity& entity : aDrawing) {
      const TPoint start = ToPoint(entity.start);
      const TPoint end = ToPoint(entity.end);
      if (entity.isArc) {
        fCurves.emplace_back(start, MiddleOf(entity), end);
      } else {
        fCurves.emplace_back(start, end);
      }
    }
  }

  const TArrangement& Find() {
    CGAL::insert(fArrangement, fCurves.begin(), fCurves.end());
    return fArrangement;
  }

 private:
  std::vector<TTraits::Curve_2> fCurves;
  TArrangement fArrangement;
};

}  // namespace peers
