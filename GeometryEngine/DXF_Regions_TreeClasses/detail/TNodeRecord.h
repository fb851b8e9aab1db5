#pragma once

#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine::detail {

/// A node that a tree is to get, among others in a list.
struct TNodeRecord {
  TIndex fParent = kNotFound;  ///< position in the list, before its own; kNotFound for the root
  TIndex fPlace = 0;           ///< among the children of its parent; the list gives each place once, without gaps
  TIndex fEntityIndex = kNotFound;
  TEntityCoordinate fCoordinates;
};

}  // namespace GeometryEngine::detail
