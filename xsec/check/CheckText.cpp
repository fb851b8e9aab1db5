#include "xsec/check/CheckText.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>

#include "xsec/SourceText.h"
#include "xsec/output/FormattedText.h"

namespace xsec {

namespace {

constexpr std::size_t kToldOfEach = 8;

constexpr const char* kOpenColour = "#d81818";
constexpr const char* kMissColour = "#e07800";
constexpr const char* kFaultColour = "#8020c0";
constexpr const char* kSliverColour = "#008878";
constexpr const char* kLimitColour = "#806000";
constexpr const char* kNoteColour = "#2060d0";

std::string At(const Point& point) {
  return fmt::format("({:.9g}, {:.9g})", point.x + 0.0, point.y + 0.0);
}

std::string Joined(const std::vector<double>& areas) {
  std::string text;
  for (std::size_t i = 0; i < std::min(areas.size(), kToldOfEach); ++i) {
    text += fmt::format("{}{} mm2", i == 0 ? "" : ", ", Plain(areas[i], 6));
  }
  return areas.size() > kToldOfEach ? text + ", ..." : text;
}

std::string SourceOf(std::size_t entity, const Drawing& drawing) {
  return entity == kNone ? "unknown entity" : SourceText(drawing.entities[entity]);
}

class Writer : private FormattedText {
 public:
  Writer(const Report& report, const Findings& findings) : fReport(report), fFindings(findings) {}

  std::string Text() {
    Units();
    List("open ends", fFindings.openEnds, [&](const OpenEnd& end) { return EndText(end); });
    List("near misses", fFindings.nearMisses, [&](const NearMiss& miss) { return MissText(miss); });
    Cures("", fFindings.faults);
    List("slivers", fFindings.slivers, [&](std::size_t region) { return SliverText(region); });
    List("limits", fFindings.limits, [&](const Limit& limit) { return LimitText(limit); });
    Cures("prepared without anything to do for you: ", fFindings.notes);
    Ladder();
    Verdict();
    return fText;
  }

 private:
  template <typename Items, typename Tell>
  void List(std::string_view title, const Items& items, Tell&& tell) {
    if (items.empty()) return;
    Add("{}: {}\n", title, items.size());
    for (std::size_t i = 0; i < std::min(items.size(), kToldOfEach); ++i) Add("  {}\n", tell(items[i]));
    if (items.size() > kToldOfEach) Add("  and {} more; --json lists all\n", items.size() - kToldOfEach);
  }

  std::string Source(std::size_t entity) const { return SourceOf(entity, fReport.drawing); }

  std::string EndText(const OpenEnd& end) const {
    return fmt::format("{}, {}; its chain {}", At(end.place), Source(end.entity),
                       end.touches ? "leads to others" : "touches nothing");
  }

  std::string MissText(const NearMiss& miss) const {
    return fmt::format("{} to {} {}, gap {:.6g} mm, {}\n    {}\n    {}", At(miss.end),
                       miss.isEnd ? "the end" : "the side", At(miss.other), miss.gap, ClosingText(miss),
                       Source(miss.entity), Source(miss.otherEntity));
  }

  std::string ClosingText(const NearMiss& miss) const {
    if (!miss.closes)
      return fmt::format("should meet at a tolerance above {:.6g} mm, which was not tried", miss.tolerance);
    const auto rung = std::find_if(fFindings.ladder.begin(), fFindings.ladder.end(),
                                   [&](const Rung& r) { return r.tolerance > miss.tolerance; });
    if (!*miss.closes) return fmt::format("stays open at --tol {:.6g}: draw the end up to it", rung->tolerance);
    std::string text = fmt::format("meet at a tolerance above {:.6g} mm", miss.tolerance);
    if (!rung->newAreas.empty())
      text += fmt::format("; --tol {:.6g} closes {}", rung->tolerance, Joined(rung->newAreas));
    return text;
  }

  std::string SliverText(std::size_t region) const {
    const Region& sliver = fReport.detection.regions[region];
    return fmt::format("region {} at {}: {:.6g} mm2; --drop-slivers makes it part of a neighbour", RegionId(region),
                       At(sliver.label), sliver.netArea);
  }

  std::string LimitText(const Limit& limit) const {
    if (limit.entity == kNone) return fmt::format("{}; {}", limit.text, limit.cure);
    return fmt::format("{}; first at {}, {}; {}", limit.text, At(limit.place), Source(limit.entity), limit.cure);
  }

  void Cures(std::string_view before, const std::vector<Cure>& cures) {
    std::map<CureKind, std::vector<Cure>> kinds;
    for (const Cure& cure : cures) kinds[cure.kind].push_back(cure);
    for (const auto& [kind, some] : kinds) {
      List(fmt::format("{}{}", before, CureText(kind)), some,
           [&](const Cure& cure) { return CurePlace(cure, fReport.drawing); });
    }
  }

  void Units() {
    const DrawingUnits& units = fReport.drawing.units;
    Add("{}: {} lines and arcs, drawn in {} ({}); tolerance {:.6g} mm\n", fReport.drawing.path,
        fReport.drawing.entities.size(), units.name, units.source, fReport.settings.tolerance);
    for (const std::string& warning : fReport.drawing.warnings) Add("warning: {}\n", warning);
    for (const auto& [kind, tally] : fReport.drawing.skipped) {
      Add("skipped {}\n", SkippedText(kind, tally));
    }
  }

  void Ladder() {
    if (fFindings.ladder.empty()) return;
    Add("tolerance mm   regions   open ends   area mm2\n");
    for (const Rung& rung : fFindings.ladder) {
      Add("{:>12}   {:>7}   {:>9}   {}{}\n", Plain(rung.tolerance, 5), rung.regions, rung.openEnds, Plain(rung.area, 9),
          rung.tolerance == fReport.settings.tolerance ? "   <- in use" : "");
    }
  }

  void Verdict() { Add("{}\n", fFindings.AreNone() ? "nothing found" : "the drawing has findings"); }

  const Report& fReport;
  const Findings& fFindings;
};

}  // namespace

std::string CheckText(const Report& aReport, const Findings& aFindings) {
  return Writer(aReport, aFindings).Text();
}

std::vector<Mark> MarksOf(const Report& aReport, const Findings& aFindings) {
  std::vector<Mark> marks;
  for (const OpenEnd& end : aFindings.openEnds) {
    marks.push_back({end.place, kOpenColour, "open ends", "open end, " + SourceOf(end.entity, aReport.drawing)});
  }
  for (const NearMiss& miss : aFindings.nearMisses) {
    marks.push_back({miss.end, kMissColour, "near misses", fmt::format("near miss, gap {:.6g} mm", miss.gap)});
  }
  for (const std::size_t region : aFindings.slivers) {
    marks.push_back({aReport.detection.regions[region].label, kSliverColour, "slivers", "sliver"});
  }
  for (const Limit& limit : aFindings.limits) marks.push_back({limit.place, kLimitColour, "limits", limit.text});
  for (const Cure& cure : aFindings.faults) {
    marks.push_back({cure.place, kFaultColour, "doubled, or drawn off one circle", CureText(cure.kind)});
  }
  for (const Cure& cure : aFindings.notes) {
    marks.push_back({cure.place, kNoteColour, "prepared, nothing to do", CureText(cure.kind)});
  }
  return marks;
}

}  // namespace xsec
