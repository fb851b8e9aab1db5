#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "xsec/Drawing.h"
#include "xsec/DxfText.h"

/// From a DXF file to lines and arcs in millimetres.
///
/// Read are LINE, ARC, CIRCLE (always as two half circles), LWPOLYLINE and POLYLINE with bulges, ELLIPSE and SPLINE
/// (flattened), and INSERT with nesting, scaling, mirroring, rotation and arrays. Paper space and every other type is
/// counted in Drawing::skipped by type, layer and reason. Layers that the file freezes or switches off are read like
/// any other: an outline does not change because its layer is hidden.
namespace xsec {

struct ReadOptions {
  /// Wins over what the file says. An empty source becomes "--units".
  std::optional<DrawingUnits> units;
  /// UNITS: millimetres. The furthest that a curve may lie from the lines and arcs it is made into. Without a value it
  /// is 0.01 mm or a thousandth of the curve's own size, whichever is less, so that a drawing in metres that names no
  /// unit keeps its curves.
  std::optional<double> flattenTolerance;
  /// UNITS: millimetres. The point that becomes the origin.
  double originX = 0;
  double originY = 0;
  /// Lines and arcs that the drawing may have once its blocks are placed.
  std::uint64_t mostEntities = 2'000'000;
  /// UNITS: bytes.
  std::size_t largestFile = kLargestFile;
};

/// Reads a file. Throws InputError with file, line and advice when it cannot be read.
/// The linear tolerance and the snapping mode of the host's settings have no influence: coordinates that two entities
/// share in the file are the same bits in the result.
Drawing ReadDrawing(const std::string& aPath, const ReadOptions& aOptions = {});

/// Reads text that is already in memory; aPath is for messages only.
Drawing ReadDrawingText(std::string_view aText, const std::string& aPath, const ReadOptions& aOptions = {});

}  // namespace xsec
