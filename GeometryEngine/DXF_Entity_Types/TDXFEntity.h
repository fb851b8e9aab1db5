#pragma once

// The drawing entity. Entities are best made with the functions of GeometryCreation_Drawing, which clean their numbers;
// the factories here store what they are given.

#include <cstdint>
#include <string>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/EntityEnumerations.h"
#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// A straight line or a circular arc of the cross-section, with tags that say what it bounds.
///
/// An arc runs anticlockwise from `startAngle`, where StartCoords lies, to `endAngle`, where EndCoords lies. An arc
/// travelled clockwise is the same entity walked from its end to its start. Angles are stored as given; who uses them
/// brings them into 0 to 360 first. Nothing keeps ends, centre, radius and angles consistent.
///
/// OWNS: its two strings. `SourceDXF` is a plain reference, copied and never freed.
struct GEOMETRYENGINE_API TDXFEntity {
  DXFEntityType EntityType = DXFNoLineType;
  TEntityCoordinate StartCoords;
  TEntityCoordinate EndCoords;
  TEntityCoordinate CentreCoords;  ///< arcs only
  double radius = 0;               ///< arcs only
  double startAngle = 0;           ///< arcs only; degrees, anticlockwise from the positive x axis about the centre
  double endAngle = 0;             ///< arcs only; degrees
  std::int32_t ConductorCol = 0;   ///< column of the slot conductor that the entity bounds
  std::int32_t ConductorRow = 0;   ///< row of that conductor
  TSlotSide SlotSide = NoSide;
  std::string Colour;
  std::string RegionName;     ///< the region to which the entity was assigned
  void* SourceDXF = nullptr;  ///< the object from which the entity was taken

  /// A line; every other field keeps its starting value.
  static TDXFEntity Line(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd);
  /// An arc of exactly these numbers, consistent or not; the tags keep their starting values.
  static TDXFEntity Arc(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd,
                        const TEntityCoordinate& aCentre, double aRadius, double aStartAngle, double aEndAngle);
  /// Distance of a line's ends; sweep times radius of an arc; 0 for other kinds.
  double EntityLength() const;
  /// Swept angle of an arc; 0 for other kinds. UNITS: degrees. RANGE: 0 to 360.
  /// DEGENERATE: 0, not a full circle, when both angles are the same direction.
  double ArcSweep() const;
};

/// Sameness of geometry under the linear tolerance; tags take no part. A line is the same as its reverse. Arcs agree in
/// ends, centre, radius and angles, the angles brought into 0 to 360. Entities of other kinds are never the same, not
/// even as themselves.
GEOMETRYENGINE_API bool operator==(const TDXFEntity& aDXFEntity_A, const TDXFEntity& aDXFEntity_B);
GEOMETRYENGINE_API bool operator!=(const TDXFEntity& aDXFEntity_A, const TDXFEntity& aDXFEntity_B);

using PtrDXFEntity = TDXFEntity*;
using TEntityArray = std::vector<TDXFEntity>;

}  // namespace GeometryEngine
