#pragma once

// Sameness of lengths and of angles. Every geometric test of the library decides by these functions; the few that
// compare exactly or by a constant of their own say so.
//
// Each call reads its tolerance afresh from the host's store: a change of the setting holds from the next comparison
// on. Sameness is not transitive, so it never makes a key. The set is lopsided on purpose: lengths have strict less and
// more, angles have less-or-equal and more-or-equal; callers combine these where they need another form.
//
// DEGENERATE: nothing is the same under a tolerance that is 0, negative or not a number, not even a value and itself;
// all whose difference is finite are under an infinite one. A not-a-number argument is neither the same as, less than
// nor more than anything, and two equal infinities are not the same.

#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// The linear drawing tolerance as the host holds it now. UNITS: drawing length.
GEOMETRYENGINE_API double GetLinearTolerance();

/// True when |a - b| is below the linear tolerance; at exactly the tolerance they differ.
GEOMETRYENGINE_API bool ValuesSame_DXFTolerance(double a, double b);
/// True when a < b and they are not the same.
GEOMETRYENGINE_API bool ValueLessThan_DXFTolerance(double a, double b);
/// True when a > b and they are not the same.
GEOMETRYENGINE_API bool ValueMoreThan_DXFTolerance(double a, double b);

/// True when |a - b| is below the angle tolerance. UNITS: degrees. Angles are compared as numbers: 0 and 360 differ.
GEOMETRYENGINE_API bool ValuesSame_DXFAngle(double a, double b);
/// True when a < b or they are the same.
GEOMETRYENGINE_API bool ValuesLessThanOrEqual_DXFAngle(double a, double b);
/// True when a > b or they are the same.
GEOMETRYENGINE_API bool ValuesMoreThanOrEqual_DXFAngle(double a, double b);

}  // namespace GeometryEngine
