#include "xsec/prepare/VertexPlaces.h"

#include <vector>

#include <gmock/gmock.h>

#include "tests/support/Detection.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"
#include "tests/xsec/Drawings.h"

namespace xsec {
namespace {

using GeometryEngine::TTreeNode;
using GeometryEngine::support::IsBits;
using ::testing::Contains;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

constexpr double kTolerance = 1e-3;

class PutVerticesBackTest : public ::testing::Test {
 protected:
  PutVerticesBackTest() { fGuard.With(Maindataenum::TInputFields::ifLinearTolerance, kTolerance); }

  GeometryEngine::support::TSettingsGuard fGuard;
};

std::vector<Point> VerticesOf(const GeometryEngine::TEntityTree& graph) {
  std::vector<Point> vertices;
  for (const TTreeNode* vertex : graph.RootNode()->Children()) vertices.push_back(vertex->Coordinates());
  return vertices;
}

std::vector<Point> EndsOf(const GeometryEngine::TEntityTree& graph) {
  std::vector<Point> ends;
  for (const GeometryEngine::TDXFEntity& piece : graph.pEntityStorage()->EntityArray()) {
    ends.insert(ends.end(), {piece.StartCoords, piece.EndCoords});
  }
  return ends;
}

TEST_F(PutVerticesBackTest, VertexMovesToItsPlaceWithTheEndsOfItsPieces) {
  GeometryEngine::support::TDetection detection(Rectangle(0, 0, 10, 10) + "L 30,0 40,0");
  GeometryEngine::TEntityTree& graph = detection.driver.CoordinateTree();

  const Point place{10.0008, 10.0003};
  const std::vector<Cure> cures = PutVerticesBack(graph, {place}, kTolerance);
  ASSERT_THAT(cures, SizeIs(1));
  EXPECT_EQ(cures[0].kind, CureKind::Vertex);
  for (const std::vector<Point>& points : {VerticesOf(graph), EndsOf(graph)}) {
    EXPECT_THAT(points, Contains(IsBits(place.x, place.y)));
    EXPECT_THAT(points, Not(Contains(IsBits(10, 10))));
  }
}

TEST_F(PutVerticesBackTest, VertexMovesToTheClosestOfItsPlaces) {
  const Point close{10.0002, 10.0001};
  const Point further{10.0002, 9.9994};
  for (const std::vector<Point>& places : {std::vector{close, further}, std::vector{further, close}}) {
    GeometryEngine::support::TDetection detection(Rectangle(0, 0, 10, 10) + "L 30,0 40,0");
    GeometryEngine::TEntityTree& graph = detection.driver.CoordinateTree();
    EXPECT_THAT(PutVerticesBack(graph, places, kTolerance), SizeIs(1));
    EXPECT_THAT(VerticesOf(graph), Contains(IsBits(close.x, close.y)));
  }
}

// Squares whose corners all but touch, and a place between the two corners, less than the tolerance from either: the
// library would take whichever vertex is moved there for the other one.
TEST_F(PutVerticesBackTest, NoTwoVerticesBecomeTheSame) {
  GeometryEngine::support::TDetection detection(Rectangle(0, 0, 10, 10) + Rectangle(10.0015, 10, 20, 20) +
                                                "L 30,0 40,0");
  GeometryEngine::TEntityTree& graph = detection.driver.CoordinateTree();
  ASSERT_THAT(VerticesOf(graph), Contains(IsBits(10, 10)));
  ASSERT_THAT(VerticesOf(graph), Contains(IsBits(10.0015, 10)));

  EXPECT_THAT(PutVerticesBack(graph, {{10.0008, 10}}, kTolerance), IsEmpty());
  EXPECT_THAT(VerticesOf(graph), Contains(IsBits(10, 10)));
  EXPECT_THAT(VerticesOf(graph), Contains(IsBits(10.0015, 10)));
}

}  // namespace
}  // namespace xsec
