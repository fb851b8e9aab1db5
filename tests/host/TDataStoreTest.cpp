#include "GeometryEngine/host/TDataStore.h"

#include <cstdint>
#include <memory>
#include <type_traits>

#include <gtest/gtest.h>

#include "GeometryEngine/host/TInputData.h"

namespace Kelvaralinks {
namespace {

using Maindataenum::TInputFields;
using enum Maindataenum::TInputFields;

TEST(TDataStore, StartsWithValuesForMillimetres) {
  const auto store = std::make_unique<TDataStore>();
  EXPECT_EQ(store->GetValue(TInputFields{6525}), 1e-4);
  EXPECT_EQ(store->GetValue(TInputFields{6526}), 1);
  EXPECT_EQ(store->GetValue(TInputFields{6527}), 1e-4);
  EXPECT_EQ(store->GetValue(TInputFields{6528}), 0);
  EXPECT_EQ(store->GetValue(TInputFields{6529}), 5);
  EXPECT_EQ(store->GetValue(TInputFields{12096}), 1);
  EXPECT_EQ(store->GetValue(TInputFields{1554}), 1);
  EXPECT_EQ(store->GetValue(TInputFields{1559}), 1);
  EXPECT_EQ(store->GetValue(TInputFields{1639}), 1);
}

TEST(TDataStore, HoldsZeroInEveryOtherField) {
  const auto store = std::make_unique<TDataStore>();
  std::size_t others = 0;
  for (std::uint32_t field = 0; field <= UINT16_MAX; ++field) {
    if (store->GetValue(TInputFields{static_cast<std::uint16_t>(field)}) == 0) ++others;
  }
  EXPECT_EQ(others, 65536U - 8U);  // the starting values that aren't 0
}

TEST(TDataStore, HoldsWhatIsSetInAnyField) {
  const auto store = std::make_unique<TDataStore>();
  store->SetValue(TInputFields{0}, -3.5);
  store->SetValue(TInputFields{65535}, 1e300);
  EXPECT_EQ(store->GetValue(TInputFields{0}), -3.5);
  EXPECT_EQ(store->GetValue(TInputFields{65535}), 1e300);
  EXPECT_EQ(store->GetValue(ifLinearTolerance), 1e-4);
}

TEST(TDataStore, GoesBackToTheStart) {
  const auto store = std::make_unique<TDataStore>();
  store->SetValue(TInputFields{17}, 4);
  store->SetValue(ifSnappingMode, 0);
  store->Reset();
  EXPECT_EQ(store->GetValue(TInputFields{17}), 0);
  EXPECT_EQ(store->GetValue(ifSnappingMode), 1);
}

TEST(TDataStore, IsReadByOnePlainLoad) {
  static_assert(noexcept(dataStore.GetValue(ifLinearTolerance)));
  EXPECT_EQ(sizeof(TDataStore), 65536 * sizeof(double));
}

TEST(TInputData, StartsWithMachineTypeZero) {
  EXPECT_EQ(TInputData{}.MachineType, 0);
  static_assert(std::is_same_v<decltype(TInputData::MachineType), std::uint8_t>);
}

}  // namespace
}  // namespace Kelvaralinks
