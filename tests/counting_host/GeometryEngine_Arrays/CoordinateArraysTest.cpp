#include "GeometryEngine/GeometryEngine_Arrays/CoordinateArrays.h"

#include <cstddef>

#include <gtest/gtest.h>

#include "GeometryEngine/host/TDataStore.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using Kelvaralinks::dataStore;
using support::TSettingsGuard;
using enum Maindataenum::TInputFields;

// A pair of coordinates costs one reading when x differs and two when it does not.
TEST(IsCoordinateInArray, LooksAtEveryElementWhereContainsStopsAtTheFirst) {
  const TCoordinateArray array = support::ParseCoordinates("1,1 2,2 3,3 4,4");
  const TSettingsGuard settings;
  EXPECT_TRUE(IsCoordinateInArray(array, {1, 1}));
  EXPECT_EQ(dataStore.Reads(ifLinearTolerance), std::size_t{5});
  dataStore.ForgetReads();
  EXPECT_TRUE(Contains(array, {1, 1}));
  EXPECT_EQ(dataStore.Reads(ifLinearTolerance), std::size_t{2});
}

}  // namespace
}  // namespace GeometryEngine
