#include "GeometryEngine/DXF_Regions_Utilities/RegionPredicates.h"

#include "GeometryEngine/host/IntegerArrays.h"
#include "GeometryEngine/host/TInputData.h"

namespace GeometryEngine {

namespace {

constexpr std::uint8_t kSynchronousMachine = 6;  // value of the machine-type selector
constexpr std::string_view kRotorPole = "RotorPole";

}  // namespace

bool IsSYNCRotorWinding_Region(std::string_view aRegionName) {
  return Kelvaralinks::InputData.MachineType == kSynchronousMachine &&
         aRegionName.find(kRotorPole) != std::string_view::npos;
}

bool RegionMerged(std::int32_t aRegionIndex, std::span<const std::int32_t> aMergedRegions) {
  return GetIsElementInArray_Integer(aMergedRegions, aRegionIndex);
}

}  // namespace GeometryEngine
