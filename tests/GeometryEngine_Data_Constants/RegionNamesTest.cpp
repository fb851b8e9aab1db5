#include "GeometryEngine/GeometryEngine_Data_Constants/RegionNames.h"

#include <gmock/gmock.h>

namespace GeometryEngine {
namespace {

using ::testing::ElementsAre;

TEST(kArmatureSlotRegion_Hairpin, LetterLIsAbsentAndMIsTheTwelfthKept) {
  EXPECT_THAT(kArmatureSlotRegion_Hairpin,
              ElementsAre("ArmatureSlotA", "ArmatureSlotB", "ArmatureSlotC", "ArmatureSlotD", "ArmatureSlotE",
                          "ArmatureSlotF", "ArmatureSlotG", "ArmatureSlotH", "ArmatureSlotI", "ArmatureSlotJ",
                          "ArmatureSlotK", "ArmatureSlotM"));
}

}  // namespace
}  // namespace GeometryEngine
