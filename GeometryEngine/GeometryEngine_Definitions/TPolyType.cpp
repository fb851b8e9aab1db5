#include "GeometryEngine/GeometryEngine_Definitions/TPolyType.h"

namespace GeometryEngine {

inline namespace TPolyType_Helper {

std::string_view ToString(TPolyType aPolyType) {
  switch (aPolyType) {
    case ptPoint:
      return "Single Point";
    case ptPolyLine:
      return "Unclosed Polyline";
    case ptClosed:
      return "Closed Region";
  }
  return {};
}

}  // namespace TPolyType_Helper

}  // namespace GeometryEngine
