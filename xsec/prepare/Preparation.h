#pragma once

// What the steps of the preparation work on, and the steps themselves, in the order in which Prepare takes them.
//
// A step cuts rather than moves, and never changes where an entity runs by more than the tolerance, but where many
// points stand less than that apart in a row. The cuts are kept beside the parts until the last step makes pieces of
// them, so that each step sees the entities whole.

#include <cstddef>
#include <utility>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "xsec/Drawing.h"
#include "xsec/prepare/Cures.h"

namespace xsec {

/// How close two entities have to come to be looked at as a pair.
inline constexpr double kReachInTolerances = 2;

/// What is moved by more than this is reported; less is rounding. UNITS: tolerances
inline constexpr double kToldMove = 1e-3;

/// A line or arc of the drawing on its way through the preparation.
struct Part {
  GeometryEngine::TDXFEntity geometry;
  std::size_t source = 0;       ///< the entity of the drawing
  std::vector<Point> meetings;  ///< where others meet it, its own ends among them, each once when settled; in no order
  std::vector<Point> cuts;      ///< where it has to be cut, each once when settled; in no order
};

/// An entity of the drawing that is the same, to the last bit, as the one an earlier part was made of.
struct Double {
  std::size_t source = 0;  ///< the entity of the drawing
  std::size_t part = 0;    ///< the part that stands for it
};

/// Two parts that come close to each other, the first before the second.
using PartPair = std::pair<std::size_t, std::size_t>;

/// A place where parts end or meet, with the parts that are there.
struct MeetingPlace {
  Point point;
  std::vector<std::size_t> parts;
};

struct Preparation {
  double tolerance = 0;
  std::vector<Part> parts;
  std::vector<Double> doubles;  ///< in the order of the drawing
  std::vector<PartPair> pairs;
  std::vector<Cure> cures;
  std::vector<std::size_t> doubtful;  ///< parts that the library may see otherwise than they were drawn, as they lie
  std::vector<std::size_t> blurred;   ///< parts met in points that are the same in some directions and not in others

  void Report(CureKind aKind, const Point& aPlace, std::size_t aPart, std::size_t aOther, double aAmount);
};

/// Leaves one part of those that are the same to the last bit, whichever way lines run, and reports the others, each as
/// lying on the one that stays: whatever meets one of them meets all.
/// COST: n log n
void SetDoublesApart(Preparation& aWork);

/// Arcs whose centres and radii are the same within the tolerance get those of the first of them.
/// COST: linear in the arcs, as long as few circles lie within a tolerance of each other.
void UnifyCircles(Preparation& aWork);

/// The two halves of a circle begin where nothing meets it: a short stretch between a meeting and a seam would hide the
/// order of turns there.
void TurnSeams(Preparation& aWork);

/// Finds where the parts of each pair meet. Parts that lie on each other are cut at each other's ends, those that run
/// together between two meetings at these; a pair whose meetings the library would see otherwise in another direction
/// is cut where it meets, and doubtful if the library would see more meetings of its pieces. COST: linear in the pairs
/// and the points that they meet in
void FindMeetings(Preparation& aWork);

/// Leaves one of the meetings of a part, and of its cuts, that are the same, and cuts what has to be cut anywhere
/// wherever it is met.
/// COST: linear in the meetings
void SettleMeetings(Preparation& aWork);

/// Finds which parts are blurred. REQUIRES: meetings are not settled. COST: linear in the meetings
void FindBlurs(Preparation& aWork);

/// Makes one of the points that parts meet in and that can be reached from one another by steps below the tolerance, or
/// an eighth more, and cuts every part wherever it is met, so that under a finer tolerance all that has met still does.
/// Some parts become points. COST: linear in the meetings
void MeetInOnePoint(Preparation& aWork);

/// Lines that run so steeply that neighbouring meetings are closer in x than the tolerance are cut at all of them.
void CutSteepLines(Preparation& aWork);

/// Turns in which the fewest lines are too steep in that sense, the best of them first, none of them close to another
/// or to no turn at all. UNITS: degrees, above 0 and below 180 REQUIRES: meetings were found. COST: n log n in the
/// meetings of each line
std::vector<double> TurnsWithFewSteepLines(const Preparation& aWork, std::size_t aMost);

/// Where the first chords of arcs that leave a point show another order than the arcs themselves, the arcs get first
/// pieces of equal chord there. Answers where these end.
/// COST: for each point the parts there times the logarithm of what meets them, and the pairs of parts there when some
/// are arcs; arcs on one circle at that point end the search at once
std::vector<Point> SettleTurnOrder(Preparation& aWork, const std::vector<MeetingPlace>& aPlaces);

}  // namespace xsec
