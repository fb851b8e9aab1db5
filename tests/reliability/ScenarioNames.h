#pragma once

// Scenarios as parameters of tests.

#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "tests/everything/Scenarios.h"

namespace everything {

inline void PrintTo(const TScenario& aScenario, std::ostream* aOut) {
  *aOut << aScenario.name;
}

inline std::string NameOf(const testing::TestParamInfo<TScenario>& aInfo) {
  return aInfo.param.name;
}

/// What can be seen after the scenario, as a hash.
inline std::uint64_t HashOf(const TScenario& aScenario) {
  THash hash;
  Run(aScenario, hash);
  return hash.Value();
}

}  // namespace everything
