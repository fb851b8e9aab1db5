#pragma once

// The stage between reading a drawing and detecting its regions. The library answers some questions by the directions
// of the axes or by fixed lengths: circles of one height do not cross, steep lines sort their points by x, arcs turn by
// their first chord. The drawing is put so that none of these answers matters, and every change is reported.

#include <cstddef>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "xsec/Drawing.h"
#include "xsec/prepare/Cures.h"
#include "xsec/prepare/Motion.h"

namespace xsec {

/// A line or arc to detect regions among, and the entity of the drawing that it is a part of.
struct PreparedPiece {
  GeometryEngine::TDXFEntity geometry;
  std::size_t source = 0;
};

struct PreparedDrawing {
  std::vector<PreparedPiece> pieces;
  std::vector<Point> places;  ///< where they end and meet; none when nothing was prepared
  std::vector<Cure> cures;
  Motion motion;  ///< from the drawing to these
};

/// The drawing's entities as they are.
PreparedDrawing AsDrawn(const Drawing& aDrawing);

/// The drawing's entities put so that their regions do not depend on how the drawing lies. A drawing far from the
/// origin is moved there. When it has lines so steep that their points would get into the wrong order, or ends that the
/// library would take for meetings of another kind, all of it is turned, by the first of some angles that has none.
/// REQUIRES: the settings have been applied to the library.
///
/// COST: near-linear in the entities and their meetings, once for each angle tried; entities that crowd into one place
/// cost pairs there.
PreparedDrawing Prepare(const Drawing& aDrawing, double aTolerance);

}  // namespace xsec
