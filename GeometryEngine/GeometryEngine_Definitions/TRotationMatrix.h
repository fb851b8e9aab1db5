#pragma once

#include <array>

namespace GeometryEngine {

/// 2 x 2 matrix, row-major: element [0][0] is the first row's first column.
using TRotationMatrix = std::array<std::array<double, 2>, 2>;

}  // namespace GeometryEngine
