// Every operation, with its first, second, third ... allocation failing until it needs no more: nothing but the
// standard exception comes out, nothing leaks, and the objects are as promised.

#include <new>

#include <gtest/gtest.h>

#include "tests/everything/Scenarios.h"
#include "tests/reliability/Allocations.h"
#include "tests/reliability/ScenarioNames.h"

using everything::TGuarantee;
using everything::TScenario;
using everything::TSubject;
using GeometryEngine::support::LiveAllocations;
using GeometryEngine::support::TFailingAllocation;
using GeometryEngine::support::TFailure;

namespace {

constexpr std::int64_t kMostAllocations = 100000;  // of one operation

std::uint64_t Seen(TSubject& aSubject) {
  everything::THash hash;
  aSubject.Observe(hash);
  return hash.Value();
}

// What came of one failing allocation.
struct TOutcome {
  bool failed = false;     ///< the allocation was asked for, and the exception came out
  bool swallowed = false;  ///< it was asked for, and no exception came out
  bool kept = true;        ///< the guarantee held
  bool finished = true;    ///< the result was the full one where nothing came out
  bool usable = true;      ///< prepared anew, the object gave the full result
};

struct TExpected {
  std::uint64_t before = 0;
  std::uint64_t after = 0;
};

TExpected Expect(const TScenario& aScenario) {
  const auto subject = aScenario.make();
  TExpected expected;
  expected.before = Seen(*subject);
  subject->Operate();
  expected.after = Seen(*subject);
  return expected;
}

bool Holds(TGuarantee aGuarantee, TSubject& aSubject, const TExpected& aExpected) {
  if (aGuarantee == TGuarantee::Unchanged) return Seen(aSubject) == aExpected.before;
  return aGuarantee == TGuarantee::Usable || aSubject.IsEmpty();
}

TOutcome FailAt(const TScenario& aScenario, const TExpected& aExpected, std::int64_t aNumber, TFailure aFailure) {
  const auto subject = aScenario.make();
  TOutcome outcome;
  {
    const TFailingAllocation failing(aNumber, aFailure);
    try {
      subject->Operate();
      outcome.swallowed = failing.HasFailed();
    } catch (const std::bad_alloc&) {
      outcome.failed = true;
    }
  }
  if (outcome.failed) {
    outcome.kept = Holds(aScenario.guarantee, *subject, aExpected);
  } else {
    outcome.finished = Seen(*subject) == aExpected.after;
  }
  subject->Prepare();
  subject->Operate();
  outcome.usable = Seen(*subject) == aExpected.after;
  return outcome;
}

class AllocationFailure : public testing::TestWithParam<TScenario> {
 protected:
  static void FailEveryAllocation(TFailure aFailure) {
    const TScenario& scenario = GetParam();
    const TExpected expected = Expect(scenario);
    bool needsMore = true;
    for (std::int64_t number = 1; needsMore && number < kMostAllocations; ++number) {
      const std::int64_t live = LiveAllocations();
      const TOutcome outcome = FailAt(scenario, expected, number, aFailure);
      const std::int64_t leaked = LiveAllocations() - live;
      ASSERT_EQ(leaked, 0) << "allocation " << number;
      ASSERT_TRUE(outcome.kept) << "allocation " << number;
      ASSERT_TRUE(outcome.finished) << "allocation " << number;
      ASSERT_TRUE(outcome.usable) << "allocation " << number;
      needsMore = outcome.failed || outcome.swallowed;
    }
    EXPECT_FALSE(needsMore);
  }
};

}  // namespace

TEST_P(AllocationFailure, OfOneAllocationLeavesEverythingAsPromised) {
  FailEveryAllocation(TFailure::Once);
}

TEST_P(AllocationFailure, ForGoodLeavesEverythingAsPromised) {
  FailEveryAllocation(TFailure::ForGood);
}

INSTANTIATE_TEST_SUITE_P(Every, AllocationFailure, testing::ValuesIn(everything::Scenarios()), everything::NameOf);

TEST(TFailingAllocation, FailsTheOneThatWasAskedForAlone) {
  bool first = false;
  bool second = false;
  bool third = false;
  const auto allocates = [] {
    try {
      ::operator delete(::operator new(8));  // called by name: a compiler may leave out what new and delete pair up
      return true;
    } catch (const std::bad_alloc&) {
      return false;
    }
  };
  {
    const TFailingAllocation failing(2, TFailure::Once);
    first = allocates();
    second = allocates();
    third = allocates();
  }
  EXPECT_TRUE(first);
  EXPECT_FALSE(second);
  EXPECT_TRUE(third);
}

TEST(AllocationFailure, CoversSixtyOperationsOrMore) {
  EXPECT_GE(everything::Scenarios().size(), 60U);
}
