// The records that cross the boundary by value: their size and the places of their fields belong to the interface of a
// version. A change here is a change of SOVERSION.

#include <cstddef>
#include <type_traits>

#include <gtest/gtest.h>

#include "GeometryEngine/GeometryEngine.h"

using namespace GeometryEngine;

// As laid out for 64-bit Linux by g++ and clang++ with the GNU C++ library.
static_assert(sizeof(TEntityCoordinate) == 16);
static_assert(sizeof(TCoordinate_3D) == 24);
static_assert(sizeof(TVector_Single) == 12);
static_assert(sizeof(TAxialBlock) == 24);
static_assert(sizeof(TRotationMatrix) == 32);
static_assert(sizeof(TDXFEntity) == 168);
static_assert(offsetof(TDXFEntity, StartCoords) == 8);
static_assert(offsetof(TDXFEntity, EndCoords) == 24);
static_assert(offsetof(TDXFEntity, CentreCoords) == 40);
static_assert(offsetof(TDXFEntity, radius) == 56);
static_assert(offsetof(TDXFEntity, startAngle) == 64);
static_assert(offsetof(TDXFEntity, endAngle) == 72);
static_assert(offsetof(TDXFEntity, ConductorCol) == 80);
static_assert(offsetof(TDXFEntity, ConductorRow) == 84);
static_assert(offsetof(TDXFEntity, SlotSide) == 88);
static_assert(offsetof(TDXFEntity, Colour) == 96);
static_assert(offsetof(TDXFEntity, RegionName) == 128);
static_assert(offsetof(TDXFEntity, SourceDXF) == 160);

TEST(RecordLayout, LetsRecordsMoveWithoutFailing) {
  EXPECT_TRUE(std::is_nothrow_move_constructible_v<TDXFEntity>);
  EXPECT_TRUE(std::is_nothrow_move_assignable_v<TDXFEntity>);
  EXPECT_TRUE(std::is_trivially_copyable_v<TEntityCoordinate>);
}
