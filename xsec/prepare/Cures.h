#pragma once

// What the preparation of a drawing did, each thing with its place.

#include <cstddef>
#include <string>
#include <vector>

#include "xsec/Drawing.h"
#include "xsec/TravelledPiece.h"

namespace xsec {

enum class CureKind {
  OneCircle,  ///< an arc took over the centre and radius of another that lies on the same circle
  Seam,       ///< a circle was cut into halves elsewhere, away from where others meet it
  Overlap,    ///< two entities lie on each other along a part of their length
  OneHeight,  ///< two arcs cross whose centres lie at one height, or nearly so
  Direction,  ///< two entities meet otherwise when they are turned
  OnePoint,   ///< meetings in steps below the tolerance were made one
  SteepLine,  ///< a line's points are closer in x than the tolerance
  TurnOrder,  ///< arcs leave a point in an order that their first chords would not show
  Duplicate,  ///< a piece lies on another along all of its length
  Vertex,     ///< the library had a vertex elsewhere than the drawing, by less than the tolerance
  Sliver,     ///< a sliver became part of a neighbour
};

/// One thing that was done.
struct Cure {
  CureKind kind = CureKind::OneCircle;
  Point place;
  std::size_t entity = kNone;  ///< of the drawing
  std::size_t other = kNone;   ///< the second entity, where two are concerned
  double amount = 0;           ///< how far something was moved or how long it is, in mm; the area of a sliver in mm2
};

/// A word for programs: "one-circle", "overlap", ...
std::string CureName(CureKind aKind);
/// What was found and done, for people, without the place.
std::string CureText(CureKind aKind);
/// Where it is, and which entities are concerned: "(1, 2), LINE on layer "A", line 17 of the file and ...".
std::string CurePlace(const Cure& aCure, const Drawing& aDrawing);

}  // namespace xsec
