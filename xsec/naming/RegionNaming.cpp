#include "xsec/naming/RegionNaming.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>

#include "xsec/BoxIndex.h"
#include "xsec/InnerPoint.h"
#include "xsec/RegionSpaces.h"

namespace xsec {

namespace {

constexpr std::size_t kHeightsForRadius = 5;
constexpr std::int32_t kByLayer = 256;

/// What is found of most of an outline's length, empty when nothing is.
template <typename Key, typename KeyOf>
std::optional<Key> MostOf(const Loop& outline, const Drawing& drawing, KeyOf&& keyOf) {
  std::map<Key, double> lengths;
  for (const TravelledPiece& piece : outline) {
    if (piece.source != kNone) lengths[keyOf(drawing.entities[piece.source])] += Length(piece);
  }
  const auto longest = std::max_element(lengths.begin(), lengths.end(),
                                        [](const auto& a, const auto& b) { return a.second < b.second; });
  return longest == lengths.end() ? std::nullopt : std::optional(longest->first);
}

std::string LayerOf(const Region& region, const Drawing& drawing) {
  return MostOf<std::string>(region.outline, drawing, [](const DrawingEntity& e) { return e.layer; }).value_or("");
}

std::string BlockOf(const Region& region, const Drawing& drawing) {
  return MostOf<std::string>(region.outline, drawing, [](const DrawingEntity& e) { return e.block; }).value_or("");
}

std::int32_t ColourOf(const Region& region, const Drawing& drawing) {
  const auto colour = [&](const DrawingEntity& entity) {
    const auto layer = drawing.layerColours.find(entity.layer);
    return entity.colour != kByLayer || layer == drawing.layerColours.end() ? entity.colour : layer->second;
  };
  return MostOf<std::int32_t>(region.outline, drawing, colour).value_or(kByLayer);
}

/// For each region the words in it and in no region inside it.
std::vector<std::vector<std::string>> FindTexts(const std::vector<Region>& regions, const Drawing& drawing) {
  std::vector<std::vector<std::string>> texts(regions.size());
  if (drawing.texts.empty()) return texts;
  std::vector<Extents> boxes;
  for (const Region& region : regions) boxes.push_back(Bounds(region.outline));
  const BoxIndex index(boxes);
  for (const DrawingText& text : drawing.texts) {
    const Point place{text.x, text.y};
    for (const std::size_t i : index.Find(place)) {
      if (IsInside(SpaceOf(regions[i]), place)) texts[i].push_back(text.text);
    }
  }
  return texts;
}

/// What rules ask of one region, found when it is first asked for.
class RegionFacts {
 public:
  RegionFacts(const Region& region, const Drawing& drawing, const std::vector<std::string>& texts)
      : fRegion(region), fDrawing(drawing), fTexts(texts) {}

  bool Fits(const RuleCondition& when) const {
    return (!when.layer || FitsPattern(LayerOf(fRegion, fDrawing), *when.layer)) &&
           (!when.block || FitsPattern(BlockOf(fRegion, fDrawing), *when.block)) &&
           (!when.colour || ColourOf(fRegion, fDrawing) == *when.colour) && (!when.text || HasText(*when.text)) &&
           (!when.radius || LiesIn(*when.radius));
  }

 private:
  bool HasText(const std::string& pattern) const {
    return std::any_of(fTexts.begin(), fTexts.end(),
                       [&](const std::string& text) { return FitsPattern(text, pattern); });
  }

  bool LiesIn(const RadiusBand& band) const {
    const auto inner = FindInnerPoint(SpaceOf(fRegion), kHeightsForRadius);
    const Point point = inner ? inner->point : MidPoint(fRegion.outline.front());
    const double radius = std::hypot(point.x, point.y);
    return band.inner <= radius && radius <= band.outer;
  }

  const Region& fRegion;
  const Drawing& fDrawing;
  const std::vector<std::string>& fTexts;
};

std::string NameFrom(NameSource source, const Region& region, const Drawing& drawing,
                     const std::vector<std::string>& texts) {
  std::string name;
  if (source == NameSource::Text && !texts.empty()) name = texts.front();
  if (source == NameSource::Block) name = BlockOf(region, drawing);
  if (name.empty()) name = LayerOf(region, drawing);
  return name.empty() ? kNamelessRegion : name;
}

void Apply(const RuleResult& set, RuleResult& done) {
  if (!done.name) done.name = set.name;
  if (!done.type) done.type = set.type;
  if (!done.colour) done.colour = set.colour;
  if (!done.material) done.material = set.material;
}

}  // namespace

void NameRegions(std::vector<Region>& aRegions, const Drawing& aDrawing, const NamingRequest& aRequest,
                 std::vector<std::string>& aWarnings) {
  const std::vector<std::vector<std::string>> texts = FindTexts(aRegions, aDrawing);
  std::vector<bool> isUsed(aRequest.rules.size(), false);
  for (std::size_t i = 0; i < aRegions.size(); ++i) {
    Region& region = aRegions[i];
    const RegionFacts facts(region, aDrawing, texts[i]);
    RuleResult set;
    for (std::size_t rule = 0; rule < aRequest.rules.size(); ++rule) {
      if (!facts.Fits(aRequest.rules[rule].when)) continue;
      isUsed[rule] = true;
      Apply(aRequest.rules[rule].set, set);
    }
    region.name = set.name ? *set.name : NameFrom(aRequest.source, region, aDrawing, texts[i]);
    region.type = set.type.value_or(region.type);
    region.colour = set.colour.value_or("");
    region.material = set.material.value_or("");
  }
  for (std::size_t rule = 0; rule < isUsed.size(); ++rule) {
    if (!isUsed[rule]) aWarnings.push_back(fmt::format("rules[{}] fits no region", rule));
  }
}

}  // namespace xsec
