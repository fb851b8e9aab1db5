// What takes many repetitions to show: a hundredth of them in every run, all with tools/reliability.

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "GeometryEngine/GeometryEngine.h"
#include "tests/reference/RecursiveLomuto.h"
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

std::vector<double> KeysOf(const TInput& aInput, int aCount) {
  std::vector<double> keys;
  for (int i = 0; i < aCount; ++i) keys.push_back(aInput.keyOf(i, aCount));
  return keys;
}

void ExpectSorted(const char* aName, const std::vector<double>& aKeys) {
  TEntityStorage drawing;
  for (const double key : aKeys) drawing.AddEntity(TDXFEntity::Line({key, 0}, {1e10, 1}));
  RunWithStack(kSmallStack, [&] { drawing.QuickSortArray(0, drawing.GetCount() - 1); });
  const TEntityArray& entities = drawing.EntityArray();
  for (std::size_t i = 1; i < entities.size(); ++i) {
    ASSERT_LE(entities[i - 1].StartCoords.x, entities[i].StartCoords.x) << aName << " at " << i;
  }
  EXPECT_EQ(entities.size(), aKeys.size());
}

}  // namespace

TEST(LongRun, AMillionEntitiesAreSortedOnAStackOf64KiBInWhateverOrderTheyCome) {
  const int count = Repetitions(10'000);
  for (const TInput& input : kInputs) ExpectSorted(input.name, KeysOf(input, count));
  ExpectSorted("killer", reference::MakeKillerKeys(static_cast<std::size_t>(count)));
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
