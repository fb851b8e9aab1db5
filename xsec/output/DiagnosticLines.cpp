#include <fmt/format.h>

#include <algorithm>
#include <map>

#include "xsec/RegionNotes.h"
#include "xsec/Report.h"
#include "xsec/SourceText.h"

namespace xsec {

namespace {

/// Of a long list this many are told on the terminal; the JSON output has them all.
constexpr std::size_t kToldOfEach = 8;

/// What is advised where loops are missing, as a part of the tolerance in use: lines are too steep in proportion to it.
constexpr double kSmallerTolerance = 0.1;

class Lines {
 public:
  template <typename... Values>
  void Add(fmt::format_string<Values...> format, Values&&... values) {
    fLines.push_back(fmt::format(format, std::forward<Values>(values)...));
  }

  /// The first few of `count` things, each told by `tell`.
  template <typename Tell>
  void AddFirst(std::size_t count, Tell&& tell) {
    for (std::size_t i = 0; i < std::min(count, kToldOfEach); ++i) fLines.push_back("  " + tell(i));
    if (count > kToldOfEach) Add("  and {} more; -o FILE.json lists all", count - kToldOfEach);
  }

  std::vector<std::string> Take() { return std::move(fLines); }

 private:
  std::vector<std::string> fLines;
};

void AddBasis(const Report& report, Lines& lines) {
  const DrawingUnits& units = report.drawing.units;
  lines.Add("drawing in {} ({}); all results in mm", units.name, units.source);
  lines.Add("linear tolerance {:.6g} mm{}", report.settings.tolerance,
            ToleranceOrigin(report.settings, report.drawing));
}

void AddReading(const Drawing& drawing, Lines& lines) {
  for (const auto& [type, count] : drawing.flattened) lines.Add("{} {} turned into lines and arcs", count, type);
  for (const auto& [kind, tally] : drawing.skipped) {
    lines.Add("skipped {}", SkippedText(kind, tally));
  }
}

std::string Source(const TravelledPiece& piece, const Drawing& drawing) {
  return piece.source == kNone ? "" : ", " + SourceText(drawing.entities[piece.source]);
}

std::string Place(const OpenPiece& open, const Drawing& drawing) {
  const auto end = [](const Point& point, bool dangles) {
    return fmt::format("({:.6g}, {:.6g}){}", point.x, point.y, dangles ? " loose" : "");
  };
  return fmt::format("{} to {}{}", end(open.piece.from, open.fromDangles), end(open.piece.to, open.toDangles),
                     Source(open.piece, drawing));
}

void AddOpenPieces(const Report& report, Lines& lines) {
  const auto& open = report.detection.diagnostics.openPieces;
  if (open.empty()) return;
  lines.Add("warning: pieces that bound no region: {}, loose ends among them: {}", open.size(),
            CountLooseEnds(report.detection));
  lines.AddFirst(open.size(), [&](std::size_t i) { return Place(open[i], report.drawing); });
}

void AddCures(const Report& report, Lines& lines) {
  std::map<CureKind, std::vector<const Cure*>> kinds;
  for (const Cure& cure : report.detection.diagnostics.cures) kinds[cure.kind].push_back(&cure);
  for (const auto& [kind, cures] : kinds) {
    lines.Add("prepared {} ({}), first at {}", CureText(kind), cures.size(), CurePlace(*cures.front(), report.drawing));
  }
}

void AddCorrections(const Detection& detection, Lines& lines) {
  const auto& corrections = detection.diagnostics.corrections;
  if (corrections.empty()) return;
  lines.Add("answers of the detection that were put right: {}", corrections.size());
  lines.AddFirst(corrections.size(), [&](std::size_t i) { return CorrectionText(corrections[i], detection); });
}

void AddDegenerate(const Report& report, Lines& lines) {
  const Detection& detection = report.detection;
  const auto slivers = std::count_if(detection.regions.begin(), detection.regions.end(),
                                     [](const Region& region) { return region.sliver; });
  if (slivers > 0) lines.Add("warning: slivers, smaller than a square of the tolerance: {} regions", slivers);
  const Diagnostics& diagnostics = detection.diagnostics;
  if (diagnostics.collapsed > 0) lines.Add("entities shorter than the tolerance, left out: {}", diagnostics.collapsed);
  if (!diagnostics.lostSides.empty()) {
    const TravelledPiece& first = diagnostics.lostSides.front();
    const Point middle = MidPoint(first);
    const double smaller = kSmallerTolerance * report.settings.tolerance;
    lines.Add(
        "warning: sides of closed pieces along which no loop was found: {}, first at ({:.6g}, {:.6g}){}; regions may "
        "be missing{}",
        diagnostics.lostSides.size(), middle.x, middle.y, Source(first, report.drawing),
        smaller < FinestTolerance(report.drawing) ? ""
                                                  : fmt::format(": try a smaller tolerance, --tol {:.2g}", smaller));
  }
}

}  // namespace

std::vector<std::string> DiagnosticLines(const Report& aReport) {
  Lines lines;
  AddBasis(aReport, lines);
  AddReading(aReport.drawing, lines);
  for (const std::string& warning : aReport.drawing.warnings) lines.Add("warning: {}", warning);
  for (const std::string& warning : WarningTexts(aReport.detection.diagnostics)) lines.Add("warning: {}", warning);
  AddCures(aReport, lines);
  AddCorrections(aReport.detection, lines);
  AddDegenerate(aReport, lines);
  AddOpenPieces(aReport, lines);
  return lines.Take();
}

}  // namespace xsec
