#include "xsec/Utf8.h"
#include "xsec/check/CheckText.h"
#include "xsec/output/JsonParts.h"

namespace xsec {

namespace {

constexpr int kFormatVersion = 1;

Json OfEntity(std::size_t entity, const Drawing& drawing) {
  return entity == kNone ? Json(nullptr) : OfSource(drawing.entities[entity]);
}

template <typename Items, typename Of>
Json OfAll(const Items& items, Of&& of) {
  Json json = Json::array();
  for (const auto& item : items) json.push_back(of(item));
  return json;
}

Json OfCures(const std::vector<Cure>& cures, const Drawing& drawing) {
  return OfAll(cures, [&](const Cure& cure) -> Json {
    return {{"kind", CureName(cure.kind)},
            {"at", OfPoint(cure.place)},
            {"amount", cure.amount},
            {"entity", OfEntity(cure.entity, drawing)},
            {"other", OfEntity(cure.other, drawing)}};
  });
}

Json OfMisses(const std::vector<NearMiss>& misses, const Drawing& drawing) {
  return OfAll(misses, [&](const NearMiss& miss) -> Json {
    return {{"end", OfPoint(miss.end)},
            {"other", OfPoint(miss.other)},
            {"otherIsEnd", miss.isEnd},
            {"gap", miss.gap},
            {"toleranceAbove", miss.tolerance},
            {"closes", miss.closes ? Json(*miss.closes) : Json(nullptr)},
            {"entity", OfEntity(miss.entity, drawing)},
            {"otherEntity", OfEntity(miss.otherEntity, drawing)}};
  });
}

Json OfLadder(const std::vector<Rung>& ladder) {
  return OfAll(ladder, [](const Rung& rung) -> Json {
    return {{"tolerance", rung.tolerance},
            {"regions", rung.regions},
            {"openEnds", rung.openEnds},
            {"area", rung.area},
            {"newAreas", rung.newAreas}};
  });
}

Json OfLimits(const std::vector<Limit>& limits, const Drawing& drawing) {
  return OfAll(limits, [&](const Limit& limit) -> Json {
    return {{"at", OfPoint(limit.place)},
            {"entity", OfEntity(limit.entity, drawing)},
            {"text", limit.text},
            {"cure", limit.cure}};
  });
}

}  // namespace

std::string CheckJson(const Report& aReport, const Findings& aFindings) {
  const Drawing& drawing = aReport.drawing;
  Json json;
  json["xsec"] = {{"checkFormat", kFormatVersion}, {"version", XSEC_VERSION}, {"lengths", "mm"}};
  json["drawing"] = ToUtf8(drawing.path);
  json["tolerance"] = aReport.settings.tolerance;
  json["findings"] = !aFindings.AreNone();
  json["warnings"] = drawing.warnings;
  json["openEnds"] = OfAll(aFindings.openEnds, [&](const OpenEnd& end) -> Json {
    return {{"at", OfPoint(end.place)}, {"touches", end.touches}, {"entity", OfEntity(end.entity, drawing)}};
  });
  json["nearMisses"] = OfMisses(aFindings.nearMisses, drawing);
  json["faults"] = OfCures(aFindings.faults, drawing);
  json["slivers"] = OfAll(aFindings.slivers, [&](std::size_t region) -> Json {
    const Region& sliver = aReport.detection.regions[region];
    return {{"region", RegionId(region)}, {"at", OfPoint(sliver.label)}, {"netArea", sliver.netArea}};
  });
  json["limits"] = OfLimits(aFindings.limits, drawing);
  json["prepared"] = OfCures(aFindings.notes, drawing);
  json["ladder"] = OfLadder(aFindings.ladder);
  return Dumped(json);
}

}  // namespace xsec
