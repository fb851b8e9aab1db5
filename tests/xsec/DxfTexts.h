#pragma once

#include <string>
#include <string_view>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "xsec/DxfReader.h"

/// Small DXF files as text, for tests of the reader.
namespace xsec {

/// The lines of a DXF text from pairs in one string, parted by '|' or line ends: "0 LINE | 8 hole | 10 0 | 20 0".
std::string Pairs(std::string_view aPairs);

/// The parts of a drawing, each in the form of Pairs; parts that are empty are left out.
struct DxfParts {
  std::string entities;
  std::string blocks;
  std::string header;
  std::string layers;
};

std::string DxfOf(const DxfParts& aParts);

/// Reads a drawing of which only the entities or the entities and blocks are given; the path in messages is "test.dxf".
Drawing ReadEntities(std::string_view aEntities, const ReadOptions& aOptions = {});
Drawing ReadBlocks(std::string_view aBlocks, std::string_view aEntities, const ReadOptions& aOptions = {});

/// The geometry of a drawing alone.
GeometryEngine::TEntityArray GeometryOf(const Drawing& aDrawing);

/// How many entities were skipped for the reason; the type and layer are those given.
std::size_t SkippedCount(const Drawing& aDrawing, std::string_view aType, std::string_view aLayer,
                         std::string_view aReason);

/// What reading the text is refused with: "LINE: problem", with the advice behind a "; ". Empty when it is read.
std::string RefusalOf(std::string_view aText);

}  // namespace xsec
