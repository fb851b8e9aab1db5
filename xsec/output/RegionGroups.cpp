#include "xsec/output/RegionGroups.h"

#include <map>

namespace xsec {

namespace {

template <typename KeyOf>
std::vector<RegionGroup> GroupBy(const std::vector<Region>& regions, KeyOf&& keyOf) {
  std::vector<RegionGroup> groups;
  std::map<std::string, std::size_t> known;
  for (std::size_t i = 0; i < regions.size(); ++i) {
    const std::string key(keyOf(regions[i]));
    if (key.empty()) continue;
    const auto [place, isNew] = known.try_emplace(key, groups.size());
    if (isNew) groups.push_back({key, {}, 0});
    groups[place->second].regions.push_back(i);
    groups[place->second].netArea += regions[i].netArea;
  }
  return groups;
}

}  // namespace

std::vector<RegionGroup> GroupByName(const std::vector<Region>& aRegions) {
  return GroupBy(aRegions, [](const Region& region) { return region.name; });
}

std::vector<RegionGroup> GroupByType(const std::vector<Region>& aRegions) {
  return GroupBy(aRegions, [](const Region& region) { return GeometryEngine::GetRegionTypeString(region.type); });
}

std::vector<RegionGroup> GroupByMaterial(const std::vector<Region>& aRegions) {
  return GroupBy(aRegions, [](const Region& region) { return region.material; });
}

}  // namespace xsec
