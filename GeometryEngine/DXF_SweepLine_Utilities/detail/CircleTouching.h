#pragma once

#include <cstdint>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"

namespace GeometryEngine::detail {

/// How the circles of two arcs with centres apart lie to each other: whether they touch within the linear tolerance,
/// both bounds counted in.
enum class TCircleTouching : std::uint8_t { kNone, kOuter, kInner };

TCircleTouching GetCircleTouching(const TDXFEntity& aArc_A, const TDXFEntity& aArc_B, double aDistance);

/// True when the check of the two arcs looks for touchings: centres apart, circles touching.
bool AreCirclesTouching(const TDXFEntity& aArc_A, const TDXFEntity& aArc_B);

}  // namespace GeometryEngine::detail
