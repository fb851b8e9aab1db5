// The tolerance that is named for a near miss closes it: tried by detecting with it.
#include <gmock/gmock.h>

#include <cmath>
#include <random>

#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"
#include "GeometryEngine/host/Numerics.h"
#include "tests/support/Settings.h"
#include "tests/xsec/Drawings.h"
#include "xsec/DrawingExtents.h"
#include "xsec/RegionDetection.h"
#include "xsec/check/Findings.h"

namespace xsec {
namespace {

using GeometryEngine::TDXFEntity;

Findings FindingsOf(Drawing drawing) {
  drawing.extents = ExtentsOf(drawing.entities);
  const Settings settings = ApplySettings({}, drawing);
  const Detection detection = DetectRegions(drawing, settings);
  Findings findings = FindFaults(drawing, settings, detection);
  ClimbLadder(drawing, {}, detection, findings);
  return findings;
}

/// A frame in which the side runs along the x axis through the origin.
class Frame {
 public:
  explicit Frame(double degrees)
      : fCosine(std::cos(degrees * GeometryEngine::kRadiansPerDegree)),
        fSine(std::sin(degrees * GeometryEngine::kRadiansPerDegree)) {}

  Point operator()(double x, double y) const { return {fCosine * x - fSine * y, fSine * x + fCosine * y}; }
  TDXFEntity Line(double x1, double y1, double x2, double y2) const {
    return TDXFEntity::Line((*this)(x1, y1), (*this)(x2, y2));
  }
  TDXFEntity Arc(double x, double y, double x1, double y1, double x2, double y2) const {
    const Point centre = (*this)(x, y), start = (*this)(x1, y1), end = (*this)(x2, y2);
    return GeometryEngine::CreateEntity_Arc_StartEnd(centre.x, centre.y, start.x, start.y, end.x, end.y);
  }

 private:
  double fCosine;
  double fSine;
};

/// A box whose upper side is a line or an arc, and a line or an arc that ends a little above the middle of that.
Drawing BoxWithEndAbove(const Frame& frame, bool isSideArc, bool isOwnArc, double gap, double direction) {
  constexpr double kFurther = 20;
  const double top = isSideArc ? 10 : 0;  // the arc through (-30, 0), (0, 10), (30, 0) has its centre at (0, -40)
  const double x = std::cos(direction * GeometryEngine::kRadiansPerDegree);
  const double y = std::sin(direction * GeometryEngine::kRadiansPerDegree);
  Drawing drawing;
  const auto add = [&](const TDXFEntity& entity) {
    drawing.entities.emplace_back();
    drawing.entities.back().geometry = entity;
  };
  add(frame.Line(-30, 0, -30, -20));
  add(frame.Line(-30, -20, 30, -20));
  add(frame.Line(30, -20, 30, 0));
  add(isSideArc ? frame.Arc(0, -40, 30, 0, -30, 0) : frame.Line(30, 0, -30, 0));
  // Half a circle that leaves its end in the direction, or a line that does.
  add(isOwnArc ? frame.Arc(-y * kFurther, top + gap + x * kFurther, 0, top + gap, -2 * y * kFurther,
                           top + gap + 2 * x * kFurther)
               : frame.Line(0, top + gap, x * kFurther, top + gap + y * kFurther));
  return drawing;
}

/// The library holds arcs against lines by their angles, to which the linear tolerance is nothing.
TEST(FindNearMisses, ToleranceOfAnEndNearASideClosesItButForArcsAtLinesAndThatIsTold) {
  const GeometryEngine::support::TSettingsGuard guard;
  std::mt19937 random(6);
  std::uniform_real_distribution<double> turn(0, 360), direction(20, 160), magnitude(-3, -1.5);
  for (int i = 0; i < 40; ++i) {
    const Frame frame(turn(random));
    const double gap = std::pow(10, magnitude(random));
    const bool isSideArc = i % 2 == 1;
    const bool isOwnArc = i % 4 >= 2;
    const Findings findings = FindingsOf(BoxWithEndAbove(frame, isSideArc, isOwnArc, gap, direction(random)));
    ASSERT_GE(findings.nearMisses.size(), 1U) << i;
    const NearMiss& miss = findings.nearMisses.front();
    EXPECT_FALSE(miss.isEnd) << i;
    EXPECT_GE(miss.gap, gap * 0.999) << i;
    EXPECT_LT(miss.gap, 4 * gap) << i;
    EXPECT_EQ(miss.closes, !(isOwnArc && !isSideArc)) << i;
  }
}

TEST(FindNearMisses, EndThatRunsAlongASideIsToldAsStayingOpen) {
  const GeometryEngine::support::TSettingsGuard guard;
  const Frame frame(33);
  Drawing drawing = BoxWithEndAbove(frame, false, false, 0.01, 0);
  const Findings findings = FindingsOf(drawing);
  ASSERT_GE(findings.nearMisses.size(), 1U);
  EXPECT_EQ(findings.nearMisses.front().closes, false);
}

}  // namespace
}  // namespace xsec
