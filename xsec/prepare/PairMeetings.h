#pragma once

// Where two lines or arcs meet, asked of the library in a frame of the pair's own.
//
// The library's answer can depend on the directions of the axes: slopes grow without bound towards the vertical, and
// circles whose centres lie at one height never cross. A frame that lies the same way to the pair however the drawing
// lies gives the same answer however it lies, and the directions that are hard for the library never occur in it.

#include <vector>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "xsec/TravelledPiece.h"

namespace xsec {

/// The points in the drawing's frame. A point where both end, within the tolerance, is the end of the one or the other.
std::vector<Point> MeetingsOf(const GeometryEngine::TDXFEntity& aFirst, const GeometryEngine::TDXFEntity& aSecond);

/// The same points where they are, ends or not.
std::vector<Point> CrossingsOf(const GeometryEngine::TDXFEntity& aFirst, const GeometryEngine::TDXFEntity& aSecond);

/// What the library finds for the pair as it lies, asked in the order in which its sweep asks.
std::vector<Point> MeetingsAsDrawn(const GeometryEngine::TDXFEntity& aFirst, const GeometryEngine::TDXFEntity& aSecond);

}  // namespace xsec
