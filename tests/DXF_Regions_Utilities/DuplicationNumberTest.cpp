#include "GeometryEngine/DXF_Regions_Utilities/DuplicationNumber.h"

#include <cstdint>
#include <limits>

#include <gmock/gmock.h>

#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using namespace support;
using Maindataenum::TInputFields;

class TNumberReader {
 public:
  TNumberReader() { With(1554, 36).With(1559, 8).With(1639, 28); }
  TNumberReader& With(int aField, double aValue) {
    fSettings.With(static_cast<TInputFields>(aField), aValue);
    return *this;
  }
  std::int32_t Read(int aLocation, int aMachineType) {
    fSettings.WithMachineType(static_cast<std::uint8_t>(aMachineType));
    return GetDuplicationNumber_Regions(static_cast<TMachineLocation>(aLocation));
  }

 private:
  TSettingsGuard fSettings;
};

TEST(GetDuplicationNumber_Regions, LocationThreeReadsItsOwnField) {
  TNumberReader host;
  for (const int type : {0, 1, 2, 3, 5, 6, 8, 255}) EXPECT_EQ(host.Read(3, type), 8) << type;
}

TEST(GetDuplicationNumber_Regions, LocationTwoReadsItsOwnField) {
  TNumberReader host;
  for (const int type : {0, 2, 3, 5, 6, 7, 9, 255}) EXPECT_EQ(host.Read(2, type), 36) << type;
}

TEST(GetDuplicationNumber_Regions, LocationTwoReadsTheThirdFieldForTypesOneAndEight) {
  TNumberReader host;
  EXPECT_EQ(host.Read(2, 1), 28);
  EXPECT_EQ(host.Read(2, 8), 28);
}

TEST(GetDuplicationNumber_Regions, TypeFourSwapsTheTwoLocationsKept) {
  TNumberReader host;
  EXPECT_EQ(host.Read(3, 4), 36);
  EXPECT_EQ(host.Read(2, 4), 8);
}

TEST(GetDuplicationNumber_Regions, AnyOtherLocationIsOne) {
  TNumberReader host;
  for (const int location : {0, 1, 4, 255})
    for (const int type : {0, 1, 4, 8}) EXPECT_EQ(host.Read(location, type), 1);
}

TEST(GetDuplicationNumber_Regions, SettingsThatAreNoCountsAreAbsorbed) {
  TNumberReader host;
  host.With(1554, std::numeric_limits<double>::quiet_NaN());
  EXPECT_EQ(host.Read(2, 0), 0);
  host.With(1554, 1e300);
  EXPECT_EQ(host.Read(2, 0), std::numeric_limits<std::int32_t>::max());
}

}  // namespace
}  // namespace GeometryEngine
