#include "xsec/BlockPlacement.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "xsec/Errors.h"

namespace xsec {

namespace {

struct Scope {
  const SourceDrawing& source;
  EntityMaker& maker;
};

// Maps the block's axes to those of the instance in a column and row.
Affine InstanceMap(const SourceInsert& insert, const Point& base, std::uint32_t column, std::uint32_t row) {
  return Affine::Shift(insert.place.x, insert.place.y) * Affine::Turn(insert.turn) *
         Affine::Shift(column * insert.spacing.x, row * insert.spacing.y) *
         Affine::Stretch(insert.scale.x, insert.scale.y) * Affine::Shift(-base.x, -base.y);
}

// Why nothing can be placed, empty when all is well.
std::string WhyNotPlaced(const SourceInsert& insert, const SourceBlock* block) {
  if (block == nullptr) {
    return fmt::format("block {} is not defined", insert.block);
  }
  if (block->isExternal) {
    return fmt::format("block {} stands for another file", block->name);
  }
  return insert.scale.x == 0 || insert.scale.y == 0 ? "its scale is 0" : "";
}

const SourceBlock* FindBlock(const SourceDrawing& source, const std::string& name) {
  const auto place = source.blocks.find(BlockKey(name));
  return place == source.blocks.end() ? nullptr : &place->second;
}

void Place(const Scope& scope, const std::vector<SourceEntity>& entities, const Placement& placement);

// The depth of the recursion is that of the blocks, which CheckBlocks bounds.
void PlaceInsert(const Scope& scope, const SourceEntity& entity, const SourceInsert& insert,
                 const Placement& placement) {
  const SourceBlock* block = FindBlock(scope.source, insert.block);
  if (const std::string reason = WhyNotPlaced(insert, block); !reason.empty()) {
    return scope.maker.Skip(entity, placement, reason);
  }
  const Affine outer = entity.isFlipped ? placement.map * Affine::Stretch(-1, 1) : placement.map;
  Placement inner{outer, PlacedLayer(entity, placement), PlacedColour(entity, placement), block->name};
  for (std::uint32_t row = 0; row < insert.rows; ++row) {
    for (std::uint32_t column = 0; column < insert.columns; ++column) {
      inner.map = outer * InstanceMap(insert, block->base, column, row);
      Place(scope, block->entities, inner);
    }
  }
}

void Place(const Scope& scope, const std::vector<SourceEntity>& entities, const Placement& placement) {
  for (const SourceEntity& entity : entities) {
    if (const auto* insert = std::get_if<SourceInsert>(&entity.shape)) {
      PlaceInsert(scope, entity, *insert, placement);
    } else {
      scope.maker.Make(entity, placement);
    }
  }
}

}  // namespace

void PlaceAll(const SourceDrawing& aSource, const Affine& aMap, EntityMaker& aMaker) {
  Place({aSource, aMaker}, aSource.entities, Placement{aMap, "0", 0, ""});
}

}  // namespace xsec
