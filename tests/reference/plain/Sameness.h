#pragma once

// The plain twin: the library's answers by linear searches and all pairs, written to be read and never to be fast. What
// the library does faster is held against it (tests/properties/PlainTwinTest.cpp). Types and functions bear the names
// of their originals, which say what they answer.
//
// Shared with the library are the records, the construction of entities, angles into range and the sort of a storage.
//
// This file: sameness under the tolerances. Nothing in the twin compares coordinates or entities by ==.

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"

namespace GeometryEngine::Plain {

double GetLinearTolerance();
bool ValuesSame_DXFTolerance(double a, double b);
bool ValueLessThan_DXFTolerance(double a, double b);
bool ValueMoreThan_DXFTolerance(double a, double b);
bool ValuesSame_DXFAngle(double a, double b);

bool Same(const TEntityCoordinate& aPoint_A, const TEntityCoordinate& aPoint_B);
bool Same(const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B);

}  // namespace GeometryEngine::Plain
