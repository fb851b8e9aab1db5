#pragma once

// Outlines offset by the library, put right and cleaned. The library moves the vertices and keeps what comes of it:
// an arc that is passed clockwise becomes its complement, a small arc becomes a line, and an outline that runs into
// itself stays as it is.

#include <stdexcept>
#include <vector>

#include "xsec/Settings.h"
#include "xsec/TravelledPiece.h"

namespace xsec {

/// An offset outline that cannot be trusted. what() says where.
class OffsetError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The pieces of the outlines at the distance: positive outwards, negative inwards. An outline may fall into several
/// or vanish; corners are drawn out to their points.
/// Throws OffsetError when a piece of the result comes closer to the outline than the distance.
/// REQUIRES: the outline is anticlockwise and simple; settings as DetectRegions.
Loop OffsetOutline(const Loop& aOutline, double aDistance, const Settings& aSettings);

/// How often the loop winds anticlockwise round the point; arcs of up to 180 degrees.
int WindingNumber(const Loop& aLoop, const Point& aPoint);

/// The line or arc as the library has it; arcs run anticlockwise there, whatever the travel.
GeometryEngine::TDXFEntity EntityOf(const TravelledPiece& aPiece);

}  // namespace xsec
