#pragma once

namespace GeometryEngine::detail {

/// How far a chord of the surface polyline may stay from its arc, drawing length units.
inline constexpr double kSurfaceResolution = 0.01;

}  // namespace GeometryEngine::detail
