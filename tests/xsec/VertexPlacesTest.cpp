#include "xsec/prepare/VertexPlaces.h"

#include <algorithm>
#include <vector>

#include <gmock/gmock.h>

#include "tests/support/Detection.h"
#include "tests/support/Settings.h"

namespace xsec {
namespace {

using GeometryEngine::TDXFEntity;
using GeometryEngine::TEntityArray;
using GeometryEngine::TTreeNode;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr double kTolerance = 1e-3;

void AddSquare(TEntityArray& drawing, const Point& low, double side) {
  const Point corners[] = {low, {low.x + side, low.y}, {low.x + side, low.y + side}, {low.x, low.y + side}};
  for (std::size_t i = 0; i < 4; ++i) drawing.push_back(TDXFEntity::Line(corners[i], corners[(i + 1) % 4]));
}

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

bool HasExactly(const std::vector<Point>& points, const Point& point) {
  return std::any_of(points.begin(), points.end(),
                     [&](const Point& other) { return other.x == point.x && other.y == point.y; });
}

TEST_F(PutVerticesBackTest, VertexMovesToItsPlaceWithTheEndsOfItsPieces) {
  TEntityArray drawing;
  AddSquare(drawing, {0, 0}, 10);
  drawing.push_back(TDXFEntity::Line({30, 0}, {40, 0}));
  GeometryEngine::support::TDetection detection(drawing);
  GeometryEngine::TEntityTree& graph = detection.driver.CoordinateTree();

  const Point place{10.0008, 10.0003};
  const std::vector<Cure> cures = PutVerticesBack(graph, {place}, kTolerance);
  ASSERT_THAT(cures, SizeIs(1));
  EXPECT_EQ(cures[0].kind, CureKind::Vertex);
  EXPECT_TRUE(HasExactly(VerticesOf(graph), place));
  std::vector<Point> ends;
  for (const TDXFEntity& piece : graph.pEntityStorage()->EntityArray()) {
    ends.insert(ends.end(), {piece.StartCoords, piece.EndCoords});
  }
  EXPECT_TRUE(HasExactly(ends, place));
  EXPECT_FALSE(HasExactly(ends, {10, 10}));
}

// Squares whose corners all but touch, and a place between the two corners, less than the tolerance from either: the
// library would take whichever vertex is moved there for the other one.
TEST_F(PutVerticesBackTest, NoTwoVerticesBecomeTheSame) {
  TEntityArray drawing;
  AddSquare(drawing, {0, 0}, 10);
  AddSquare(drawing, {10.0015, 10}, 10);
  drawing.push_back(TDXFEntity::Line({30, 0}, {40, 0}));
  GeometryEngine::support::TDetection detection(drawing);
  GeometryEngine::TEntityTree& graph = detection.driver.CoordinateTree();
  ASSERT_TRUE(HasExactly(VerticesOf(graph), {10, 10}));
  ASSERT_TRUE(HasExactly(VerticesOf(graph), {10.0015, 10}));

  EXPECT_THAT(PutVerticesBack(graph, {{10.0008, 10}}, kTolerance), IsEmpty());
  EXPECT_TRUE(HasExactly(VerticesOf(graph), {10, 10}));
  EXPECT_TRUE(HasExactly(VerticesOf(graph), {10.0015, 10}));
}

}  // namespace
}  // namespace xsec
