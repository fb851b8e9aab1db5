#pragma once

// How messages name an entity of the drawing.

#include <string>

#include "xsec/Drawing.h"

namespace xsec {

/// Type, layer and, as far as they are known, handle and line: LINE on layer "Slot", handle 2F, line 812 of the file.
std::string SourceText(const DrawingEntity& aEntity);

/// What was left out, why, and where the first of it stands: 2 HATCH on layer "Slot": this type is not read; first on
/// line 812 of the file.
std::string SkippedText(const SkippedKind& aKind, const Tally& aTally);

}  // namespace xsec
