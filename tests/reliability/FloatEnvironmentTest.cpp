// Hosts that run with traps, in another rounding mode, or with denormals flushed: the calls that compute for long give
// the usual answers by themselves, all others behind a guard, and the host's environment is the same afterwards.

#include <algorithm>
#include <optional>

#include <gtest/gtest.h>

#include "GeometryEngine/FloatingPoint/TFloatEnvironment.h"
#include "tests/everything/Scenarios.h"
#include "tests/reliability/ScenarioNames.h"
#include "tests/support/HostEnvironment.h"

using everything::TScenario;
using everything::TSubject;
using GeometryEngine::TFloatEnvironment;
using GeometryEngine::support::TEnvironmentKind;
using GeometryEngine::support::THostEnvironment;

namespace {

// The scenarios whose one call holds a guard of its own.
constexpr const char* kGuardedByThemselves[] = {"AddEntityToCoordinateTree",
                                                "AddRegionCoordinates",
                                                "AddRegionEntities",
                                                "DetectOrphanEntities",
                                                "DetermineInterceptions",
                                                "DetermineInterceptions_Again",
                                                "DetermineRegions",
                                                "GetPoleInaccessibility",
                                                "IdentifySubRegions",
                                                "Offset",
                                                "OffsetInwards",
                                                "RegionOffset",
                                                "RemoveDuplicatedSubRegions",
                                                "UpdateGeometry_Outputs",
                                                "WholeDetection",
                                                "WholeDetection_ToleranceChain"};

bool IsGuardedByItself(const TScenario& aScenario) {
  return std::ranges::find(kGuardedByThemselves, aScenario.name) != std::end(kGuardedByThemselves);
}

std::uint64_t Seen(TSubject& aSubject) {
  everything::THash hash;
  aSubject.Observe(hash);
  return hash.Value();
}

// Whether the host's environment is the same afterwards.
bool RunIn(const TEnvironmentKind& aKind, const TScenario& aScenario, TSubject& aSubject) {
  const THostEnvironment host(aKind);
  {
    std::optional<TFloatEnvironment> guard;
    if (!IsGuardedByItself(aScenario)) guard.emplace();
    aSubject.Operate();
  }
  return host.IsUnchanged();
}

class FloatEnvironment : public testing::TestWithParam<TScenario> {};

}  // namespace

TEST_P(FloatEnvironment, OfTheHostChangesNoAnswerAndIsLeftAsItWas) {
  const std::uint64_t expected = everything::HashOf(GetParam());
  for (const TEnvironmentKind& kind : GeometryEngine::support::kEnvironmentKinds) {
    const auto subject = GetParam().make();
    EXPECT_TRUE(RunIn(kind, GetParam(), *subject)) << kind.name;
    EXPECT_EQ(Seen(*subject), expected) << kind.name;
  }
}

INSTANTIATE_TEST_SUITE_P(Every, FloatEnvironment, testing::ValuesIn(everything::Scenarios()), everything::NameOf);
