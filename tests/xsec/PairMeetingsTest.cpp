#include "xsec/prepare/PairMeetings.h"

#include <cmath>
#include <cstddef>
#include <vector>

#include <gmock/gmock.h>

#include "GeometryEngine/host/Numerics.h"
#include "tests/support/Settings.h"
#include "xsec/Settings.h"
#include "xsec/prepare/Curves.h"

namespace xsec {
namespace {

using GeometryEngine::TDXFEntity;

Point OnCircle(double radius, double degrees) {
  const double radians = degrees * GeometryEngine::kRadiansPerDegree;
  return {radius * std::cos(radians), radius * std::sin(radians)};
}

/// As a drawing writes it: so many figures after the point.
double Written(double value, double figures) {
  const double scale = std::pow(10, figures);
  return std::round(value * scale) / scale;
}

Point Written(const Point& point, double figures) {
  return {Written(point.x, figures), Written(point.y, figures)};
}

class PairMeetings : public testing::TestWithParam<double> {
 protected:
  void SetUp() override {
    SettingsRequest request;
    request.tolerance = 1e-4;
    ApplySettings(request, {});
  }

 private:
  const GeometryEngine::support::TSettingsGuard fGuard;
};

/// The sides of slots, and the arcs between them that end at such a side.
TEST_P(PairMeetings, ArcThatEndsAtALineTowardsItsCentreMeetsItInEveryDirection) {
  constexpr double kStep = 0.09;  // degrees
  std::vector<double> missed;
  for (double side = 0; side < 360; side += kStep) {
    const auto line =
        TDXFEntity::Line(Written(OnCircle(100, side), GetParam()), Written(OnCircle(120, side), GetParam()));
    for (const double other : {-1, 1}) {
      const double from = Written(std::fmod(side + std::min(other, 0.0) + 360, 360), GetParam());
      const double to = Written(std::fmod(side + std::max(other, 0.0) + 360, 360), GetParam());
      const auto arc = TDXFEntity::Arc(OnCircle(110, from), OnCircle(110, to), {0, 0}, 110, from, to);
      if (MeetingsOf(line, arc).size() != 1 || MeetingsOf(arc, line).size() != 1) missed.push_back(side);
    }
  }
  EXPECT_THAT(missed, testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(FiguresAfterThePoint, PairMeetings, testing::Values(6, 8, 12, 15));

}  // namespace
}  // namespace xsec
