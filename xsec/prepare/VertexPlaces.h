#pragma once

// The places where the entities of a drawing end and meet, and the vertices of a detection put back onto them.

#include <vector>

#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"
#include "xsec/prepare/Cures.h"
#include "xsec/prepare/Preparation.h"

namespace xsec {

/// Points that are the same under the tolerance are one place, that of the first of them in the order of the drawing.
std::vector<MeetingPlace> FindPlaces(const Preparation& aWork);

/// Moves each vertex of the graph, with the ends of its pieces, to the place that is the same under the tolerance.
/// Which of several points that are the same becomes the vertex, and what the library reckons where steep lines meet,
/// depends on how the drawing lies; where the drawing has them does not. A vertex stays where another one is the same
/// as the place too: no two vertices become the same, by which the library would mistake one for the other. Answers
/// what was moved by more than rounding.
std::vector<Cure> PutVerticesBack(GeometryEngine::TEntityTree& aGraph, const std::vector<Point>& aPlaces,
                                  double aTolerance);

}  // namespace xsec
