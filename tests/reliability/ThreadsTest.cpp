// Sixteen threads, each with objects of its own, find what one finds.

#include <atomic>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "tests/everything/Scenarios.h"
#include "tests/reliability/ScenarioNames.h"
#include "tests/support/Repetitions.h"

namespace {

constexpr std::size_t kThreads = 16;

std::vector<everything::TScenario> Every() {
  std::vector<everything::TScenario> all = everything::Scenarios();
  for (const everything::TScenario& scenario : everything::DrawingScenarios()) all.push_back(scenario);
  return all;
}

}  // namespace

TEST(Threads, WithObjectsOfTheirOwnFindWhatOneThreadFinds) {
  const std::vector<everything::TScenario> all = Every();
  std::vector<std::uint64_t> expected;
  for (const everything::TScenario& scenario : all) expected.push_back(everything::HashOf(scenario));
  const int rounds = GeometryEngine::support::Repetitions(1);
  std::atomic<int> differences{0};
  const auto run = [&](std::size_t first) {
    for (std::size_t i = 0; i < all.size() * static_cast<std::size_t>(rounds); ++i) {
      const std::size_t place = (first + i) % all.size();  // no two threads at the same one
      if (everything::HashOf(all[place]) != expected[place]) ++differences;
    }
  };
  std::vector<std::thread> threads;
  for (std::size_t i = 0; i < kThreads; ++i) threads.emplace_back(run, i * all.size() / kThreads);
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(differences, 0);
}
