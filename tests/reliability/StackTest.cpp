// No operation takes more than 64 KiB of stack, whatever the size of what it works on.

#include <gtest/gtest.h>

#include "tests/everything/Scenarios.h"
#include "tests/reliability/ScenarioNames.h"
#include "tests/support/RunWithStack.h"

namespace {

constexpr std::size_t kSmallStack = 64 * 1024;  // bytes

}  // namespace

TEST(Stack, Of64KiBIsEnoughForEveryOperation) {
  for (const auto& list : {everything::Scenarios(), everything::DrawingScenarios()}) {
    for (const everything::TScenario& scenario : list) {
      SCOPED_TRACE(scenario.name);
      const std::uint64_t expected = everything::HashOf(scenario);
      const auto subject = scenario.make();
      GeometryEngine::support::RunWithStack(kSmallStack, [&] { subject->Operate(); });
      everything::THash hash;
      subject->Observe(hash);
      EXPECT_EQ(hash.Value(), expected);
    }
  }
}
