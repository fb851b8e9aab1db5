#pragma once

// Random closed chains for property tests. All of them run anticlockwise round the origin, each record stored either
// way.

#include <rapidcheck.h>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"

namespace GeometryEngine::properties {

/// A number between the bounds, in a million steps.
rc::Gen<double> Between(double aLow, double aHigh);

/// Three to twelve lines and arcs whose vertices lie at ascending angles about the origin, 20 to 30 away from it. Arcs
/// bulge either way, by less than a tenth of their chords.
rc::Gen<TEntityArray> StarChain();

/// A convex chain: vertices on a circle of radius 30, lines and arcs that bulge outwards, each arc with a radius of 35
/// or more.
rc::Gen<TEntityArray> ConvexChain();

/// The vertices of a chain as the walk passes them, found without the library's walk.
TCoordinateArray Vertices(const TEntityArray& aChain);

/// The chain walked the other way.
TEntityArray Reversed(const TEntityArray& aChain);

/// The points along the chain, arcs in `aChords` chords each, found without the library's arc walking.
TCoordinateArray Polyline(const TEntityArray& aChain, int aChords);

}  // namespace GeometryEngine::properties
