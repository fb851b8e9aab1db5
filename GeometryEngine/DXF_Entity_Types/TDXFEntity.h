#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/EntityEnumerations.h"
#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

struct GEOMETRYENGINE_API TDXFEntity {
  DXFEntityType EntityType = DXFNoLineType;
  TEntityCoordinate StartCoords;
  TEntityCoordinate EndCoords;
  TEntityCoordinate CentreCoords;
  double radius = 0;
  double startAngle = 0;  ///< degrees
  double endAngle = 0;    ///< degrees
  std::int32_t ConductorCol = 0;
  std::int32_t ConductorRow = 0;
  TSlotSide SlotSide = NoSide;
  std::string Colour;
  std::string RegionName;
  void* SourceDXF = nullptr;  ///< not owned

  static TDXFEntity Line(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd);
  static TDXFEntity Arc(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd,
                        const TEntityCoordinate& aCentre, double aRadius, double aStartAngle, double aEndAngle);
  double EntityLength() const;
  double ArcSweep() const;
};

GEOMETRYENGINE_API bool operator==(const TDXFEntity& aDXFEntity_A, const TDXFEntity& aDXFEntity_B);
GEOMETRYENGINE_API bool operator!=(const TDXFEntity& aDXFEntity_A, const TDXFEntity& aDXFEntity_B);

using PtrDXFEntity = TDXFEntity*;
using TEntityArray = std::vector<TDXFEntity>;

}  // namespace GeometryEngine
