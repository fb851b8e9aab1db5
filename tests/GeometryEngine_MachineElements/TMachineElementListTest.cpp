#include "GeometryEngine/GeometryEngine_MachineElements/TMachineElementList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::IsBits;
using support::ParseEntity;

TMachineElement& AddElement(TMachineElementList& aList) {
  auto element = std::make_unique<TMachineElement>();
  return *aList.Item(aList.Add(element));
}

void AddBoundary(TMachineElement& aElement, const char* aEntity, TBoundaryLocation aLocation) {
  aElement.Add({}, ParseEntity(aEntity), aLocation, {});
}

class TMachineElementListTest : public ::testing::Test {
 protected:
  TMachineElementListTest() {
    AddBoundary(AddElement(fList), "L 0,1 1,1", blOuterBoundary);
    AddBoundary(AddElement(fList), "L 1,1 0,1", blInnerBoundary);
    AddBoundary(*fList.Item(1), "A c 0,0 r 2 0..90", blOuterBoundary);
  }
  support::TSettingsGuard fSettings;
  TMachineElementList fList;
};

TEST_F(TMachineElementListTest, AllBoundariesAreTwoAnElementInnerFirst) {
  const TVirtualBoundaryArray boundaries = fList.GetAllBoundaries();
  ASSERT_EQ(boundaries.size(), 4U);
  EXPECT_FALSE(boundaries[0].Enabled);
  EXPECT_TRUE(boundaries[1].Enabled);
  EXPECT_THAT(boundaries[2].BoundaryEntity, IsBits("L 1,1 0,1"));
  EXPECT_EQ(boundaries[3].BoundaryEntity.EntityType, DXFArc);
}

TEST_F(TMachineElementListTest, SharedBoundaryEntityIsListedOnce) {
  EXPECT_THAT(fList.GetBoundaryEntities(),
              IsBits(TEntityArray{ParseEntity("L 0,1 1,1"), ParseEntity("A c 0,0 r 2 0..90")}));
}

TEST_F(TMachineElementListTest, AssignIsADeepCopy) {
  TMachineElementList copy;
  AddElement(copy);
  copy.Assign(fList);
  copy.Assign(copy);
  ASSERT_EQ(copy.Count(), 2);
  EXPECT_NE(copy.Item(0), fList.Item(0));
  copy.Item(0)->ElementArea(9);
  EXPECT_EQ(fList.Item(0)->ElementArea(), 0);
  EXPECT_EQ(copy.GetBoundaryEntities().size(), 2U);
}

TEST_F(TMachineElementListTest, IndexesOutsideAreAbsorbed) {
  for (const TIndex index : {-1, 2, std::numeric_limits<TIndex>::max(), std::numeric_limits<TIndex>::min()}) {
    EXPECT_EQ(fList.Item(index), nullptr);
    fList.Remove(index);
  }
  EXPECT_EQ(fList.GetCount(), 2);
}

TEST_F(TMachineElementListTest, RemoveAndClearFreeElements) {
  fList.Remove(0);
  EXPECT_EQ(fList.GetCount(), 1);
  EXPECT_THAT(fList.Item(0)->innerBoundary().BoundaryEntity, IsBits("L 1,1 0,1"));
  fList.Clear();
  EXPECT_EQ(fList.GetCount(), 0);
  EXPECT_TRUE(fList.GetBoundaryEntities().empty());
}

TEST_F(TMachineElementListTest, NilIsNotTaken) {
  std::unique_ptr<TMachineElement> none;
  EXPECT_EQ(fList.Add(none), kNotFound);
  EXPECT_EQ(fList.GetCount(), 2);
}

}  // namespace
}  // namespace GeometryEngine
