#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "xsec/Report.h"
#include "xsec/output/RegionGroups.h"

namespace xsec {

namespace {

enum class Align { Left, Right };

struct Column {
  const char* title;
  Align align;
};

constexpr std::array<Column, 8> kColumns = {{{"id", Align::Right},
                                             {"name", Align::Left},
                                             {"type", Align::Left},
                                             {"parent", Align::Right},
                                             {"net area mm2", Align::Right},
                                             {"centroid", Align::Right},
                                             {"label point", Align::Right},
                                             {"entities", Align::Right}}};

using Row = std::array<std::string, kColumns.size()>;

/// Micrometres are enough for a table. Adding 0 turns a rounded -0 into 0.
double Rounded(double value) {
  return std::round(value * 1000) / 1000 + 0.0;
}

std::string Coordinates(const Point& point) {
  return fmt::format("{:.3f}, {:.3f}", Rounded(point.x), Rounded(point.y));
}

Row RowOf(const Region& region, std::size_t index) {
  return {fmt::format("{}", RegionId(index)),
          region.uniqueName.empty() ? region.name : region.uniqueName,
          std::string(GeometryEngine::GetRegionTypeString(region.type)),
          region.parent == kNone ? "-" : fmt::format("{}", RegionId(region.parent)),
          Plain(region.netArea, 6),
          Coordinates(region.centroid),
          Coordinates(region.label),
          fmt::format("{}", region.outline.size())};
}

std::string Line(const Row& row, const std::array<std::size_t, kColumns.size()>& widths) {
  std::string line;
  for (std::size_t i = 0; i < row.size(); ++i) {
    const auto pattern = kColumns[i].align == Align::Left ? "{:<{}}  " : "{:>{}}  ";
    line += fmt::format(fmt::runtime(pattern), row[i], widths[i]);
  }
  line.erase(line.find_last_not_of(' ') + 1);
  return line + "\n";
}

/// What the groups of one kind come to, a line each.
std::string AreaLines(const char* kind, const std::vector<RegionGroup>& groups, std::size_t copies) {
  std::string text;
  for (const RegionGroup& group : groups) {
    text += fmt::format("{} {}: {} region{}, {} mm2", kind, group.name, group.regions.size(),
                        group.regions.size() == 1 ? "" : "s", Plain(group.netArea, 6));
    if (copies > 1)
      text += fmt::format(", of {} copies {} mm2", copies, Plain(group.netArea * static_cast<double>(copies), 6));
    text += "\n";
  }
  return text;
}

/// Types are worth a line when anything has one, materials when anything is made of one.
std::string Areas(const Report& report) {
  const std::vector<Region>& regions = report.detection.regions;
  const bool hasTypes = std::any_of(regions.begin(), regions.end(),
                                    [](const Region& region) { return region.type != GeometryEngine::rtUndefined; });
  return "\n" + AreaLines("name", GroupByName(regions), report.copies) +
         (hasTypes ? AreaLines("type", GroupByType(regions), report.copies) : "") +
         AreaLines("material", GroupByMaterial(regions), report.copies);
}

std::string TotalLine(const Report& report) {
  const Detection& detection = report.detection;
  std::string line = fmt::format("{} region{}, net area {} mm2", detection.regions.size(),
                                 detection.regions.size() == 1 ? "" : "s", Plain(TotalArea(detection), 6));
  const std::size_t open = detection.diagnostics.openPieces.size();
  if (report.copies > 1) {
    line += fmt::format(", of {} copies {} mm2", report.copies,
                        Plain(TotalArea(detection) * static_cast<double>(report.copies), 6));
  }
  if (open > 0) line += fmt::format(", {} open pieces with {} loose ends", open, CountLooseEnds(detection));
  return line + "\n";
}

}  // namespace

std::string Plain(double aValue, int aDigits) {
  constexpr double kLargest = 1e15;
  const bool wholeDigits = std::abs(aValue) >= std::pow(10, aDigits) && std::abs(aValue) < kLargest;
  return wholeDigits ? fmt::format("{:.0f}", aValue) : fmt::format("{:.{}g}", aValue, aDigits);
}

double TotalArea(const Detection& aDetection) {
  double area = 0;
  for (const Region& region : aDetection.regions) area += region.netArea;
  return area;
}

std::size_t CountLooseEnds(const Detection& aDetection) {
  std::size_t ends = 0;
  for (const OpenPiece& open : aDetection.diagnostics.openPieces) {
    ends += static_cast<std::size_t>(open.fromDangles) + static_cast<std::size_t>(open.toDangles);
  }
  return ends;
}

std::string TableText(const Report& aReport) {
  std::vector<Row> rows(1);
  for (std::size_t i = 0; i < kColumns.size(); ++i) rows[0][i] = kColumns[i].title;
  const auto& regions = aReport.detection.regions;
  for (std::size_t i = 0; i < regions.size(); ++i) rows.push_back(RowOf(regions[i], i));

  std::array<std::size_t, kColumns.size()> widths{};
  for (const Row& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], fmt::format("{:<1}", row[i]).size());
  }
  std::string text;
  for (const Row& row : rows) text += Line(row, widths);
  return text + (regions.empty() ? "" : Areas(aReport)) + TotalLine(aReport);
}

}  // namespace xsec
