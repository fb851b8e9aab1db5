// The passes that trace a whole vertex graph against single walks through the tree, one after the other: the same
// loops with the same bits, and the same marks, on random graphs, some of them such as only a host would build.

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include <gmock/gmock.h>

#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"
#include "GeometryEngine/DXF_Regions_Detection/RegionTracing.h"
#include "GeometryEngine/host/TDataStore.h"
#include "tests/support/Geometry.h"
#include "tests/support/Repetitions.h"
#include "tests/support/Settings.h"

using namespace GeometryEngine;
using Maindataenum::TInputFields;

namespace {

class TRandom {
 public:
  explicit TRandom(std::uint32_t aSeed) : fEngine(2654435761U * (aSeed + 1)) {}
  int Below(int aEnd) { return static_cast<int>(fEngine() % static_cast<unsigned>(aEnd)); }
  double Coordinate() { return Below(5) + (Below(8) == 0 ? 0.5e-4 * (Below(5) - 2) : 0); }
  TEntityCoordinate Point() { return {Coordinate(), Coordinate()}; }

 private:
  std::minstd_rand fEngine;  // quick to seed
};

TDXFEntity RandomPiece(TRandom& aRandom) {
  const TEntityCoordinate start = aRandom.Point();
  const TEntityCoordinate end = aRandom.Point();
  if (aRandom.Below(3) > 0) return TDXFEntity::Line(start, end);
  const TEntityCoordinate centre{start.x, end.y};
  const double from = 90.0 * aRandom.Below(4);
  return TDXFEntity::Arc(start, end, centre, 0.5 + aRandom.Below(3), from, from + 90.0 * aRandom.Below(4));
}

// A vertex graph, disturbed in one out of three cases; then the tolerance may be another one till the next is made.
class TRandomGraph {
 public:
  explicit TRandomGraph(std::uint32_t aSeed) : fRandom(aSeed) {
    Kelvaralinks::dataStore.SetValue(TInputFields::ifLinearTolerance, 1e-4);
    fTree.pEntityStorage(&fPieces);
    const int pieces = 3 + fRandom.Below(25);
    for (int i = 0; i < pieces; ++i) fDriver.AddEntityToCoordinateTree(fTree, RandomPiece(fRandom));
    if (fRandom.Below(3) == 0) Disturb();
  }

  TEntityTree& Tree() { return fTree; }
  const TEntityTree& Tree() const { return fTree; }
  TEntityBaseClass& Driver() { return fDriver; }
  int Type() { return fRandom.Below(3); }

 private:
  void Disturb() {
    TTreeNode& node = *fTree.GetNodeFromIndex(1 + fRandom.Below(fTree.Count() - 1));
    TDXFEntity& piece = fPieces.EntityArray()[static_cast<std::size_t>(fRandom.Below(fPieces.Count()))];
    switch (fRandom.Below(7)) {
      case 0:
        return node.Travelled(true);
      case 1:
        return node.EntityIndex(fRandom.Below(40) - 5);
      case 2:
        return node.coordinate_X(node.coordinate_X() + 0.7e-4);
      case 3:
        return void(fDriver.AddCoordinateNode(fTree, fRandom.Point(), fRandom.Below(10)));
      case 4:
        return void(piece.EndCoords.y = std::numeric_limits<double>::quiet_NaN());
      case 5:
        return void(piece.radius = std::numeric_limits<double>::infinity());
      default:
        return Kelvaralinks::dataStore.SetValue(TInputFields::ifLinearTolerance, fRandom.Below(2) == 0 ? 2e-4 : 0.0);
    }
  }

  TRandom fRandom;
  TEntityBaseClass fDriver;
  TEntityStorage fPieces;
  TEntityTree fTree{"Coordinates_SlotPole"};
};

void Append(std::vector<std::uint64_t>& aRecord, double aNumber) {
  aRecord.push_back(std::isnan(aNumber) ? 0 : std::bit_cast<std::uint64_t>(aNumber) + 1);
}

void AppendRegion(std::vector<std::uint64_t>& aRecord, const TTreeNode& aRegion) {
  for (const double number : {aRegion.coordinate_X(), aRegion.coordinate_Y(), aRegion.GaussArea(),
                              aRegion.RegionCentroid().x, aRegion.RegionCentroid().y}) {
    Append(aRecord, number);
  }
  for (const TTreeNode* child : aRegion.Children()) aRecord.push_back(static_cast<std::uint64_t>(child->EntityIndex()));
}

std::vector<std::uint64_t> RecordOf(TRandomGraph& aGraph) {
  std::vector<std::uint64_t> record;
  record.push_back(aGraph.Driver().RegionTree().RootNode()->Children().size());
  for (const TTreeNode* region : aGraph.Driver().RegionTree().RootNode()->Children()) AppendRegion(record, *region);
  for (TIndex i = 0; i < aGraph.Tree().Count(); ++i) record.push_back(aGraph.Tree().Item(i)->Travelled() ? 1 : 0);
  return record;
}

TRegionWalk Walk(TEntityTree& aTree, TTreeNode* aVertex, TTreeNode* aEntityEnd, bool aBacktracking) {
  TRegionWalk walk;
  walk.fStart = aVertex->Coordinates();
  walk.fBacktracking = aBacktracking;
  FindNextRegionEntity(aTree, aVertex, aEntityEnd, walk);
  return walk;
}

void Keep(TRandomGraph& aGraph, const TRegionWalk& aWalk) {
  aGraph.Driver().AddRegionCoordinates(aGraph.Tree(), aWalk.fPath, aWalk.fStart, aWalk.fCentroid, aWalk.fArea);
}

std::vector<std::uint64_t> TracedOneByOne(std::uint32_t aSeed) {
  TRandomGraph graph(aSeed);
  const int type = graph.Type();
  for (TTreeNode* vertex : graph.Tree().RootNode()->Children()) {
    for (TTreeNode* end : vertex->Children()) {
      if (end->Travelled() || vertex->Count() < 2) continue;
      const TRegionWalk walk = Walk(graph.Tree(), vertex, end, true);
      if ((walk.fArea < 0 && type != 1) || (walk.fArea >= 0 && type != 2)) Keep(graph, walk);
    }
  }
  return RecordOf(graph);
}

std::vector<std::uint64_t> TracedAtOnce(std::uint32_t aSeed) {
  TRandomGraph graph(aSeed);
  graph.Driver().DetermineRegions(graph.Tree(), graph.Type());
  return RecordOf(graph);
}

bool IsReverse(const TRandomGraph& aGraph, const TTreeNode& aRegion, const TRegionWalk& aWalk) {
  const auto& children = aRegion.Children();
  return std::equal(children.rbegin(), children.rend(), aWalk.fPath.begin(), aWalk.fPath.end(),
                    [&](const TTreeNode* child, std::int32_t index) {
                      return aGraph.Tree().GetNodeEntity(*child) ==
                             aGraph.Tree().GetNodeEntity(*aGraph.Tree().GetNodeFromIndex(index));
                    });
}

std::vector<std::uint64_t> ChainsOneByOne(std::uint32_t aSeed) {
  TRandomGraph graph(aSeed);
  for (TTreeNode* vertex : graph.Tree().RootNode()->Children()) {
    if (vertex->Count() != 1) continue;
    const TRegionWalk walk = Walk(graph.Tree(), vertex, vertex->GetNode(0), false);
    const auto& known = graph.Driver().RegionTree().RootNode()->Children();
    if (std::ranges::none_of(known, [&](const TTreeNode* region) { return IsReverse(graph, *region, walk); })) {
      Keep(graph, walk);
    }
  }
  return RecordOf(graph);
}

std::vector<std::uint64_t> ChainsAtOnce(std::uint32_t aSeed) {
  TRandomGraph graph(aSeed);
  graph.Driver().DetectOrphanEntities(graph.Tree());
  return RecordOf(graph);
}

// Holds two ways of tracing against each other on random graphs: a thousand in every run, five million with
// tools/reliability. Few chords an arc, for they take most of the time.
template <typename TTrace>
void ExpectTheSame(const TTrace& aAtOnce, const TTrace& aOneByOne) {
  support::TSettingsGuard settings;
  settings.With(TInputFields::ifArcResolution, 1);
  const auto graphs = static_cast<std::uint32_t>(support::Repetitions(1000));
  std::uint32_t withAny = 0;  // graphs in which there is something to trace
  for (std::uint32_t seed = 0; seed < graphs; ++seed) {
    const std::vector<std::uint64_t> record = aAtOnce(seed);
    ASSERT_EQ(record, aOneByOne(seed)) << seed;
    if (record.front() > 0) ++withAny;
  }
  EXPECT_GT(withAny, graphs / 4);
}

}  // namespace

TEST(TracingEquality, RegionsHaveTheBitsOfWalksOneByOne) {
  ExpectTheSame(TracedAtOnce, TracedOneByOne);
}

TEST(TracingEquality, OpenChainsHaveTheBitsOfWalksOneByOne) {
  ExpectTheSame(ChainsAtOnce, ChainsOneByOne);
}
