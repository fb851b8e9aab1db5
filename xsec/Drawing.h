#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "xsec/Extents.h"

namespace xsec {

/// One line or arc of a drawing, in millimetres, with where it came from. No arc is longer than a half circle.
struct DrawingEntity {
  GeometryEngine::TDXFEntity geometry;
  std::string layer;
  std::string type;           ///< the type in the file that it was made from: "LINE", "LWPOLYLINE", ...
  std::string block;          ///< the block it was placed by, empty outside blocks
  std::string handle;         ///< the file's own handle, empty when it has none
  std::size_t line = 0;       ///< line of the file where the entity begins, 0 when unknown
  std::int32_t colour = 256;  ///< colour index; 256 = by layer
};

/// Words in the drawing, where they are attached. UNITS: millimetres
struct DrawingText {
  double x = 0;
  double y = 0;
  std::string text;
  std::string layer;
  std::size_t line = 0;  ///< of the file
};

/// How the drawing's lengths became millimetres.
struct DrawingUnits {
  std::string name;          ///< "mm", "m", "in", ...
  double millimetres = 1.0;  ///< one drawing unit in millimetres
  std::string source;        ///< "file", "--units" or "assumed"
};

/// Type and layer of what was left out, with the reason.
struct SkippedKind {
  std::string type;
  std::string layer;
  std::string reason;
  auto operator<=>(const SkippedKind&) const = default;
};

/// How many, and where the file has the first of them.
struct Tally {
  std::size_t count = 0;
  std::size_t line = 0;  ///< 0 when unknown

  void Add(std::size_t aLine) {
    if (count++ == 0) line = aLine;
  }
};

/// What a drawing holds once it has been read: blocks expanded, curves flattened, lengths in millimetres.
struct Drawing {
  std::string path;
  DrawingUnits units;
  std::vector<DrawingEntity> entities;
  std::vector<DrawingText> texts;
  std::map<SkippedKind, Tally> skipped;
  std::map<std::string, std::size_t> flattened;  ///< type -> how many were turned into lines and arcs
  Tally interpolated;                            ///< splines given by nothing but points that they pass through
  Tally coarse;                                  ///< curves followed less closely than asked
  double coarseness = 0;                         ///< what the furthest of them lies within, millimetres
  std::map<std::string, std::int32_t> layerColours;
  std::vector<std::string> warnings;
  Extents extents;  ///< of the true geometry, millimetres
};

}  // namespace xsec
