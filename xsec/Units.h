#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "xsec/Drawing.h"

namespace xsec {

/// The unit of that name ("mm", "in", "m", ...), in any case; nothing when there is none. The source is left empty.
std::optional<DrawingUnits> FindUnit(std::string_view aName);

/// The unit that a drawing's $INSUNITS stands for; nothing for 0 (no unit) and for numbers that mean none.
std::optional<DrawingUnits> FindUnit(std::int32_t aInsUnits);

/// The names that FindUnit knows, for messages: "mm, cm, m, ...".
std::string UnitNames();

/// Warning when a drawing whose unit had to be assumed is of a size that another unit explains better; else empty.
std::string WarnOfAssumedUnit(const Extents& aExtents);

/// The same for a drawing that names its unit, when it comes out too small or too large for a machine; else empty.
std::string WarnOfUnlikelyUnit(const Drawing& aDrawing);

}  // namespace xsec
