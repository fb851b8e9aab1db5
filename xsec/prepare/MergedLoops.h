#pragma once

// Outlines as they were drawn.

#include "xsec/Regions.h"

namespace xsec {

/// Joins consecutive pieces of one entity in the outlines and holes, unless a third piece ends between them: there the
/// outline of a neighbour begins. A joined piece bears the lowest index of its parts, so that both sides share it.
void MergePieces(Detection& aDetection);

}  // namespace xsec
