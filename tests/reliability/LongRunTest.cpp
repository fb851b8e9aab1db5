// What takes many repetitions to show: a hundredth of them in every run, all with tools/reliability.

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "GeometryEngine/GeometryEngine.h"
#include "tests/support/Repetitions.h"
#include "tests/support/RunWithStack.h"

using namespace GeometryEngine;
using support::Repetitions;
using support::RunWithStack;

namespace {

constexpr std::size_t kSmallStack = 64 * 1024;  // bytes

using TKeyOf = double (*)(int aPlace, int aCount);

struct TInput {
  const char* name;
  TKeyOf keyOf;
};

constexpr TInput kInputs[] = {
    {"sorted", [](int i, int) { return static_cast<double>(i); }},
    {"reversed", [](int i, int aCount) { return static_cast<double>(aCount - i); }},
    {"equal", [](int, int) { return 1.0; }},
    {"saw teeth", [](int i, int) { return static_cast<double>(i % 1000); }},
    {"up and down", [](int i, int aCount) { return static_cast<double>(std::min(i, aCount - i)); }},
    {"sorted but the last", [](int i, int aCount) { return i == aCount - 1 ? -1.0 : i; }},
    {"shuffled", [](int i, int) { return static_cast<double>(static_cast<std::uint32_t>(i) * 2654435761U); }},
};

void ExpectSorted(const TInput& aInput, int aCount) {
  TEntityStorage drawing;
  for (int i = 0; i < aCount; ++i) {
    drawing.AddEntity(TDXFEntity::Line({aInput.keyOf(i, aCount), 0}, {1e10, 1}));
  }
  RunWithStack(kSmallStack, [&] { drawing.QuickSortArray(0, aCount - 1); });
  const TEntityArray& entities = drawing.EntityArray();
  for (std::size_t i = 1; i < entities.size(); ++i) {
    ASSERT_LE(entities[i - 1].StartCoords.x, entities[i].StartCoords.x) << aInput.name << " at " << i;
  }
  EXPECT_EQ(drawing.GetCount(), aCount);
}

}  // namespace

TEST(LongRun, AMillionEntitiesAreSortedOnAStackOf64KiBInWhateverOrderTheyCome) {
  for (const TInput& input : kInputs) ExpectSorted(input, Repetitions(10'000));
}

// Any bits at all: numbers of every size, not-a-numbers and infinities among them.
TEST(LongRun, AHundredMillionAnglesComeIntoTheirRange) {
  std::mt19937_64 random(20240607);
  std::int64_t outside = 0;
  for (int i = Repetitions(1'000'000); i > 0; --i) {
    const auto value = std::bit_cast<double>(random());
    const double angle = GetAngleInRange(value, 0, 360);
    const bool isRight = std::isfinite(value) ? angle >= 0 && angle < 360 : std::isnan(angle);
    if (!isRight) ++outside;
  }
  EXPECT_EQ(outside, 0);
}
