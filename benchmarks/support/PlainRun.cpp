#include "benchmarks/support/PlainRun.h"

#include "benchmarks/support/HostRun.h"

namespace benchmarks {

using namespace GeometryEngine;

TPlainRun::TPlainRun(const drawings::Drawing& aDrawing) {
  fDrawing.AddEntities(ToEntities(aDrawing));
}

void TPlainRun::All() {
  fDriver.DetermineInterceptions(&fDrawing);
  fDriver.DetermineRegions(fDriver.CoordinateTree(), 1);
  fDriver.IdentifySubRegions(fDriver.CoordinateTree());
  fDriver.RemoveDuplicatedSubRegions();
  HandOver();
}

void TPlainRun::HandOver() {
  const auto& regions = fDriver.RegionTree().RootNode()->Children();
  for (std::size_t i = 0; i < regions.size(); ++i) fDriver.AddRegionEntities(fTree.AddRegion(), ToIndex(i));
  for (std::size_t i = 0; i < regions.size(); ++i) {
    for (const std::int32_t inner : regions[i]->SubRegions()) {
      fTree.fRegions[i]->fChildren.push_back(fTree.fRegions[static_cast<std::size_t>(inner)].get());
    }
  }
  for (const auto& region : fTree.fRegions) region->UpdateGeometry_Outputs();
}

}  // namespace benchmarks
