#include "GeometryEngine/DXF_Regions_Detection/detail/TRightEnds.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <random>
#include <set>
#include <vector>

namespace GeometryEngine {

using detail::TRightEnds;

TEST(TRightEnds, GivesTheLeastOfWhatIsThere) {
  std::mt19937 random(1);
  for (int most = 1; most <= 40; ++most) {
    TRightEnds ends;
    std::multiset<double> expected;
    std::vector<double> rights;  // by entity
    for (int step = 0; step < 500; ++step) {
      const bool isFull = static_cast<int>(expected.size()) == most;
      if (!isFull && (expected.empty() || random() % 2 == 0)) {
        rights.push_back(static_cast<double>(random() % 20));  // many of them equal
        ends.Add(rights.back(), static_cast<TIndex>(rights.size() - 1));
        expected.insert(rights.back());
        continue;
      }
      ASSERT_EQ(ends.Least(), *expected.begin()) << "most " << most << " step " << step;
      double& taken = rights[static_cast<std::size_t>(ends.TakeLeast())];
      ASSERT_EQ(taken, *expected.begin()) << "most " << most << " step " << step;
      taken = -1;  // and is never taken again
      expected.erase(expected.begin());
      ASSERT_EQ(ends.IsEmpty(), expected.empty());
    }
  }
}

TEST(TRightEnds, TakesInfinitiesLikeNumbers) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  TRightEnds ends;
  ends.Add(kInfinity, 0);
  ends.Add(1, 1);
  ends.Add(-kInfinity, 2);
  EXPECT_EQ(ends.TakeLeast(), 2);
  EXPECT_EQ(ends.TakeLeast(), 1);
  EXPECT_EQ(ends.TakeLeast(), 0);
  EXPECT_TRUE(ends.IsEmpty());
}

}  // namespace GeometryEngine
