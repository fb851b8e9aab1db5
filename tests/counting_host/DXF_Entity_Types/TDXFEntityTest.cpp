#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"

#include <cstddef>

#include <gtest/gtest.h>

#include "GeometryEngine/host/TDataStore.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using Kelvaralinks::dataStore;
using support::ParseEntity;
using support::TSettingsGuard;
using enum Maindataenum::TInputFields;

// The readings of the linear tolerance that one comparison for equality takes; it reads nothing else.
template <typename TRecord>
std::size_t ReadsOfEquality(const TRecord& aLeft, const TRecord& aRight, bool aEqual) {
  dataStore.ForgetReads();
  EXPECT_EQ(aLeft == aRight, aEqual);
  const std::size_t reads = dataStore.Reads(ifLinearTolerance);
  EXPECT_EQ(dataStore.AllReads().size(), reads == 0 ? 0U : 1U);
  EXPECT_EQ(aLeft != aRight, !aEqual);
  EXPECT_EQ(dataStore.Reads(ifLinearTolerance), 2 * reads);
  return reads;
}

std::size_t ReadsOfEquality(const char* aLeft, const char* aRight, bool aEqual) {
  return ReadsOfEquality(ParseEntity(aLeft), ParseEntity(aRight), aEqual);
}

struct TEqualityCountedTest : ::testing::Test {
  TSettingsGuard settings;
};

TEST_F(TEqualityCountedTest, YIsNotTestedWhenXDiffers) {
  EXPECT_EQ(ReadsOfEquality(TEntityCoordinate{0, 0}, TEntityCoordinate{1, 0}, false), 1U);
  EXPECT_EQ(ReadsOfEquality(TEntityCoordinate{0, 0}, TEntityCoordinate{0, 1}, false), 2U);
  EXPECT_EQ(ReadsOfEquality(TEntityCoordinate{0, 0}, TEntityCoordinate{0, 0}, true), 2U);
}

TEST_F(TEqualityCountedTest, PointsOfSpaceStopAtTheFirstDifference) {
  EXPECT_EQ(ReadsOfEquality(TCoordinate_3D{0, 0, 0}, TCoordinate_3D{1, 0, 0}, false), 1U);
  EXPECT_EQ(ReadsOfEquality(TCoordinate_3D{0, 0, 0}, TCoordinate_3D{0, 1, 0}, false), 2U);
  EXPECT_EQ(ReadsOfEquality(TCoordinate_3D{0, 0, 0}, TCoordinate_3D{0, 0, 1}, false), 3U);
}

TEST_F(TEqualityCountedTest, LinesTryTheGivenDirectionFirst) {
  EXPECT_EQ(ReadsOfEquality("L 0,0 4,1", "L 0,0 4,1", true), 4U);
  EXPECT_EQ(ReadsOfEquality("L 0,0 4,1", "L 4,1 0,0", true), 5U);
}

TEST_F(TEqualityCountedTest, RadiiAreComparedTwiceKept) {
  const char* const arc = "A c 0,0 r 4 0..90 from 4,0 to 0,4";
  // Two for each of three points, two for the radius, one for each angle.
  EXPECT_EQ(ReadsOfEquality(arc, arc, true), 10U);
  EXPECT_EQ(ReadsOfEquality(arc, "A c 0,0 r 5 0..90 from 4,0 to 0,4", false), 7U);
  EXPECT_EQ(ReadsOfEquality(arc, "A c 0,0 r 4 1..90 from 4,0 to 0,4", false), 9U);
}

TEST_F(TEqualityCountedTest, ArcsCompareEndsThenCentreThenRadiusThenAngles) {
  const char* const arc = "A c 0,0 r 4 0..90 from 4,0 to 0,4";
  EXPECT_EQ(ReadsOfEquality(arc, "A c 1,0 r 5 1..91 from 5,0 to 0,4", false), 1U);
  EXPECT_EQ(ReadsOfEquality(arc, "A c 1,0 r 5 1..91 from 4,0 to 0,5", false), 4U);
  EXPECT_EQ(ReadsOfEquality(arc, "A c 1,0 r 5 1..91 from 4,0 to 0,4", false), 5U);
}

TEST_F(TEqualityCountedTest, KindsAreComparedWithoutAReading) {
  EXPECT_EQ(ReadsOfEquality("L 4,0 0,4", "A c 0,0 r 4 0..90", false), 0U);
  EXPECT_EQ(ReadsOfEquality("R", "R", false), 0U);
  EXPECT_EQ(ReadsOfEquality("N", "N", false), 0U);
}

TEST_F(TEqualityCountedTest, AFailureOfTheStoreComesThrough) {
  dataStore.FailAfter(ifLinearTolerance, 3);
  const TDXFEntity line = ParseEntity("L 0,0 4,1");
  EXPECT_THROW(static_cast<void>(line == line), Kelvaralinks::TStoreFailure);
  dataStore.Reset();
  EXPECT_TRUE(line == line);
}

}  // namespace
}  // namespace GeometryEngine
