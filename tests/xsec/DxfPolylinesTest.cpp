// LWPOLYLINE and POLYLINE: their segments and bulges.
#include <gmock/gmock.h>

#include <cmath>
#include <numbers>
#include <string>

#include "tests/support/Geometry.h"
#include "tests/support/Repetitions.h"
#include "tests/xsec/DxfTexts.h"

namespace xsec {
namespace {

using GeometryEngine::TDXFEntity;
using GeometryEngine::support::IsBits;
using GeometryEngine::support::IsNear;

constexpr double kNear = 1e-12;

TEST(ReadPolyline, OpenAndClosedOnes) {
  const std::string vertices = "90 3 | 10 0 | 20 0 | 10 4 | 20 0 | 10 4 | 20 3";
  EXPECT_THAT(GeometryOf(ReadEntities("0 LWPOLYLINE | 70 0 | " + vertices)), IsBits("L 0,0 4,0; L 4,0 4,3"));
  EXPECT_THAT(GeometryOf(ReadEntities("0 LWPOLYLINE | 70 1 | " + vertices)), IsBits("L 0,0 4,0; L 4,0 4,3; L 4,3 0,0"));
}

TEST(ReadPolyline, OldFormWithVerticesOfTheirOwn) {
  const Drawing drawing = ReadEntities(
      "0 POLYLINE | 8 slot | 5 C1 | 66 1 | 70 1 | 0 VERTEX | 8 other | 10 0 | 20 0 | 0 VERTEX | 10 4 | 20 0 |"
      "0 VERTEX | 10 4 | 20 3 | 0 SEQEND | 0 LINE | 8 0 | 11 1");
  EXPECT_THAT(GeometryOf(drawing), IsBits("L 0,0 4,0; L 4,0 4,3; L 4,3 0,0; L 0,0 1,0"));
  EXPECT_EQ(drawing.entities.at(2).layer, "slot");
  EXPECT_EQ(drawing.entities.at(2).handle, "C1");
  EXPECT_EQ(drawing.entities.at(2).type, "POLYLINE");
  EXPECT_TRUE(drawing.skipped.empty());
}

TEST(ReadPolyline, PositiveBulgeRunsAnticlockwiseAndNegativeIsStoredFromItsEnd) {
  EXPECT_THAT(GeometryOf(ReadEntities("0 LWPOLYLINE | 10 2 | 20 0 | 42 1 | 10 0 | 20 0")),
              IsNear("A c 1,0 r 1 0..180 from 2,0 to 0,0", kNear));
  EXPECT_THAT(GeometryOf(ReadEntities("0 LWPOLYLINE | 10 2 | 20 0 | 42 -1 | 10 0 | 20 0")),
              IsNear("A c 1,0 r 1 180..0 from 0,0 to 2,0", kNear));
}

TEST(ReadPolyline, BulgeIsTheTangentOfAQuarterOfTheSweep) {
  const double bulge = std::tan(std::numbers::pi / 8);
  const Drawing drawing = ReadEntities("0 LWPOLYLINE | 10 3 | 20 0 | 42 " + std::to_string(bulge) + " | 10 0 | 20 3");
  ASSERT_EQ(drawing.entities.size(), 1U);
  const TDXFEntity& arc = drawing.entities[0].geometry;
  EXPECT_NEAR(arc.ArcSweep(), 90, 1e-3);  // six digits of the bulge
  EXPECT_THAT(arc.CentreCoords, IsNear(0, 0, 1e-4));
}

TEST(ReadPolyline, EndsOfABulgeAreTheVerticesBitForBit) {
  const Drawing drawing = ReadEntities(
      "0 LWPOLYLINE | 70 1 | 10 0.1 | 20 1e-7 | 42 0.3 | 10 123.456789012345678 | 20 -2e-9 | 42 -0.7 | 10 50 | 20 77.7 "
      "|"
      "42 1.9");
  ASSERT_EQ(drawing.entities.size(), 4U);
  const auto geometry = GeometryOf(drawing);
  EXPECT_THAT(geometry[0].StartCoords, IsBits(0.1, 1e-7));
  EXPECT_THAT(geometry[0].EndCoords, IsBits(123.456789012345678, -2e-9));
  EXPECT_THAT(geometry[1].StartCoords, IsBits(50, 77.7));  // clockwise, so stored from its end
  EXPECT_THAT(geometry[1].EndCoords, IsBits(123.456789012345678, -2e-9));
  EXPECT_THAT(geometry[2].StartCoords, IsBits(50, 77.7));
  EXPECT_THAT(geometry[2].EndCoords, IsBits(geometry[3].StartCoords));
  EXPECT_THAT(geometry[3].EndCoords, IsBits(0.1, 1e-7));
}

TEST(ReadPolyline, BulgeOfMoreThanAHalfCircleBecomesTwoEqualArcs) {
  // Three quarters of a circle round (0, 0) from (1, 0) to (0, -1).
  const std::string bulge = "2.414213562373095";
  const auto arcs = GeometryOf(ReadEntities("0 LWPOLYLINE | 10 1 | 42 " + bulge + " | 10 0 | 20 -1"));
  ASSERT_EQ(arcs.size(), 2U);
  EXPECT_NEAR(arcs[0].ArcSweep(), 135, 1e-9);
  EXPECT_NEAR(arcs[1].ArcSweep(), 135, 1e-9);
  EXPECT_THAT(arcs[0].CentreCoords, IsNear(0, 0, kNear));
  EXPECT_THAT(arcs[0].EndCoords, IsNear(-std::sqrt(0.5), std::sqrt(0.5), kNear));
  EXPECT_THAT(arcs[0].EndCoords, IsBits(arcs[1].StartCoords));
}

TEST(ReadPolyline, BulgeThatIsNoMoreThanRoundingIsALine) {
  EXPECT_THAT(GeometryOf(ReadEntities("0 LWPOLYLINE | 10 0 | 42 1e-17 | 10 4 | 42 -1e-12 | 20 0 | 10 4 | 20 3")),
              IsBits("L 0,0 4,0; L 4,0 4,3"));
}

TEST(ReadPolyline, RepeatedVerticesAreOne) {
  EXPECT_THAT(GeometryOf(ReadEntities("0 LWPOLYLINE | 70 1 | 10 0 | 20 0 | 10 4 | 20 0 | 42 5 | 10 4 | 20 0 | 10 4 |"
                                      "20 3 | 10 0 | 20 0")),
              IsBits("L 0,0 4,0; L 4,0 4,3; L 4,3 0,0"));
}

TEST(ReadPolyline, TwoBulgesMakeACircle) {
  EXPECT_THAT(GeometryOf(ReadEntities("0 LWPOLYLINE | 70 1 | 10 1 | 42 1 | 10 -1 | 42 1")),
              IsNear("A c 0,0 r 1 0..180 from 1,0 to -1,0; A c 0,0 r 1 180..0 from -1,0 to 1,0", kNear));
}

TEST(ReadPolyline, TooFewVerticesAreSkipped) {
  const Drawing drawing = ReadEntities(
      "0 LWPOLYLINE | 90 0 | 0 LWPOLYLINE | 10 1 | 20 1 | 0 LWPOLYLINE | 10 1 | 10 1 | 0 POLYLINE | 66 1 | 0 SEQEND");
  EXPECT_EQ(SkippedCount(drawing, "LWPOLYLINE", "0", "it has fewer than two different vertices"), 3U);
  EXPECT_EQ(SkippedCount(drawing, "POLYLINE", "0", "it has fewer than two different vertices"), 1U);
  EXPECT_TRUE(drawing.entities.empty());
}

TEST(ReadPolyline, StatedCountOfVerticesIsNotBelieved) {
  for (const char* count : {"2147483647", "-5", "0", "1", "99999999999"}) {
    EXPECT_THAT(GeometryOf(ReadEntities(std::string("0 LWPOLYLINE | 90 ") + count + " | 10 1 | 20 2 | 10 3 | 20 4")),
                IsBits("L 1,2 3,4"))
        << count;
  }
}

TEST(ReadPolyline, BulgesThatLeaveTheRangeOfNumbersAreSkipped) {
  for (const char* bulge : {"1e300", "-1e300", "1.7e308", "1e160"}) {
    const Drawing drawing = ReadEntities(std::string("0 LWPOLYLINE | 10 0 | 42 ") + bulge + " | 10 4 | 20 3 | 10 9");
    EXPECT_EQ(SkippedCount(drawing, "LWPOLYLINE", "0", "its coordinates are out of range"), 1U) << bulge;
    EXPECT_THAT(GeometryOf(drawing), IsBits("L 4,3 9,0")) << bulge;
  }
}

TEST(ReadPolyline, OfManyVerticesHasThemAll) {
  const int count = GeometryEngine::support::Repetitions(10'000);
  std::string vertices = "0 LWPOLYLINE";
  for (int i = 0; i < count; ++i) vertices += "|10 " + std::to_string(i) + "|20 " + std::to_string(i % 2);
  const Drawing drawing = ReadEntities(vertices);
  ASSERT_EQ(drawing.entities.size(), static_cast<std::size_t>(count - 1));
  EXPECT_EQ(drawing.entities.back().geometry.EndCoords.x, count - 1);
}

TEST(ReadPolyline, VerticesDoNotLeakIntoTheNextOne) {
  EXPECT_THAT(
      GeometryOf(ReadEntities("0 LWPOLYLINE | 90 3 | 10 1 | 42 1 | 10 2 | 42 1 | 10 3 | 0 LWPOLYLINE | 10 5 |"
                              "10 6")),
      IsNear("A c 1.5,0 r 0.5 180..0 from 1,0 to 2,0; A c 2.5,0 r 0.5 180..0 from 2,0 to 3,0; L 5,0 6,0", kNear));
}

TEST(ReadPolyline, MeshesAreSkippedWithTheirVertices) {
  const Drawing drawing = ReadEntities(
      "0 POLYLINE | 8 body | 70 64 | 0 VERTEX | 70 192 | 10 1 | 0 VERTEX | 70 128 | 71 1 | 0 SEQEND |"
      "0 POLYLINE | 8 body | 70 16 | 0 VERTEX | 10 1 | 0 VERTEX | 10 2 | 0 SEQEND");
  EXPECT_EQ(SkippedCount(drawing, "POLYLINE", "body", "it is a mesh"), 2U);
  EXPECT_EQ(drawing.skipped.size(), 1U);
  EXPECT_TRUE(drawing.entities.empty());
}

TEST(ReadPolyline, PointsOfASplineFrameAreNotOnTheCurve) {
  EXPECT_THAT(GeometryOf(ReadEntities("0 POLYLINE | 70 4 | 0 VERTEX | 70 16 | 10 50 | 20 50 | 0 VERTEX | 70 8 | 10 0 |"
                                      "0 VERTEX | 70 8 | 10 1 | 20 1 | 0 SEQEND")),
              IsBits("L 0,0 1,1"));
}

TEST(ReadPolyline, VertexWithoutAPolylineIsSkipped) {
  const Drawing drawing =
      ReadEntities("0 VERTEX | 8 a | 10 1 | 0 LINE | 11 1 | 0 VERTEX | 8 a | 10 2 | 0 VERTEX | 8 a");
  EXPECT_EQ(SkippedCount(drawing, "VERTEX", "a", "it belongs to no polyline"), 3U);
  EXPECT_THAT(GeometryOf(drawing), IsBits("L 0,0 1,0"));
}

TEST(ReadPolyline, ExtrusionAlongMinusZMirrorsVerticesAndBulges) {
  EXPECT_THAT(GeometryOf(ReadEntities("0 LWPOLYLINE | 10 2 | 20 0 | 42 1 | 10 0 | 20 0 | 230 -1")),
              IsNear("A c -1,0 r 1 0..180 from 0,0 to -2,0", kNear));
}

TEST(ReadPolyline, PolylineInSpaceStandsInTheDrawingsOwnAxes) {
  const Drawing drawing = ReadEntities(
      "0 POLYLINE | 70 8 | 230 -1 | 0 VERTEX | 70 32 | 10 1 | 30 2 | 0 VERTEX | 70 32 | 10 9 | 30 3 | 0 SEQEND");
  EXPECT_THAT(GeometryOf(drawing), IsBits("L 1,0 9,0"));
  EXPECT_THAT(drawing.warnings, ::testing::Contains(::testing::HasSubstr("differ in z: 1")));
}

}  // namespace
}  // namespace xsec
