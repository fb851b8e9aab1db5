#pragma once

#include <vector>

#include "xsec/Drawing.h"

namespace xsec {

/// The box round lines and arcs as they run, not only round their ends; all zero without any.
Extents ExtentsOf(const std::vector<DrawingEntity>& aEntities);

}  // namespace xsec
