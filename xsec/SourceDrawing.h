#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "xsec/Affine.h"

/// A drawing as its file has it: in its own unit, blocks not yet placed, curves as they were drawn.
namespace xsec {

struct SourceLine {
  Point start;
  Point end;
};

/// Anticlockwise; a circle has a sweep of 360.
struct SourceArc {
  Point centre;
  double radius = 0;
  double start = 0;  ///< degrees
  double sweep = 0;  ///< degrees, above 0 up to 360
};

struct SourceVertex {
  Point point;
  double bulge = 0;  ///< tangent of a quarter of the sweep to the next vertex, positive when anticlockwise
};

struct SourcePolyline {
  std::vector<SourceVertex> vertices;
  bool isClosed = false;
};

/// The points centre + cos(t) major + sin(t) minor.
struct SourceEllipse {
  Point centre;
  Point major;
  Point minor;
  double start = 0;  ///< parameter, radians
  double sweep = 0;  ///< radians, above 0 up to a full turn
};

struct SourceControlPoint {
  Point point;
  double weight = 1;
};

/// Points that a spline passes through.
struct SourceFit {
  std::vector<Point> points;
  Point startTangent;  ///< of any length; (0, 0) when there is none
  Point endTangent;
  bool isClosed = false;
};

struct SourceSpline {
  std::size_t degree = 3;
  std::vector<double> knots;
  std::vector<SourceControlPoint> points;
  SourceFit fit;  ///< says what the spline is only where there are no control points
};

/// Instances of a block in columns and rows.
struct SourceInsert {
  std::string block;
  Point place;
  Point scale;
  double turn = 0;  ///< degrees
  std::uint32_t columns = 1;
  std::uint32_t rows = 1;
  Point spacing;  ///< of columns and rows, in the turned frame, not scaled
};

/// Words at the point that they are attached by.
struct SourceText {
  Point place;
  std::string text;
};

/// What is not read, and why.
struct SourceSkipped {
  std::string reason;
};

using SourceShape = std::variant<SourceSkipped, SourceLine, SourceArc, SourcePolyline, SourceEllipse, SourceSpline,
                                 SourceInsert, SourceText>;

struct SourceEntity {
  SourceShape shape;
  std::string type;
  std::string layer;
  std::string handle;
  std::size_t line = 0;
  std::int32_t colour = 256;  ///< 0: as the block's insert has it; 256: as the layer has it
  bool isFlipped = false;     ///< drawn looking along z: x runs the other way
};

struct SourceBlock {
  std::string name;
  Point base;
  std::size_t line = 0;
  bool isExternal = false;  ///< stands for another file
  std::vector<SourceEntity> entities;
};

struct SourceDrawing {
  std::vector<SourceEntity> entities;
  std::map<std::string, SourceBlock> blocks;  ///< by BlockKey of the name
  std::map<std::string, std::int32_t> layerColours;
  std::optional<std::int32_t> insUnits;
  std::vector<std::string> warnings;
};

/// Names of blocks differ in more than case.
std::string BlockKey(std::string aName);

/// Lets the DXF parser read a text that has passed CheckDxfText.
SourceDrawing ParseDxf(std::string_view aText, const std::string& aPath);

}  // namespace xsec
