#pragma once

// Where two entities meet.

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"

namespace GeometryEngine::Plain {

/// Appends the points at which the two meet, none that the list holds already; true when any candidate was accepted.
bool CheckIntercepts(const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B, TCoordinateArray& aPoints);
double GetArcInterceptAngle(const TEntityCoordinate& aPoint, const TDXFEntity& aArc, double aStartValue,
                            double aEndValue);

}  // namespace GeometryEngine::Plain
