#include "GeometryEngine/DXF_SweepLine_Utilities/detail/CircleTouching.h"

#include <gtest/gtest.h>

#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {

using detail::AreCirclesTouching;
using support::ParseEntity;

TEST(AreCirclesTouching, FromOutsideAndFromInsideWithinTheTolerance) {
  const support::TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 0,0 r 5 0..90");
  EXPECT_TRUE(AreCirclesTouching(arc, ParseEntity("A c 7.00009,0 r 2 0..90")));
  EXPECT_FALSE(AreCirclesTouching(arc, ParseEntity("A c 7.0002,0 r 2 0..90")));
  EXPECT_TRUE(AreCirclesTouching(arc, ParseEntity("A c 0,3.00009 r 2 0..90")));
  EXPECT_FALSE(AreCirclesTouching(arc, ParseEntity("A c 0,3.0002 r 2 0..90")));
}

TEST(AreCirclesTouching, OnesAboutOneCentreNever) {
  const support::TSettingsGuard settings;
  EXPECT_FALSE(AreCirclesTouching(ParseEntity("A c 1,2 r 5 0..90"), ParseEntity("A c 1,2 r 5 0..90")));
  EXPECT_FALSE(AreCirclesTouching(ParseEntity("A c 1,2 r 5 0..90"), ParseEntity("A c 1,2 r 5.00005 0..90")));
}

}  // namespace GeometryEngine
