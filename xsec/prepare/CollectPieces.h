#pragma once

#include <vector>

#include "xsec/prepare/Preparation.h"
#include "xsec/prepare/PreparedGroup.h"

namespace xsec {

/// Cuts the parts where they have to be cut, and leaves out, with a report each, pieces that lie on an earlier one all
/// along.
/// COST: near-linear in the pieces
std::vector<PreparedPiece> CollectPieces(Preparation& aWork);

}  // namespace xsec
