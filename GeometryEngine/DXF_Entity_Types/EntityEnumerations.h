#pragma once

#include <cstdint>

namespace GeometryEngine {

enum class DXFEntityType : std::uint8_t { DXFNoLineType = 0, DXFArc = 1, DXFLine = 2, DXFRegion = 3 };
using enum DXFEntityType;

enum class TSlotSide : std::uint8_t {
  NoSide = 0,
  LeftSide = 1,
  RightSide = 2,
  LeftTopSide = 3,
  LeftBottomSide = 4,
  RightTopSide = 5,
  RightBottomSide = 6,
};
using enum TSlotSide;

enum class TTravelDirection : std::uint8_t { Travel_AntiClockwise = 0, Travel_Clockwise = 1 };
using enum TTravelDirection;

enum class TGeometryPlane : std::uint8_t { gpRadial = 0, gpAxial = 1 };
using enum TGeometryPlane;

}  // namespace GeometryEngine
