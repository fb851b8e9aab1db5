#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "GeometryEngine/DXF_Regions_Utilities/EntityTerms.h"
#include "GeometryEngine/host/Numerics.h"
#include "xsec/prepare/Curves.h"
#include "xsec/prepare/MetPlaces.h"
#include "xsec/prepare/Preparation.h"

namespace xsec {

namespace {

using GeometryEngine::kFullTurn;
using GeometryEngine::kHalfTurn;
using GeometryEngine::TDXFEntity;

constexpr double kSideBySide = 60;   // degrees between two directions that chords may put in another order
constexpr double kClearTurn = 1e-5;  // radians between chords that single precision tells apart without doubt
constexpr std::array kGaps = {8., 4., 2., 1.2};  // tolerances by which first pieces part, from the safest to the least

/// One way of leaving a vertex along a part.
struct HalfEdge {
  std::size_t part;
  bool isForward;
  double direction;  ///< degrees, of the tangent
  double curvature;  ///< to the left positive
  Point next;        ///< where the part ends or is met next
  double length;     ///< as far as that
};

double SignedTurn(double from, double to) {
  return GeometryEngine::GetAngleInRange(to - from + kHalfTurn, 0, kFullTurn) - kHalfTurn;
}

/// How two half-edges part: by an angle in radians at first, and by curvature further on.
struct Parting {
  double turn;
  double bend;

  /// How far the second is to the left of the first after so much of the way.
  double GapAt(double way) const { return way * (turn + way * bend / 2); }

  /// The shortest way after which they are so far apart. DEGENERATE: infinite for the same curve.
  double WayToGap(double gap) const {
    const double t = std::abs(turn);
    const double b = std::abs(bend);
    if (turn * bend >= 0) return 2 * gap / (t + std::sqrt(t * t + 2 * b * gap));
    if (t * t >= 2 * b * gap) return 2 * gap / (t + std::sqrt(t * t - 2 * b * gap));
    return (t + std::sqrt(t * t + 2 * b * gap)) / b;
  }
};

/// Where all parts are met, looked at where it is asked for.
class Meetings {
 public:
  explicit Meetings(Preparation& work) : fWork(work), fPlaces(work.parts.size()) {}

  const MetPlaces& Of(std::size_t part) {
    if (!fPlaces[part]) fPlaces[part].emplace(fWork.parts[part]);
    return *fPlaces[part];
  }

  void Add(std::size_t part, const Point& meeting) {
    fWork.parts[part].meetings.push_back(meeting);
    if (fPlaces[part]) fPlaces[part]->AddLatest(fWork.parts[part]);
  }

 private:
  Preparation& fWork;
  std::vector<std::optional<MetPlaces>> fPlaces;
};

/// A vertex and what leaves it.
class Fan {
 public:
  Fan(const Preparation& work, Meetings& meetings, const MeetingPlace& vertex) : fWork(work), fPlace(vertex.point) {
    for (const std::size_t part : vertex.parts) AddPart(part, meetings.Of(part));
  }

  bool IsAtRisk() const { return fEdges.size() > 2 && !IsInOrder(std::numeric_limits<double>::infinity()); }

  /// The longest chord of first pieces that shows the true order; nothing when none does.
  std::optional<double> BestChord() const {
    for (const double gap : kGaps) {
      const double chord = ChordForGap(gap * fWork.tolerance);
      if (std::isfinite(chord) && IsInOrder(chord)) return chord;
    }
    return std::nullopt;
  }

  /// The parts to cut for first pieces of that chord, with the places.
  std::vector<std::pair<std::size_t, Point>> CutsFor(double chord) const {
    std::vector<std::pair<std::size_t, Point>> cuts;
    for (const HalfEdge& edge : fEdges) {
      if (IsCutAt(edge, chord)) cuts.emplace_back(edge.part, PlaceAt(edge, chord));
    }
    return cuts;
  }

 private:
  const TDXFEntity& Geometry(const HalfEdge& edge) const { return fWork.parts[edge.part].geometry; }

  void AddPart(std::size_t part, const MetPlaces& met) {
    const TDXFEntity& entity = fWork.parts[part].geometry;
    if (fPlace != entity.EndCoords) AddEdge(part, true, met);
    if (fPlace != entity.StartCoords) AddEdge(part, false, met);
  }

  void AddEdge(std::size_t part, bool isForward, const MetPlaces& met) {
    const TDXFEntity& entity = fWork.parts[part].geometry;
    HalfEdge edge{part, isForward, 0, 0, isForward ? entity.EndCoords : entity.StartCoords, 0};
    const double here = PositionOf(entity, fPlace);
    edge.length = std::abs(PositionOf(entity, edge.next) - here);
    if (const MetPlace* next = met.NextFrom(here, fPlace, isForward, edge.length)) {
      edge.length = std::abs(next->position - here);
      edge.next = next->point;
    }
    SetDirection(entity, edge);
    fEdges.push_back(edge);
  }

  void SetDirection(const TDXFEntity& entity, HalfEdge& edge) const {
    const bool isArc = IsArc(entity);
    const Point arm = isArc ? fPlace - entity.CentreCoords : edge.next - fPlace;
    const double angle = std::atan2(arm.y, arm.x) * GeometryEngine::kDegreesPerRadian;
    edge.direction = isArc ? angle + (edge.isForward ? 90 : -90) : angle;
    edge.curvature = isArc ? (edge.isForward ? 1 : -1) / entity.radius : 0;
  }

  Parting PartingOf(const HalfEdge& a, const HalfEdge& b) const {
    return {SignedTurn(a.direction, b.direction) * GeometryEngine::kRadiansPerDegree, b.curvature - a.curvature};
  }

  bool AreSideBySide(const HalfEdge& a, const HalfEdge& b) const {
    return (IsArc(Geometry(a)) || IsArc(Geometry(b))) && std::abs(SignedTurn(a.direction, b.direction)) < kSideBySide;
  }

  bool IsCutAt(const HalfEdge& edge, double chord) const { return IsArc(Geometry(edge)) && edge.length > 2 * chord; }

  Point PlaceAt(const HalfEdge& edge, double chord) const {
    const TDXFEntity& arc = Geometry(edge);
    const double turn = 2 * std::asin(chord / (2 * arc.radius)) * (edge.isForward ? 1 : -1);
    const Point arm = fPlace - arc.CentreCoords;
    const double angle = std::atan2(arm.y, arm.x) + turn;
    return {arc.CentreCoords.x + arc.radius * std::cos(angle), arc.CentreCoords.y + arc.radius * std::sin(angle)};
  }

  /// The direction that the library gives the half-edge when its first piece is no longer than the chord. Radians.
  double DirectionByChord(const HalfEdge& edge, double chord) const {
    const Point end = IsCutAt(edge, chord) ? PlaceAt(edge, chord) : edge.next;
    const TDXFEntity piece =
        edge.isForward ? PieceBetween(Geometry(edge), fPlace, end) : PieceBetween(Geometry(edge), end, fPlace);
    const auto vector = GeometryEngine::GetEntityVector(fPlace, end, piece, 1);
    return std::atan2(static_cast<double>(vector.y), static_cast<double>(vector.x));
  }

  bool IsInOrder(double chord) const {
    for (std::size_t i = 0; i < fEdges.size(); ++i) {
      for (std::size_t j = i + 1; j < fEdges.size(); ++j) {
        if (AreSideBySide(fEdges[i], fEdges[j]) && !IsPairInOrder(fEdges[i], fEdges[j], chord)) return false;
      }
    }
    return true;
  }

  bool IsPairInOrder(const HalfEdge& a, const HalfEdge& b, double chord) const {
    const Parting parting = PartingOf(a, b);
    const double shorter = std::min(a.length, b.length) / 2;
    const double way = std::min(parting.WayToGap(kGaps.back() * fWork.tolerance), shorter);
    const double shown = SignedTurn(DirectionByChord(a, chord) * GeometryEngine::kDegreesPerRadian,
                                    DirectionByChord(b, chord) * GeometryEngine::kDegreesPerRadian) *
                         GeometryEngine::kRadiansPerDegree;
    return std::abs(shown) > kClearTurn && (shown > 0) == (parting.GapAt(way) > 0);
  }

  double ChordForGap(double gap) const {
    double chord = 0;
    for (std::size_t i = 0; i < fEdges.size(); ++i) {
      for (std::size_t j = i + 1; j < fEdges.size(); ++j) {
        if (AreSideBySide(fEdges[i], fEdges[j])) {
          chord = std::max(chord, PartingOf(fEdges[i], fEdges[j]).WayToGap(gap));
          if (std::isinf(chord)) return chord;
        }
      }
    }
    return chord;
  }

  const Preparation& fWork;
  Point fPlace;
  std::vector<HalfEdge> fEdges;
};

/// Only the first chords of arcs can show another order.
bool HasArc(const Preparation& work, const MeetingPlace& vertex) {
  return std::any_of(vertex.parts.begin(), vertex.parts.end(),
                     [&](std::size_t part) { return IsArc(work.parts[part].geometry); });
}

}  // namespace

std::vector<Point> SettleTurnOrder(Preparation& aWork, const std::vector<MeetingPlace>& aPlaces) {
  std::vector<Point> added;
  Meetings meetings(aWork);
  for (const MeetingPlace& vertex : aPlaces) {
    if (!HasArc(aWork, vertex)) continue;
    const Fan fan(aWork, meetings, vertex);
    if (!fan.IsAtRisk()) continue;
    const auto chord = fan.BestChord();
    if (!chord) continue;
    for (const auto& [part, place] : fan.CutsFor(*chord)) {
      aWork.parts[part].cuts.push_back(place);
      meetings.Add(part, place);
      added.push_back(place);
    }
    aWork.Report(CureKind::TurnOrder, vertex.point, vertex.parts.front(), kNone, *chord);
  }
  return added;
}

}  // namespace xsec
