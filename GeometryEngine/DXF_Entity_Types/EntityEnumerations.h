#pragma once

// What qualifies an entity: its kind, the side of a slot it bounds, the way it is travelled, the plane it is drawn in.

#include <cstdint>

namespace GeometryEngine {

/// Kind of an entity. DXFNoLineType has no geometry, and DXFRegion only marks a region.
enum class DXFEntityType : std::uint8_t { DXFNoLineType = 0, DXFArc = 1, DXFLine = 2, DXFRegion = 3 };
using enum DXFEntityType;

/// The side of the slot on which an entity lies that bounds a slot conductor.
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

/// The radial cross-section plane or the axial plane of the machine.
enum class TGeometryPlane : std::uint8_t { gpRadial = 0, gpAxial = 1 };
using enum TGeometryPlane;

}  // namespace GeometryEngine
