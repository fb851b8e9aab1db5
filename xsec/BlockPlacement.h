#pragma once

#include <cstdint>
#include <string>

#include "xsec/EntityMaker.h"
#include "xsec/SourceDrawing.h"

namespace xsec {

/// Throws InputError when a block contains itself, directly or through others, when blocks nest deeper than 16, or when
/// placing them all would make more than so many entities. So what PlaceAll does is bounded.
void CheckBlocks(const SourceDrawing& aSource, const std::string& aPath, std::uint64_t aMostEntities);

/// Hands every entity of the drawing to the maker, those of blocks once for each place that they stand in.
/// REQUIRES: CheckBlocks has passed.
void PlaceAll(const SourceDrawing& aSource, const Affine& aMap, EntityMaker& aMaker);

}  // namespace xsec
