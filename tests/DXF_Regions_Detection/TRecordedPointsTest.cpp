#include "GeometryEngine/DXF_Regions_Detection/detail/TRecordedPoints.h"

#include <gmock/gmock.h>

#include <random>

#include "GeometryEngine/DXF_Regions_Detection/InterceptionRecording.h"
#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {

using detail::TRecordedPoints;
using enum Maindataenum::TInputFields;

namespace {

struct TRecording {
  TIndex fEntity;
  TEntityCoordinate fPoint;
};

std::string ToText(const TEntityTree& aTree) {
  std::string text;
  for (TIndex i = 0; i < aTree.Count(); ++i) {
    const TTreeNode* node = aTree.GetNodeFromIndex(i);
    const TIndex parent = node->Level() == 1 ? kNotFound : node->Parent()->AbsoluteIndex();
    text += std::to_string(parent) + ":" + std::to_string(node->RelativeIndex()) + " " +
            std::to_string(node->EntityIndex()) + " " + support::ToText(node->Coordinates()) + "\n";
    EXPECT_EQ(node->Parent()->GetNode(node->RelativeIndex()), node);
  }
  return text;
}

std::string RecordOneByOne(TEntityStorage& aDrawing, const std::vector<TRecording>& aRecordings) {
  TEntityTree tree("Intercepts");
  tree.Clear();
  tree.pEntityStorage(&aDrawing);
  for (const auto& [entity, point] : aRecordings) AddInterception(tree, aDrawing.Entities(entity), entity, point);
  return ToText(tree);
}

std::string RecordAtOnce(const TEntityStorage& aDrawing, const std::vector<TRecording>& aRecordings) {
  TRecordedPoints records(aDrawing.EntityArray());
  for (const auto& [entity, point] : aRecordings) records.Add(entity, point);
  TEntityTree tree("Intercepts");
  tree.Clear();
  records.GetRows()->AddNodes(tree);
  return ToText(tree);
}

/// Points near each entity of a drawing, each on a lattice of halves of the tolerance, and every fourth an end of it.
std::vector<TRecording> RandomRecordings(std::size_t aCount, TEntityStorage& aDrawing, double aTolerance,
                                         std::uint32_t aSeed) {
  std::mt19937 random(aSeed);
  const int places = aSeed % 3 == 0 ? 9 : 200;
  const auto place = [&] {
    return 1 + static_cast<int>(random() % static_cast<std::uint32_t>(places)) * aTolerance / 2;
  };
  std::vector<TRecording> recordings;
  for (std::size_t i = 0; i < aCount; ++i) {
    const TIndex index = static_cast<TIndex>(random() % static_cast<std::uint32_t>(aDrawing.Count()));
    if (random() % 4 == 0) {
      const TDXFEntity& entity = aDrawing.Entities(index);
      recordings.push_back({index, random() % 2 == 0 ? entity.StartCoords : entity.EndCoords});
      continue;
    }
    const double x = place();
    recordings.push_back({index, {x, random() % 2 == 0 ? 1.0 : place()}});
  }
  return recordings;
}

}  // namespace

TEST(TRecordedPoints, GivesTheNodesOfRecordingOneByOne) {
  support::TSettingsGuard settings;
  for (const double tolerance : {1e-3, 0.2, 0.0}) {
    settings.With(ifLinearTolerance, tolerance);
    for (std::uint32_t seed = 0; seed < 150; ++seed) {
      TEntityStorage drawing;
      drawing.AddEntities(support::ParseEntities(
          "L 0,0 4,4; L 4,4 0,0; L 0,0 0,4; A c 0,0 r 2 300..100; A c 0,0 r 2 300..100.00001; A c 1,1 r 1 10..350;"
          "N; L 0,0 nan,1; L 0.0001,0 4,4.0001; A c 1,1 r 1 350..10; A c 0,0 r 2 300..100"));
      const std::vector<TRecording> recordings =
          RandomRecordings(seed % 2 == 0 ? 60 : 600, drawing, tolerance == 0 ? 1e-3 : tolerance, seed);
      ASSERT_EQ(RecordAtOnce(drawing, recordings), RecordOneByOne(drawing, recordings))
          << "tolerance " << tolerance << " seed " << seed;
    }
  }
}

TEST(TRecordedPoints, GivesEqualEntitiesTheNodeOfTheFirstRecorded) {
  support::TSettingsGuard settings;
  TEntityStorage drawing;
  drawing.AddEntities(support::ParseEntities("L 0,0 4,0; L 9,9 8,8; L 4,0 0,0"));
  EXPECT_EQ(RecordAtOnce(drawing, {{2, {1, 0}}, {1, {9, 9}}, {0, {3, 0}}}),
            "-1:0 2 0,0\n0:1 -1 1,0\n-1:1 1 0,0\n2:0 -1 9,9\n0:0 -1 3,0\n");
}

TEST(TRecordedPoints, GivesEachPointOfWhatEqualsNothingANodeOfItsOwn) {
  support::TSettingsGuard settings;
  TEntityStorage drawing;
  drawing.AddEntities(support::ParseEntities("N"));
  EXPECT_EQ(RecordAtOnce(drawing, {{0, {1, 0}}, {0, {1, 0}}}), "-1:0 0 0,0\n0:0 -1 1,0\n-1:1 0 0,0\n2:0 -1 1,0\n");
}

// An end is told by its numbers, of which either zero is the same; the row has the numbers that were recorded.
TEST(TRecordedPoints, KeepsTheSignOfZero) {
  support::TSettingsGuard settings;
  TEntityStorage drawing;
  drawing.AddEntities(support::ParseEntities("L 0,0 4,0"));
  const std::vector<TRecording> recordings{{0, {-0.0, 0}}, {0, {4, -0.0}}, {0, {0, 0}}};
  EXPECT_EQ(RecordAtOnce(drawing, recordings), "-1:0 0 0,0\n0:1 -1 -0,0\n0:0 -1 4,-0\n");
  EXPECT_EQ(RecordOneByOne(drawing, recordings), RecordAtOnce(drawing, recordings));
}

TEST(TRecordedPoints, WithoutPointsGivesNoNodes) {
  support::TSettingsGuard settings;
  TEntityStorage drawing;
  drawing.AddEntities(support::ParseEntities("L 0,0 4,0"));
  EXPECT_EQ(RecordAtOnce(drawing, {}), "");
}

}  // namespace GeometryEngine
