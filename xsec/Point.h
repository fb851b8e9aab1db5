#pragma once

#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"

namespace xsec {

/// A point or vector of the drawing's plane. Its == is the library's sameness under the tolerance.
using Point = GeometryEngine::TEntityCoordinate;

}  // namespace xsec
