#include "GeometryEngine/DXF_Regions_Detection/detail/TWalkSums.h"

#include <gmock/gmock.h>

#include "GeometryEngine/DXF_Regions_Utilities/EntityTerms.h"
#include "tests/support/Detection.h"
#include "tests/support/Geometry.h"

namespace GeometryEngine {

using detail::TWalkSums;
using support::IsBits;

namespace {

constexpr TIndex kBack = TWalkSums::kStepBack;

class TWalkSumsTest : public testing::Test {
 protected:
  // A square and a half disc on it, where sums round.
  TWalkSumsTest()
      : fDetection(
            "L 1000.1,0.1 1000.4,0.1; L 1000.4,0.1 1000.4,0.4; L 1000.4,0.4 1000.1,0.4; L 1000.1,0.4 1000.1,0.1;"
            "A c 1000.4,0.25 r 0.15 -90..90"),
        fGraph(fDetection.driver.CoordinateTree()) {}

  const TEntityCoordinate& From(TIndex aHalfEdge) const { return fGraph.From(fGraph.HalfEdge(aHalfEdge)); }
  TEntityCoordinate To(TIndex aHalfEdge) const { return fGraph.FarEnd(fGraph.HalfEdge(aHalfEdge)); }
  const TDXFEntity& Entity(TIndex aHalfEdge) const { return fGraph.Entity(fGraph.HalfEdge(aHalfEdge)); }
  double Area(TIndex h) const { return GetSignedArea_Entity(From(h), To(h), Entity(h)); }
  TEntityCoordinate Centroid(TIndex h) const { return GetCentroidComponent_Entity(From(h), To(h), Entity(h)); }

  support::TDetection fDetection;
  detail::TVertexGraph fGraph;
};

}  // namespace

TEST_F(TWalkSumsTest, StepsToAndFroAreSummedInTheirOrderToTheBit) {
  ASSERT_GE(fGraph.HalfEdgeCount(), 10);
  const std::vector<TIndex> steps{0, 3, 5, kBack, 8, kBack, kBack, 7};
  double area = 0;
  TEntityCoordinate centroid;
  for (const auto& [halfEdge, sign] : std::vector<std::pair<TIndex, int>>{{0, 1},
                                                                          {3, 1},
                                                                          {5, 1},
                                                                          {5, -1},
                                                                          {3, -1},
                                                                          {3, 1},
                                                                          {8, 1},
                                                                          {8, -1},
                                                                          {3, -1},
                                                                          {3, 1},
                                                                          {3, -1},
                                                                          {0, -1},
                                                                          {0, 1},
                                                                          {7, 1}}) {
    area += sign * Area(halfEdge);
    centroid = centroid + sign * Centroid(halfEdge);
  }
  TWalkSums sums(fGraph);
  for (const bool keeps : {false, true, true}) {
    if (keeps) sums.KeepTerms();
    const TWalkSums::TSums found = sums.GetSums(steps);
    EXPECT_EQ(found.fArea, area);
    EXPECT_THAT(found.fCentroid, IsBits(centroid));
  }
}

TEST_F(TWalkSumsTest, APathHasTheSameSumsWithTermsKeptAndWithout) {
  const std::vector<TIndex> path{0, 2, 4, 6, 8, 9};
  TWalkSums sums(fGraph);
  const double area = sums.GetArea(path);
  const TEntityCoordinate centroid = sums.GetCentroid(path);
  EXPECT_EQ(sums.GetSums(path).fArea, area);
  sums.KeepTerms();
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(sums.GetArea(path), area);
    EXPECT_THAT(sums.GetCentroid(path), IsBits(centroid));
  }
}

}  // namespace GeometryEngine
