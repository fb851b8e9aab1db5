// Hosts with decimal commas and grouped digits: no number and no name comes out differently.

#include <clocale>
#include <locale>
#include <sstream>

#include <gtest/gtest.h>

#include "tests/everything/Scenarios.h"
#include "tests/reliability/ScenarioNames.h"

namespace {

class TCommasAndGroups : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\1"; }
};

/// Makes a locale the process's own until the end of the object.
class TGlobalLocale {
 public:
  explicit TGlobalLocale(const std::locale& aLocale) : fBefore(std::locale::global(aLocale)) {}
  ~TGlobalLocale() { std::locale::global(fBefore); }
  TGlobalLocale(const TGlobalLocale&) = delete;
  TGlobalLocale& operator=(const TGlobalLocale&) = delete;

 private:
  std::locale fBefore;
};

std::vector<std::uint64_t> AllHashes() {
  std::vector<std::uint64_t> hashes;
  for (const everything::TScenario& scenario : everything::Scenarios()) hashes.push_back(everything::HashOf(scenario));
  return hashes;
}

class Locale : public testing::TestWithParam<const char*> {};

}  // namespace

TEST(Locale, WithCommasAndGroupsChangesNothing) {
  const std::vector<std::uint64_t> expected = AllHashes();
  const TGlobalLocale global(std::locale(std::locale::classic(), new TCommasAndGroups));
  std::ostringstream shown;
  shown << 1234.5;
  ASSERT_EQ(shown.str(), "1.2.3.4,5");  // the locale is in force
  EXPECT_EQ(AllHashes(), expected);
}

// A locale that the system does not have is a failure of its own: std::locale throws.
TEST_P(Locale, OfTheSystemChangesNothing) {
  const std::vector<std::uint64_t> expected = AllHashes();
  const TGlobalLocale global{std::locale(GetParam())};
  ASSERT_STREQ(std::setlocale(LC_ALL, nullptr), GetParam());  // the C library's too
  EXPECT_EQ(AllHashes(), expected);
}

INSTANTIATE_TEST_SUITE_P(Names, Locale, testing::Values("C.UTF-8", "de_DE.UTF-8", "tr_TR.UTF-8", "hi_IN.UTF-8"));
