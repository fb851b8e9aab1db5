#pragma once

// What the JSON texts have in common.

#include "xsec/Drawing.h"
#include "xsec/Json.h"
#include "xsec/Point.h"

namespace xsec {

inline Json OfPoint(const Point& aPoint) {
  return Json::array({aPoint.x, aPoint.y});
}

/// Where something comes from.
inline Json OfSource(const DrawingEntity& aEntity) {
  return {{"type", aEntity.type},
          {"layer", aEntity.layer},
          {"block", aEntity.block},
          {"handle", aEntity.handle},
          {"line", aEntity.line}};
}

}  // namespace xsec
