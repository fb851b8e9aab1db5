#pragma once

// What the detection of regions gives: plain values, in millimetres and degrees, that every output is written from.

#include <cstddef>
#include <string>
#include <vector>

#include "GeometryEngine/host/TGeometryRegionType.h"
#include "xsec/TravelledPiece.h"
#include "xsec/prepare/Cures.h"

namespace xsec {

/// A bounded face of the drawing. Its index among the regions is what `parent` and `children` refer to.
struct Region {
  std::string name;        ///< the layer that most of its outline comes from
  std::string uniqueName;  ///< the name that no other region bears
  GeometryEngine::TGeometryRegionType type = GeometryEngine::rtUndefined;
  std::string material;  ///< empty unless a rule gives one
  std::string colour;    ///< "#rrggbb", empty unless a rule gives one
  std::size_t parent = kNone;
  std::vector<std::size_t> children;
  std::size_t depth = 0;    ///< number of regions round it
  Loop outline;             ///< anticlockwise
  std::vector<Loop> holes;  ///< clockwise, each the outer boundary of a group of touching regions
  double baseArea = 0;      ///< UNITS: mm2, of the outline
  double holeArea = 0;      ///< UNITS: mm2, of the holes together
  double netArea = 0;       ///< UNITS: mm2, of the outline without its children
  Point centroid;           ///< of the outline
  Point label;              ///< inside the region and outside its holes
  double clearance = 0;     ///< from the label to the nearest boundary
  bool sliver = false;      ///< smaller than a square of the tolerance
};

/// A piece that bounds no region: it dangles, or it is a bridge between what is closed.
struct OpenPiece {
  TravelledPiece piece;
  bool fromDangles = false;  ///< nothing else ends where it begins
  bool toDangles = false;
  bool touches = false;  ///< of a piece that dangles: the way on from its loose end leads to a vertex that others share
};

/// A point where an answer of the library was put right.
struct Correction {
  enum class Kind { Nesting, Label };
  Kind kind = Kind::Nesting;
  std::size_t region = 0;        ///< index of the region that it is about
  std::size_t listedIn = kNone;  ///< of nesting: the region that the library had it in
  Point labelledAt;              ///< of a label: where the library had it
  bool wasInside = false;        ///< of a label: it stood in its region, but close to the boundary
};

/// Something about a region that looks wrong.
struct Doubt {
  std::size_t region = 0;  ///< its index
  std::string text;        ///< without the region's number, which may change yet
};

struct Diagnostics {
  std::vector<std::string> warnings;
  std::vector<Doubt> doubts;
  std::vector<Correction> corrections;
  std::vector<OpenPiece> openPieces;
  std::vector<Cure> cures;                ///< what the preparation did
  std::vector<TravelledPiece> lostSides;  ///< closed pieces, once for each side that no loop was traced along
  std::size_t collapsed = 0;              ///< entities whose ends are the same point under the tolerance
};

/// The number that stands for a region in every output and message; the first is 1.
inline std::size_t RegionId(std::size_t aIndex) {
  return aIndex + 1;
}

struct Detection {
  std::vector<Region> regions;
  std::vector<Point> leftOut;  ///< a point inside each region that was too small to be wanted
  Diagnostics diagnostics;
};

}  // namespace xsec
