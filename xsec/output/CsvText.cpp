#include <fmt/format.h>

#include "xsec/Report.h"

namespace xsec {

namespace {

/// A value with a comma, a quote or a line end in it stands in quotes, its own quotes twice.
std::string Cell(std::string_view text) {
  if (text.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(text);
  std::string cell = "\"";
  for (const char c : text) cell += c == '"' ? "\"\"" : std::string(1, c);
  return cell + "\"";
}

std::string RowOf(const Region& region, std::size_t index, std::size_t copies) {
  return fmt::format("{},{},{},{},{},{},{},{},{},{},{},{},{},{},{},{},{},{}\n", RegionId(index),
                     Cell(region.uniqueName), Cell(region.name), Cell(GeometryEngine::GetRegionTypeString(region.type)),
                     Cell(region.material), region.parent == kNone ? "" : fmt::format("{}", RegionId(region.parent)),
                     region.depth, region.netArea, region.baseArea, region.holeArea, copies,
                     region.netArea * static_cast<double>(copies), region.centroid.x, region.centroid.y, region.label.x,
                     region.label.y, region.outline.size(), region.holes.size());
}

}  // namespace

std::string CsvText(const Report& aReport) {
  std::string text =
      "id,unique_name,name,type,material,parent,depth,net_area_mm2,base_area_mm2,hole_area_mm2,copies,"
      "net_area_of_copies_mm2,centroid_x_mm,centroid_y_mm,label_x_mm,label_y_mm,outline_pieces,holes\n";
  const std::vector<Region>& regions = aReport.detection.regions;
  for (std::size_t i = 0; i < regions.size(); ++i) text += RowOf(regions[i], i, aReport.copies);
  return text;
}

}  // namespace xsec
