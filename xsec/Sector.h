#pragma once

// A drawing as a sector of a machine about the origin.

#include <cstddef>
#include <string>

#include "xsec/Drawing.h"

namespace xsec {

/// How wide the drawing lies about the origin: a full turn less the largest gap between the directions of ends and
/// middles of its entities. UNITS: degrees. DEGENERATE: 0 for a drawing without entities.
double AngleAcross(const Drawing& aDrawing);

/// How often a sector fits into a full turn, when that is a whole number above 1; else 0.
std::size_t CopiesOfSector(double aAngle);

/// What is wrong with so many copies of the drawing about the origin, with what helps: they overlap, or they leave gaps
/// although another number would fill the turn. Empty when nothing is.
std::string WarnOfCopies(const Drawing& aDrawing, std::size_t aCopies);

}  // namespace xsec
