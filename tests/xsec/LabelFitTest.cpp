#include "xsec/output/LabelFit.h"

#include <gmock/gmock.h>

#include "tests/support/Geometry.h"
#include "tests/xsec/Drawings.h"
#include "xsec/RegionSpaces.h"

namespace xsec {
namespace {

constexpr std::size_t kFiveCharacters = 5;
constexpr FontSizes kSizes{0.1, 2};

/// A plate of 40 by 10 mm with its label somewhere.
Region PlateLabelledAt(const Point& label) {
  Region plate = Detect(Rectangle(0, 0, 40, 10)).regions[0];
  plate.label = label;
  plate.clearance = Clearance(SpaceOf(plate), label);
  return plate;
}

TEST(FitLabel, IsLimitedByTheNearerSideOfTheText) {
  const Region plate = PlateLabelledAt({10, 1});
  const LabelFit fit = FitLabel(SpaceOf(plate), plate.label, kFiveCharacters, 99);
  EXPECT_FALSE(fit.upright);
  EXPECT_NEAR(fit.size, 0.85 * 2, 1e-12);
}

TEST(FitName, StaysAtALabelWithRoom) {
  for (const Point& label : {Point{10, 5}, Point{6, 4}}) {
    const LabelFit fit = FitName(PlateLabelledAt(label), kFiveCharacters, kSizes).value();
    EXPECT_THAT(fit.at, GeometryEngine::support::IsBits(label.x, label.y));
    EXPECT_EQ(fit.size, kSizes.most);
  }
}

TEST(FitName, GoesWhereThereIsMoreRoomWhenTheLabelHugsTheBoundary) {
  const LabelFit fit = FitName(PlateLabelledAt({10, 0.2}), kFiveCharacters, kSizes).value();
  EXPECT_THAT(fit.at, GeometryEngine::support::IsNear(20, 5, 1e-9));
  EXPECT_EQ(fit.size, kSizes.most);
}

TEST(FitName, StaysWhereALittleMoreRoomIsToBeHad) {
  const LabelFit fit = FitName(PlateLabelledAt({10, 1}), kFiveCharacters, kSizes).value();
  EXPECT_THAT(fit.at, GeometryEngine::support::IsBits(10, 1));
  EXPECT_NEAR(fit.size, 0.85 * 2, 1e-12);
}

TEST(FitName, OfARegionWithoutRoomForTheLeastSizeIsNone) {
  const Region plate = PlateLabelledAt({20, 5});
  EXPECT_TRUE(FitName(plate, kFiveCharacters, {8, 12}).has_value());
  EXPECT_FALSE(FitName(plate, kFiveCharacters, {9, 12}).has_value());
  EXPECT_FALSE(FitName(plate, kFiveCharacters, {99, 99}).has_value());
}

TEST(FitName, KeepsClearOfHoles) {
  Region plate = Detect(Rectangle(0, 0, 20, 10) + Rectangle(1, 1, 12, 9)).regions[0];
  plate.label = {0.5, 5};
  plate.clearance = 0.5;
  const LabelFit fit = FitName(plate, kFiveCharacters, kSizes).value();
  EXPECT_NEAR(fit.at.x, 16, 1e-9);
  EXPECT_EQ(fit.size, kSizes.most);
}

}  // namespace
}  // namespace xsec
