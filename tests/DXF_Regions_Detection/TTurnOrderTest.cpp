#include "GeometryEngine/DXF_Regions_Detection/detail/TTurnOrder.h"

#include <cmath>
#include <random>

#include <gmock/gmock.h>

#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/WalkRule.h"
#include "GeometryEngine/GeometryFuncts/detail/CirclePoint.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {

using detail::THalfEdge;
using detail::TTurnOrder;
using detail::TVertexGraph;

namespace {

// Pieces that leave one point in directions of which many are next to each other, and next to an axis.
class TStar {
 public:
  explicit TStar(std::uint32_t aSeed) : fRandom(aSeed) {
    fTree.pEntityStorage(&fPieces);
    const int pieces = 3 + Below(4);
    const double direction = 90.0 * Below(4);
    for (int i = 0; i < pieces; ++i)
      fDriver.AddEntityToCoordinateTree(fTree, Piece(Below(5) == 0 ? Share() * 360 : direction + Deviation()));
  }

  const TEntityTree& Tree() const { return fTree; }

 private:
  int Below(int aEnd) { return static_cast<int>(fRandom() % static_cast<unsigned int>(aEnd)); }
  double Share() { return std::uniform_real_distribution<double>(0, 1)(fRandom); }
  // Up to ten degrees to either side.
  double Deviation() { return (Below(2) == 0 ? 1 : -1) * std::pow(10, 1 - 9 * Share()); }

  TDXFEntity Piece(double aDirection) {
    if (Below(3) == 0) return TDXFEntity::Line(fCentre, detail::GetCirclePoint(fCentre, 1 + 20 * Share(), aDirection));
    const double radius = std::pow(10, 3 * Share() - 1);
    const double sweep = std::pow(10, 2.3 * Share());
    const bool isFromStart = Below(2) == 0;
    const double here = isFromStart ? aDirection - 90 : aDirection + 90;
    const double there = isFromStart ? here + sweep : here - sweep;
    const TEntityCoordinate centre = detail::GetCirclePoint(fCentre, radius, here + 180);
    const TEntityCoordinate end = detail::GetCirclePoint(centre, radius, there);
    return isFromStart ? TDXFEntity::Arc(fCentre, end, centre, radius, here, there)
                       : TDXFEntity::Arc(end, fCentre, centre, radius, there, here);
  }

  std::mt19937 fRandom;
  TEntityCoordinate fCentre{31, -17};
  TEntityStorage fPieces;
  TEntityBaseClass fDriver;
  TEntityTree fTree{"star"};
};

// The turn from where a walk arrives into a half-edge of that vertex, as a walk through the tree computes it.
double TurnAngle(const TVertexGraph& aGraph, const THalfEdge& aArriving, const THalfEdge& aLeaving) {
  const TEntityCoordinate vertex = aGraph.FarEnd(aArriving);
  const TVector_Single from = GetEntityVector(aGraph.From(aArriving), vertex, aGraph.Entity(aArriving), 0);
  return detail::GetTurnAngle(from, vertex, aGraph.FarEnd(aLeaving), aGraph.Entity(aLeaving));
}

struct TCounts {
  int fClear = 0;
  int fUnclear = 0;
};

void ExpectTurnsInOrder(const TVertexGraph& aGraph, TCounts& aCounts) {
  TTurnOrder order(aGraph);
  for (TIndex h = 0; h < aGraph.HalfEdgeCount(); ++h) {
    const THalfEdge& arriving = aGraph.HalfEdge(h);
    if (aGraph.Degree(arriving.fFarVertex) < 3) continue;
    if (!order.HasClearTurns(h)) {
      ++aCounts.fUnclear;
      continue;
    }
    ++aCounts.fClear;
    double before = 360;
    for (TIndex next = order.Clockwise(arriving.fTwin); next != arriving.fTwin; next = order.Clockwise(next)) {
      const double turn = TurnAngle(aGraph, arriving, aGraph.HalfEdge(next));
      ASSERT_LT(turn, before);
      before = turn;
    }
    ASSERT_GT(before, 0);
  }
}

}  // namespace

TEST(TTurnOrder, ClearTurnsAreInTheOrderOfTheirAngles) {
  const support::TSettingsGuard settings;
  TCounts counts;
  for (std::uint32_t seed = 1; seed <= 20'000; ++seed) {
    const TStar star(seed);
    const TVertexGraph graph(star.Tree());
    ASSERT_NO_FATAL_FAILURE(ExpectTurnsInOrder(graph, counts)) << "star " << seed;
  }
  EXPECT_GT(counts.fClear, 50'000);
  EXPECT_GT(counts.fUnclear, 100);
}

}  // namespace GeometryEngine
