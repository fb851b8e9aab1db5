#pragma once

// The entities that close or cut a machine section: its two division lines, the outline of an empty sector, and the
// closure of an open one. All are made in polar positions about the origin.
//
// UNITS: radii in drawing length units, angles in degrees anticlockwise from the x axis. Only type, ends and, for arcs,
// centre, radius and angles are set; tags stay empty. Angles are stored as given and nothing is cleaned or snapped.
//
// A host that runs with floating-point traps holds a TFloatEnvironment round these.

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// The two radial lines at angles `a1` and `a2`, each from radius `r2` to radius `r1`.
GEOMETRYENGINE_API TEntityArray GetDXFDivisionBoundaries(double r1, double r2, double a1, double a2);

/// The closed outline of the sector between radii `r1` and `r2` and angles `a1` and `a2`: line outwards at `a1`, outer
/// arc, line inwards at `a2`, inner arc. The inner arc's record runs anticlockwise as every arc's does, against the
/// chain; a walk goes by shared ends and does not mind.
/// DEGENERATE: with `r1` at most 0 (or not a number) there is no inner arc.
GEOMETRYENGINE_API TEntityArray GetBlankRegionEntities(double r1, double r2, double a1, double a2);

/// The closure of an open section at radius `r`, of depth `dr`.
/// A full machine (both angles are whole turns) is closed by a circle of radius `r + dr`, as two half arcs. Any other
/// section is closed by an arc of radius `r + dr` and the radial lines at `a1` and `a2`, each from `r` to `r + dr`. The
/// arc's ends are the lines' inner ends: take its shape from centre, radius and angles, and its connection from its
/// ends.
GEOMETRYENGINE_API TEntityArray GenerateDXFClosureEntities(double r, double dr, double a1, double a2);

}  // namespace GeometryEngine
