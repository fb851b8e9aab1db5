#include "xsec/RegionSpaces.h"

namespace xsec {

RegionSpace SpaceOf(const Region& aRegion) {
  RegionSpace space{&aRegion.outline, {}};
  for (const Loop& hole : aRegion.holes) space.holes.push_back(&hole);
  return space;
}

double HalfWidth(const Region& aRegion) {
  double boundary = Length(aRegion.outline);
  for (const Loop& hole : aRegion.holes) boundary += Length(hole);
  return aRegion.netArea / boundary;
}

}  // namespace xsec
