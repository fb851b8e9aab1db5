#pragma once

#include <string>
#include <vector>

#include "xsec/Drawing.h"
#include "xsec/Regions.h"
#include "xsec/Settings.h"

namespace xsec {

/// A place to mark in a picture.
struct Mark {
  Point place;
  std::string colour;  ///< "#rrggbb"
  std::string kind;    ///< what the legend says of all marks like this
  std::string text;
};

/// All that a run knows, as the outputs see it.
struct Report {
  const Drawing& drawing;
  const Settings& settings;
  const Detection& detection;
  std::size_t copies = 1;  ///< how often the machine holds what is drawn
  std::vector<Mark> marks{};
};

/// The net area of all regions together, which no piece of surface enters twice. UNITS: mm2
double TotalArea(const Detection& aDetection);

/// Ends where nothing goes on.
std::size_t CountLooseEnds(const Detection& aDetection);

/// A number for people: so many digits, and no exponent unless it is very large or very small.
std::string Plain(double aValue, int aDigits);

/// A row for each region, aligned, and a line with the totals.
std::string TableText(const Report& aReport);

/// Units, tolerance, and everything that was left out, put right or looks wrong: a line each, long lists cut short.
std::vector<std::string> DiagnosticLines(const Report& aReport);

std::string JsonText(const Report& aReport);
std::string SvgText(const Report& aReport);
/// A row for each region, numbers in full.
std::string CsvText(const Report& aReport);
/// The outline of each region as a closed polyline on the layer of its name. Holes are the outlines of other regions.
std::string DxfOutputText(const Report& aReport);
/// The geometry that gmsh meshes: shared curves, a surface for each region, a physical group for each name.
std::string GeoText(const Report& aReport);
/// The geometry that FEMM reads: shared curves, a label with material and group in each region.
/// Throws OutputError when a region has no point inside that could be its label.
std::string FemText(const Report& aReport);

}  // namespace xsec
