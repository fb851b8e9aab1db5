// The library against its plain twin (tests/reference/plain): the same answers, to the last bit, on random drawings of
// every kind under every setting.
//
// TWIN_DRAWINGS, TWIN_CHAINS and TWIN_FIRST_SEED in the environment ask for other drawings than those of every run;
// tools/plain_twin uses them for long runs.

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <iostream>
#include <string>

#include "tests/properties/TwinChain.h"
#include "tests/properties/TwinDetection.h"
#include "tests/support/Settings.h"

namespace GeometryEngine::properties {
namespace {

constexpr unsigned long kDrawings = 10'000;
constexpr unsigned long kChains = 1'000;
constexpr std::size_t kShownCounts = 16;  // the last one stands for all that are larger

unsigned long FromEnvironment(const char* aName, unsigned long aOtherwise) {
  const char* const value = std::getenv(aName);
  return value == nullptr ? aOtherwise : std::stoul(value);
}

/// How many drawings had so many regions.
class RegionCounts {
 public:
  void Count(TIndex aRegions) { ++fCounts[std::min(static_cast<std::size_t>(aRegions), kShownCounts - 1)]; }

  unsigned long WithAtLeast(std::size_t aRegions) const {
    unsigned long drawings = 0;
    for (std::size_t i = aRegions; i < fCounts.size(); ++i) drawings += fCounts[i];
    return drawings;
  }
  void Print() const {
    std::cout << "regions:";
    for (std::size_t i = 0; i < fCounts.size(); ++i) std::cout << ' ' << i << ": " << fCounts[i] << ';';
    std::cout << " the last count is of " << kShownCounts - 1 << " and more\n";
  }

 private:
  std::array<unsigned long, kShownCounts> fCounts{};
};

}  // namespace

TEST(PlainTwin, AgreesOnRandomDrawings) {
  const support::TSettingsGuard settings;
  const unsigned long first = FromEnvironment("TWIN_FIRST_SEED", 1);
  const unsigned long drawings = FromEnvironment("TWIN_DRAWINGS", kDrawings);
  RegionCounts counts;
  std::size_t answers = 0;
  unsigned long unlabelled = 0;
  for (unsigned long seed = first; seed < first + drawings; ++seed) {
    const TwinDrawing drawing = MakeTwinDrawing(static_cast<std::uint32_t>(seed));
    TwinDetection<TLibrary> library(drawing);
    TwinDetection<TPlain> plain(drawing);
    const TwinRecord answer = library.Run();
    ASSERT_EQ(answer.FirstDifference(plain.Run()), "") << ToText(drawing);
    counts.Count(plain.Regions());
    EXPECT_EQ(library.Unlabelled(), plain.Unlabelled()) << ToText(drawing);
    unlabelled += plain.Unlabelled();
    answers += answer.Size();
  }
  counts.Print();
  std::cout << drawings << " drawings from seed " << first << ", " << answers << " answers compared\n"
            << unlabelled << " requests for all labels left out, of outlines with too many chords for the twin\n";
  EXPECT_GE(2 * counts.WithAtLeast(3), drawings);
  EXPECT_LE(1000 * unlabelled, drawings + 999);
}

TEST(PlainTwin, AgreesOnRandomChains) {
  const support::TSettingsGuard settings;
  const unsigned long first = FromEnvironment("TWIN_FIRST_SEED", 1);
  const unsigned long chains = FromEnvironment("TWIN_CHAINS", kChains);
  std::size_t answers = 0;
  unsigned long leftOut = 0;
  for (unsigned long seed = first; seed < first + chains; ++seed) {
    const TwinDrawing chain = MakeTwinChain(static_cast<std::uint32_t>(seed));
    TwinChain<TLibrary> library(chain);
    TwinChain<TPlain> plain(chain);
    const TwinRecord answer = library.Run();
    ASSERT_EQ(answer.FirstDifference(plain.Run()), "") << ToText(chain);
    EXPECT_EQ(library.OffsetsLeftOut(), plain.OffsetsLeftOut()) << ToText(chain);
    leftOut += plain.OffsetsLeftOut();
    answers += answer.Size();
  }
  std::cout << chains << " chains from seed " << first << ", " << answers << " answers compared\n"
            << leftOut << " offsets left out, of outlines with too many points for the twin\n";
  EXPECT_LE(100 * leftOut, chains + 99);
}

}  // namespace GeometryEngine::properties
