#include <fmt/format.h>

#include "xsec/RegionNotes.h"
#include "xsec/Report.h"
#include "xsec/Utf8.h"
#include "xsec/output/JsonParts.h"
#include "xsec/output/RegionGroups.h"

namespace xsec {

namespace {

/// Rises when a reader of the former version could no longer understand the file.
constexpr int kFormatVersion = 1;

Json OfId(std::size_t index) {
  return index == kNone ? Json(nullptr) : Json(RegionId(index));
}

Json OfPiece(const TravelledPiece& piece, const Drawing& drawing) {
  Json json;
  json["type"] = piece.isArc ? "arc" : "line";
  json["start"] = OfPoint(piece.from);
  json["end"] = OfPoint(piece.to);
  if (piece.isArc) {
    json["centre"] = OfPoint(piece.centre);
    json["radius"] = piece.radius;
    json["startAngle"] = piece.startAngle;
    json["endAngle"] = piece.endAngle;
    json["direction"] = piece.sweep < 0 ? "clockwise" : "anticlockwise";
  }
  json["layer"] = piece.source == kNone ? Json(nullptr) : Json(drawing.entities[piece.source].layer);
  return json;
}

Json OfLoop(const Loop& loop, const Drawing& drawing) {
  Json json = Json::array();
  for (const TravelledPiece& piece : loop) json.push_back(OfPiece(piece, drawing));
  return json;
}

double OfCopies(double area, const Report& report) {
  return area * static_cast<double>(report.copies);
}

/// A text that may be missing.
Json OfText(const std::string& text) {
  return text.empty() ? Json(nullptr) : Json(text);
}

Json OfRegion(const Region& region, std::size_t index, const Report& report) {
  Json json;
  json["id"] = RegionId(index);
  json["name"] = region.name;
  json["uniqueName"] = region.uniqueName;
  json["type"] = {{"ordinal", static_cast<int>(region.type)},
                  {"name", GeometryEngine::GetRegionTypeString(region.type)}};
  json["material"] = OfText(region.material);
  json["colour"] = OfText(region.colour);
  json["parent"] = OfId(region.parent);
  json["children"] = Json::array();
  for (const std::size_t child : region.children) json["children"].push_back(OfId(child));
  json["depth"] = region.depth;
  json["baseArea"] = region.baseArea;
  json["holeArea"] = region.holeArea;
  json["netArea"] = region.netArea;
  json["netAreaOfCopies"] = OfCopies(region.netArea, report);
  json["centroid"] = OfPoint(region.centroid);
  json["label"] = OfPoint(region.label);
  json["clearance"] = region.clearance;
  json["sliver"] = region.sliver;
  json["outline"] = OfLoop(region.outline, report.drawing);
  json["holes"] = Json::array();
  for (const Loop& hole : region.holes) json["holes"].push_back(OfLoop(hole, report.drawing));
  return json;
}

Json OfGroups(const std::vector<RegionGroup>& groups, const Report& report) {
  Json json = Json::array();
  for (const RegionGroup& group : groups) {
    json.push_back({{"name", group.name},
                    {"regions", group.regions.size()},
                    {"netArea", group.netArea},
                    {"netAreaOfCopies", OfCopies(group.netArea, report)}});
  }
  return json;
}

Json OfAreas(const Report& report) {
  const std::vector<Region>& regions = report.detection.regions;
  Json json;
  json["byName"] = OfGroups(GroupByName(regions), report);
  json["byType"] = OfGroups(GroupByType(regions), report);
  json["byMaterial"] = OfGroups(GroupByMaterial(regions), report);
  return json;
}

Json OfDrawing(const Drawing& drawing) {
  Json json;
  json["file"] = ToUtf8(drawing.path);
  json["units"] = {
      {"name", drawing.units.name}, {"millimetres", drawing.units.millimetres}, {"source", drawing.units.source}};
  json["extents"] = {{"minX", drawing.extents.minX},
                     {"minY", drawing.extents.minY},
                     {"maxX", drawing.extents.maxX},
                     {"maxY", drawing.extents.maxY}};
  json["entities"] = drawing.entities.size();
  return json;
}

Json OfSettings(const Settings& settings) {
  Json json;
  json["tolerance"] = settings.tolerance;
  json["toleranceGiven"] = settings.toleranceGiven;
  json["machineType"] = settings.machineType;
  json["fields"] = Json::object();
  for (const FieldValue& field : settings.fields) json["fields"][fmt::format("{}", field.field)] = field.value;
  return json;
}

Json OfOpenPiece(const OpenPiece& open, const Drawing& drawing) {
  Json json = OfPiece(open.piece, drawing);
  json["startLoose"] = open.fromDangles;
  json["endLoose"] = open.toDangles;
  if (open.piece.source == kNone) return json;
  json["source"] = OfSource(drawing.entities[open.piece.source]);
  return json;
}

Json OfSkipped(const Drawing& drawing) {
  Json json = Json::array();
  for (const auto& [kind, tally] : drawing.skipped) {
    json.push_back({{"type", kind.type},
                    {"layer", kind.layer},
                    {"reason", kind.reason},
                    {"count", tally.count},
                    {"firstLine", tally.line}});
  }
  return json;
}

Json OfCure(const Cure& cure, const Drawing& drawing) {
  Json json;
  json["kind"] = CureName(cure.kind);
  json["at"] = OfPoint(cure.place);
  json["amount"] = cure.amount;
  json["entities"] = Json::array();
  for (const std::size_t entity : {cure.entity, cure.other}) {
    if (entity != kNone) json["entities"].push_back(OfSource(drawing.entities[entity]));
  }
  return json;
}

Json OfDiagnostics(const Report& report) {
  const Diagnostics& diagnostics = report.detection.diagnostics;
  Json json;
  json["warnings"] = report.drawing.warnings;
  for (const std::string& warning : WarningTexts(diagnostics)) json["warnings"].push_back(warning);
  json["skipped"] = OfSkipped(report.drawing);
  json["flattened"] = report.drawing.flattened;
  json["cures"] = Json::array();
  for (const Cure& cure : diagnostics.cures) json["cures"].push_back(OfCure(cure, report.drawing));
  json["corrections"] = Json::array();
  for (const Correction& correction : diagnostics.corrections) {
    json["corrections"].push_back({{"kind", correction.kind == Correction::Kind::Label ? "label" : "nesting"},
                                   {"region", RegionId(correction.region)},
                                   {"text", CorrectionText(correction, report.detection)}});
  }
  json["openPieces"] = Json::array();
  for (const OpenPiece& open : diagnostics.openPieces) json["openPieces"].push_back(OfOpenPiece(open, report.drawing));
  json["collapsedEntities"] = diagnostics.collapsed;
  json["lostSides"] = diagnostics.lostSides.size();
  return json;
}

}  // namespace

std::string JsonText(const Report& aReport) {
  Json json;
  json["xsec"] = {{"format", kFormatVersion}, {"version", XSEC_VERSION}, {"lengths", "mm"}, {"angles", "degrees"}};
  json["drawing"] = OfDrawing(aReport.drawing);
  json["settings"] = OfSettings(aReport.settings);
  json["copies"] = aReport.copies;
  json["totalArea"] = TotalArea(aReport.detection);
  json["totalAreaOfCopies"] = OfCopies(TotalArea(aReport.detection), aReport);
  json["areas"] = OfAreas(aReport);
  json["regions"] = Json::array();
  json["diagnostics"] = OfDiagnostics(aReport);
  const std::vector<Region>& regions = aReport.detection.regions;
  return Dumped(json, "regions", regions.size(), [&](std::size_t i) { return OfRegion(regions[i], i, aReport); });
}

}  // namespace xsec
