#include "xsec/diff/RegionDiff.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

#include "xsec/DxfText.h"
#include "xsec/Errors.h"
#include "xsec/Json.h"
#include "xsec/Report.h"

namespace xsec {

namespace {

constexpr int kFormatVersion = 1;
constexpr double kRounding = 1e-9;  // of an area

bool IsSameArea(double a, double b, double tolerance) {
  const double size = std::max(std::abs(a), std::abs(b));
  return std::abs(a - b) <= kRounding * size + 4 * tolerance * std::sqrt(size);
}

bool IsSamePlace(const FoundRegion& a, const FoundRegion& b, double tolerance) {
  return Distance(a.centroid, b.centroid) <= tolerance;
}

bool HasSameAreas(const FoundRegion& a, const FoundRegion& b, double tolerance) {
  return IsSameArea(a.baseArea, b.baseArea, tolerance) && IsSameArea(a.netArea, b.netArea, tolerance);
}

FoundRegion RegionOf(const nlohmann::json& json) {
  FoundRegion region;
  region.id = json.at("id").get<std::size_t>();
  region.name = json.at("name").get<std::string>();
  region.uniqueName = json.at("uniqueName").get<std::string>();
  region.baseArea = json.at("baseArea").get<double>();
  region.netArea = json.at("netArea").get<double>();
  region.centroid = {json.at("centroid").at(0).get<double>(), json.at("centroid").at(1).get<double>()};
  return region;
}

/// Pairs regions of one list with those of another, each at most once.
class Pairing {
 public:
  Pairing(const std::vector<FoundRegion>& before, const std::vector<FoundRegion>& after, double tolerance)
      : fBefore(before),
        fAfter(after),
        fTolerance(tolerance),
        fPartner(before.size(), kNone),
        fTaken(after.size(), false) {
    for (std::size_t i = 0; i < after.size(); ++i) fByName[after[i].name].push_back(i);
  }

  /// Those of one name by their centroid's x, so that only the near ones are looked at.
  void PairUnchanged() {
    for (auto& [name, indexes] : fByName) {
      std::sort(indexes.begin(), indexes.end(),
                [&](std::size_t a, std::size_t b) { return fAfter[a].centroid.x < fAfter[b].centroid.x; });
    }
    for (std::size_t i = 0; i < fBefore.size(); ++i) {
      const auto place = fByName.find(fBefore[i].name);
      if (place == fByName.end()) continue;
      const auto& indexes = place->second;
      auto candidate = std::lower_bound(indexes.begin(), indexes.end(), fBefore[i].centroid.x - fTolerance,
                                        [&](std::size_t index, double x) { return fAfter[index].centroid.x < x; });
      for (; candidate != indexes.end() && fAfter[*candidate].centroid.x <= fBefore[i].centroid.x + fTolerance;
           ++candidate) {
        const FoundRegion& after = fAfter[*candidate];
        if (fTaken[*candidate] || !IsSamePlace(fBefore[i], after, fTolerance)) continue;
        if (!HasSameAreas(fBefore[i], after, fTolerance)) continue;
        Take(i, *candidate);
        break;
      }
    }
    for (std::size_t i = 0; i < fBefore.size(); ++i) fIsUnchanged.push_back(fPartner[i] != kNone);
    for (auto& [name, indexes] : fByName) std::erase_if(indexes, [&](std::size_t index) { return fTaken[index]; });
  }

  /// With the nearest that `fits`.
  template <typename Fits>
  void PairNearest(Fits&& fits) {
    for (std::size_t i = 0; i < fBefore.size(); ++i) {
      if (fPartner[i] != kNone) continue;
      std::size_t best = kNone;
      double nearest = std::numeric_limits<double>::infinity();
      for (const std::size_t candidate : fByName[fBefore[i].name]) {
        const double distance = Distance(fBefore[i].centroid, fAfter[candidate].centroid);
        if (fTaken[candidate] || distance >= nearest || !fits(fBefore[i], fAfter[candidate])) continue;
        best = candidate;
        nearest = distance;
      }
      if (best != kNone) Take(i, best);
    }
  }

  std::vector<RegionChange> Changes() const {
    std::vector<RegionChange> changes;
    for (std::size_t i = 0; i < fBefore.size(); ++i) {
      if (fIsUnchanged[i]) continue;
      if (fPartner[i] == kNone) {
        changes.push_back({RegionChange::Kind::Removed, fBefore[i], std::nullopt});
      } else {
        changes.push_back({RegionChange::Kind::Changed, fBefore[i], fAfter[fPartner[i]]});
      }
    }
    for (std::size_t i = 0; i < fAfter.size(); ++i) {
      if (!fTaken[i]) changes.push_back({RegionChange::Kind::Added, std::nullopt, fAfter[i]});
    }
    return changes;
  }

 private:
  void Take(std::size_t before, std::size_t after) {
    fPartner[before] = after;
    fTaken[after] = true;
  }

  const std::vector<FoundRegion>& fBefore;
  const std::vector<FoundRegion>& fAfter;
  double fTolerance;
  std::vector<std::size_t> fPartner;
  std::vector<bool> fTaken;
  std::vector<bool> fIsUnchanged;
  std::map<std::string, std::vector<std::size_t>> fByName;
};

/// Two regions of one kind whose centroids are closer than half their size lie over each other.
bool LieOverEachOther(const FoundRegion& a, const FoundRegion& b) {
  return Distance(a.centroid, b.centroid) < std::sqrt(std::max(a.baseArea, b.baseArea)) / 2;
}

std::string Described(const FoundRegion& region) {
  return fmt::format("{} (region {}): net area {} mm2 at ({:.6g}, {:.6g})", region.uniqueName, region.id,
                     Plain(region.netArea, 6), region.centroid.x, region.centroid.y);
}

}  // namespace

FoundRegions ParseRegions(std::string_view aText, const std::string& aPath) {
  FoundRegions found;
  try {
    const nlohmann::json json = ParsedJson(aText);
    if (json.at("xsec").at("format").get<int>() != kFormatVersion) {
      throw InputError(
          aPath, 0,
          fmt::format("its format is {}, this program reads {}", LineOfJson(json["xsec"]["format"]), kFormatVersion),
          "write it anew with xsec regions -o FILE.json");
    }
    found.tolerance = json.at("settings").at("tolerance").get<double>();
    for (const nlohmann::json& region : json.at("regions")) found.regions.push_back(RegionOf(region));
  } catch (const nlohmann::json::exception&) {
    throw InputError(aPath, 0, "this is no JSON of regions", "write it with xsec regions -o FILE.json");
  }
  return found;
}

FoundRegions LoadRegions(const std::string& aPath) {
  return ParseRegions(LoadFile(aPath), aPath);
}

std::vector<RegionChange> CompareRegions(const FoundRegions& aBefore, const FoundRegions& aAfter, double aTolerance) {
  Pairing pairing(aBefore.regions, aAfter.regions, aTolerance);
  pairing.PairUnchanged();
  pairing.PairNearest(LieOverEachOther);
  pairing.PairNearest([&](const FoundRegion& a, const FoundRegion& b) { return HasSameAreas(a, b, aTolerance); });
  return pairing.Changes();
}

std::string LineOf(const RegionChange& aChange, double aTolerance) {
  if (aChange.kind == RegionChange::Kind::Removed) return "removed " + Described(*aChange.before);
  if (aChange.kind == RegionChange::Kind::Added) return "added   " + Described(*aChange.after);
  const FoundRegion& before = *aChange.before;
  const FoundRegion& after = *aChange.after;
  std::string line = "changed " + Described(before);
  if (!IsSameArea(before.netArea, after.netArea, aTolerance)) {
    line += fmt::format(", now {} mm2 ({:+.6g})", Plain(after.netArea, 6), after.netArea - before.netArea);
  } else if (!IsSameArea(before.baseArea, after.baseArea, aTolerance)) {
    line += fmt::format(", outline now {} mm2 ({:+.6g})", Plain(after.baseArea, 6), after.baseArea - before.baseArea);
  }
  if (!IsSamePlace(before, after, aTolerance)) {
    line += fmt::format(", moved by {:.6g} mm to ({:.6g}, {:.6g})", Distance(before.centroid, after.centroid),
                        after.centroid.x, after.centroid.y);
  }
  return line;
}

}  // namespace xsec
