#include "xsec/Report.h"
#include "xsec/output/DxfWriter.h"

namespace xsec {

std::string DxfOutputText(const Report& aReport) {
  std::vector<DxfOutline> outlines;
  for (const Region& region : aReport.detection.regions) outlines.push_back({region.outline, region.name, 256});
  return DxfTextOf(outlines);
}

}  // namespace xsec
