#pragma once

#include <memory>
#include <string_view>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"

namespace GeometryEngine::support {

/// Appends the entities of a text (the form of Geometry.h) to a storage.
void AddText(TEntityStorage& aStorage, std::string_view aText);

/// The same, and sets the stored start coordinate to the chain's start vertex, as the measures of a closed chain ask
/// for.
void AddChain(TEntityStorage& aStorage, std::string_view aText);

/// A new storage filled by AddText.
std::unique_ptr<TEntityStorage> MakeStorage(std::string_view aText);

/// A new storage filled by AddChain.
std::unique_ptr<TEntityStorage> MakeChain(std::string_view aText);

}  // namespace GeometryEngine::support
