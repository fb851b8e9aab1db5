#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <optional>

#include "GeometryEngine/host/Numerics.h"
#include "xsec/Report.h"
#include "xsec/Utf8.h"
#include "xsec/output/FormattedText.h"
#include "xsec/output/LabelFit.h"
#include "xsec/output/RegionColours.h"

namespace xsec {

namespace {

using GeometryEngine::kHalfTurn;

// Lengths of the layout, in hundredths of the drawing's longer side.
constexpr double kMargin = 3;
constexpr double kTitleSize = 2.8;
constexpr double kTextSize = 1.7;
constexpr double kLargestLabel = 2.4;
constexpr double kSmallestLabel = 0.3;  // about four pixels; regions too small for that tell their name when pointed at
constexpr double kLineStep = 2.6;
constexpr double kOutlineWidth = 0.1;
constexpr double kOpenWidth = 0.3;
constexpr double kOpenMark = 0.7;

constexpr double kPictureSize = 1400;  // pixels of the longer side
constexpr double kFontUnit = 10;       // font sizes are this, scaled; viewers round sizes far below 1
constexpr std::size_t kOneColumn = 4;  // kinds that the legend lists below each other; more take two columns
constexpr std::size_t kMostRows = 8;
constexpr const char* kOpenColour = "#d81818";

std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    switch (c) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      default:
        escaped += c;
    }
  }
  return escaped;
}

std::string Subtitle(const Report& report) {
  const Extents& box = report.drawing.extents;
  const std::size_t regions = report.detection.regions.size();
  return fmt::format("{} region{}, net area {} mm²; {} × {} mm; unit of the drawing: {} ({})", regions,
                     regions == 1 ? "" : "s", Plain(TotalArea(report.detection), 6), Plain(box.maxX - box.minX, 5),
                     Plain(box.maxY - box.minY, 5), report.drawing.units.name, report.drawing.units.source);
}

/// Marks that the legend has one row for.
struct MarkKind {
  std::string kind;
  std::string colour;
  std::size_t count = 0;
};

std::vector<MarkKind> KindsOf(const std::vector<Mark>& marks) {
  std::vector<MarkKind> kinds;
  for (const Mark& mark : marks) {
    auto place = std::find_if(kinds.begin(), kinds.end(), [&](const MarkKind& kind) { return kind.kind == mark.kind; });
    if (place == kinds.end()) place = kinds.insert(place, {mark.kind, mark.colour, 0});
    ++place->count;
  }
  return kinds;
}

/// Writes one picture. Coordinates are millimetres with y upwards; the picture's y runs downwards, so each is negated
/// on its way out.
class SvgPicture : private FormattedText {
 public:
  explicit SvgPicture(const Report& report)
      : fReport(report),
        fKinds(GroupRegions(report.detection.regions)),
        fMarkKinds(KindsOf(report.marks)),
        fBox(report.drawing.extents),
        fUnit(std::max({fBox.maxX - fBox.minX, fBox.maxY - fBox.minY, kSmallestSide}) / 100),
        fTitle(ToUtf8(std::filesystem::path(report.drawing.path).filename().string())),
        fSubtitle(Subtitle(report)) {}

  std::string Text() {
    Begin();
    Title();
    Regions();
    Labels();
    OpenPieces();
    Marks();
    Legend();
    return fText + "</svg>\n";
  }

 private:
  static constexpr double kSmallestSide = 1e-6;  // millimetres; keeps a drawing without size from a picture of size 0

  std::size_t LegendRows() const {
    return fKinds.size() <= kOneColumn ? fKinds.size() : std::min((fKinds.size() + 1) / 2, kMostRows);
  }
  std::size_t KindsInLegend() const { return std::min(fKinds.size(), 2 * LegendRows()); }
  bool HasMoreKinds() const { return fKinds.size() > KindsInLegend(); }
  bool HasOpenPieces() const { return !fReport.detection.diagnostics.openPieces.empty(); }
  /// Of the drawing, or of the title above it when that is wider.
  double Width() const {
    const double title = kTitleSize * TextWidth(CountCharacters(fTitle));
    const double subtitle = kTextSize * TextWidth(CountCharacters(fSubtitle));
    return std::max(fBox.maxX - fBox.minX, std::max(title, subtitle) * fUnit);
  }
  double LegendHeight() const {
    const std::size_t rows = LegendRows() + (HasMoreKinds() ? 1 : 0) + (HasOpenPieces() ? 1 : 0) + fMarkKinds.size();
    return static_cast<double>(rows) * kLineStep * fUnit;
  }

  void Begin() {
    const double left = fBox.minX - kMargin * fUnit;
    const double top = -fBox.maxY - (kMargin + 3 * kLineStep) * fUnit;
    const double width = Width() + 2 * kMargin * fUnit;
    const double height = -fBox.minY + kMargin * fUnit + LegendHeight() - top;
    const double scale = kPictureSize / std::max(width, height);
    Add("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"{:.0f}\" height=\"{:.0f}\" "
        "viewBox=\"{:.10g} {:.10g} {:.10g} {:.10g}\" font-family=\"Helvetica, Arial, sans-serif\" "
        "stroke-linejoin=\"round\" stroke-linecap=\"round\">\n",
        width * scale, height * scale, left, top, width, height);
    Add("<rect x=\"{:.10g}\" y=\"{:.10g}\" width=\"{:.10g}\" height=\"{:.10g}\" fill=\"#ffffff\"/>\n", left, top, width,
        height);
  }

  void Write(double x, double y, double size, std::string_view attributes, std::string_view text) {
    Add("<text transform=\"translate({:.10g} {:.10g}) scale({:.6g})\" font-size=\"{}\"{}>{}</text>\n", x, y,
        size / kFontUnit, kFontUnit, attributes, Escaped(text));
  }

  void Title() {
    const double top = -fBox.maxY - kMargin * fUnit;
    Write(fBox.minX, top - 1.6 * kLineStep * fUnit, kTitleSize * fUnit, " fill=\"#202020\" font-weight=\"bold\"",
          fTitle);
    Write(fBox.minX, top - 0.5 * kLineStep * fUnit, kTextSize * fUnit, " fill=\"#505050\"", fSubtitle);
  }

  void AddPieceTo(const TravelledPiece& piece) {
    if (!piece.isArc) return Add("L{:.10g} {:.10g}", piece.to.x, -piece.to.y);
    Add("A{0:.10g} {0:.10g} 0 {1} {2} {3:.10g} {4:.10g}", piece.radius, std::abs(piece.sweep) > kHalfTurn ? 1 : 0,
        piece.sweep < 0 ? 1 : 0, piece.to.x, -piece.to.y);
  }

  void AddLoop(const Loop& loop) {
    Add("M{:.10g} {:.10g}", loop.front().from.x, -loop.front().from.y);
    for (const TravelledPiece& piece : loop) AddPieceTo(piece);
    Add("Z");
  }

  void Regions() {
    Add("<g fill-rule=\"evenodd\" stroke=\"#303030\" stroke-width=\"{:.6g}\">\n", kOutlineWidth * fUnit);
    for (std::size_t kind = 0; kind < fKinds.size(); ++kind) {
      for (const std::size_t region : fKinds[kind].regions) AddRegion(region, kind);
    }
    Add("</g>\n");
  }

  void AddRegion(std::size_t index, std::size_t kind) {
    const Region& region = fReport.detection.regions[index];
    Add("<path id=\"region-{}\" fill=\"{}\" d=\"", RegionId(index), FillOf(region, kind));
    AddLoop(region.outline);
    for (const Loop& hole : region.holes) AddLoop(hole);
    Add("\"><title>{}: {} mm²</title></path>\n", Escaped(region.uniqueName), Plain(region.netArea, 6));
  }

  void Labels() {
    Add("<g text-anchor=\"middle\" fill=\"#101010\">\n");
    for (const Region& region : fReport.detection.regions) AddLabel(region);
    Add("</g>\n");
  }

  static std::string FillOf(const Region& region, std::size_t kind) {
    return region.colour.empty() ? FillColour(kind, region.depth) : region.colour;
  }

  void AddLabel(const Region& region) {
    if (region.baseArea < fReport.settings.minimumLabelArea) return;
    const FontSizes sizes{kSmallestLabel * fUnit, kLargestLabel * fUnit};
    const std::optional<LabelFit> fit = FitName(region, CountCharacters(region.uniqueName), sizes);
    if (!fit) return;
    Add("<text transform=\"translate({:.10g} {:.10g}){} scale({:.6g})\" font-size=\"{}\" dy=\".36em\">{}</text>\n",
        fit->at.x, -fit->at.y, fit->upright ? " rotate(-90)" : "", fit->size / kFontUnit, kFontUnit,
        Escaped(region.uniqueName));
  }

  void OpenPieces() {
    const auto& open = fReport.detection.diagnostics.openPieces;
    if (open.empty()) return;
    Add("<g id=\"open\" fill=\"none\" stroke=\"{}\" stroke-width=\"{:.6g}\">\n", kOpenColour, kOpenWidth * fUnit);
    for (const OpenPiece& one : open) {
      Add("<path d=\"M{:.10g} {:.10g}", one.piece.from.x, -one.piece.from.y);
      AddPieceTo(one.piece);
      Add("\"/>\n");
      if (one.fromDangles) AddMark(one.piece.from);
      if (one.toDangles) AddMark(one.piece.to);
    }
    Add("</g>\n");
  }

  void Marks() {
    if (fReport.marks.empty()) return;
    Add("<g id=\"marks\" fill=\"none\" stroke-width=\"{:.6g}\">\n", kOpenWidth * fUnit);
    for (const Mark& mark : fReport.marks) {
      Add("<circle cx=\"{:.10g}\" cy=\"{:.10g}\" r=\"{:.6g}\" stroke=\"{}\"><title>{}</title></circle>\n", mark.place.x,
          -mark.place.y, 2 * kOpenMark * fUnit, mark.colour, Escaped(mark.text));
    }
    Add("</g>\n");
  }

  void AddMark(const Point& point) {
    Add("<circle cx=\"{:.10g}\" cy=\"{:.10g}\" r=\"{:.6g}\"/>\n", point.x, -point.y, kOpenMark * fUnit);
  }

  void Legend() {
    const double top = -fBox.minY + (kMargin + kLineStep / 2) * fUnit;
    const std::size_t rows = LegendRows();
    for (std::size_t kind = 0; kind < KindsInLegend(); ++kind) {
      const double x = kind < rows ? fBox.minX : fBox.minX + Width() / 2;
      AddLegendRow(kind, x, top + static_cast<double>(kind % rows) * kLineStep * fUnit);
    }
    double y = top + static_cast<double>(rows) * kLineStep * fUnit;
    if (HasMoreKinds()) {
      LegendText(fBox.minX, y, fmt::format("and {} more kinds", fKinds.size() - KindsInLegend()));
      y += kLineStep * fUnit;
    }
    if (HasOpenPieces()) {
      AddLegendOfOpenPieces(y);
      y += kLineStep * fUnit;
    }
    for (const MarkKind& kind : fMarkKinds) {
      AddLegendOfMarks(kind, y);
      y += kLineStep * fUnit;
    }
  }

  void AddLegendRow(std::size_t kind, double x, double y) {
    const RegionKind& group = fKinds[kind];
    Add("<rect x=\"{:.10g}\" y=\"{:.10g}\" width=\"{:.6g}\" height=\"{:.6g}\" fill=\"{}\" stroke=\"#303030\" "
        "stroke-width=\"{:.6g}\"/>\n",
        x, y - 1.3 * fUnit, 2 * fUnit, 1.6 * fUnit, FillOf(fReport.detection.regions[group.regions.front()], kind),
        kOutlineWidth * fUnit);
    const std::size_t count = group.regions.size();
    const std::string area = Plain(group.netArea, 5);
    LegendText(x, y,
               count == 1 ? fmt::format("{}: {} mm²", group.name, area)
                          : fmt::format("{}: {} × {} mm²", group.name, count, area));
  }

  void AddLegendOfOpenPieces(double y) {
    Add("<path fill=\"none\" stroke=\"{}\" stroke-width=\"{:.6g}\" d=\"M{:.10g} {:.10g}h{:.6g}\"/>\n", kOpenColour,
        kOpenWidth * fUnit, fBox.minX, y - 0.6 * fUnit, 2 * fUnit);
    LegendText(fBox.minX, y,
               fmt::format("{} open pieces, {} loose ends", fReport.detection.diagnostics.openPieces.size(),
                           CountLooseEnds(fReport.detection)));
  }

  void AddLegendOfMarks(const MarkKind& kind, double y) {
    Add("<circle cx=\"{:.10g}\" cy=\"{:.10g}\" r=\"{:.6g}\" fill=\"none\" stroke=\"{}\" stroke-width=\"{:.6g}\"/>\n",
        fBox.minX + fUnit, y - 0.6 * fUnit, kOpenMark * fUnit, kind.colour, kOpenWidth * fUnit);
    LegendText(fBox.minX, y, fmt::format("{}: {}", kind.kind, kind.count));
  }

  void LegendText(double x, double y, std::string_view text) {
    Write(x + 3 * fUnit, y, kTextSize * fUnit, " fill=\"#303030\"", text);
  }

  const Report& fReport;
  std::vector<RegionKind> fKinds;
  std::vector<MarkKind> fMarkKinds;
  Extents fBox;
  double fUnit;
  std::string fTitle;
  std::string fSubtitle;
};

}  // namespace

std::string SvgText(const Report& aReport) {
  return SvgPicture(aReport).Text();
}

}  // namespace xsec
