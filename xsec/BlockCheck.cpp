// Whether the blocks of a drawing can be placed at all, found before any of them is.
#include <fmt/format.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

#include "xsec/BlockPlacement.h"
#include "xsec/Errors.h"

namespace xsec {

namespace {

constexpr int kDeepestNesting = 16;

struct BlockLoad {
  std::uint64_t steps = 0;  // entities of the block and of those in it, placed once; stops at one above the most
  int depth = 1;            // 1 for a block without inserts
};

// The state of a walk through one block.
struct Visit {
  const SourceBlock* block;
  std::size_t next = 0;  // entity to look at
  BlockLoad load;
};

using Loads = std::map<const SourceBlock*, BlockLoad>;

// No product overflows: columns times rows stay below 2^62, and the division comes first.
std::uint64_t StepsOfInsert(const SourceInsert& insert, std::uint64_t stepsOfBlock, std::uint64_t most) {
  const std::uint64_t instances = std::uint64_t{insert.columns} * insert.rows;
  return instances > most / (stepsOfBlock + 1) ? most + 1 : instances * (stepsOfBlock + 1);
}

void AddStep(BlockLoad& load, const SourceInsert* insert, const BlockLoad* inner, std::uint64_t most) {
  const bool isBlock = insert != nullptr && inner != nullptr;
  load.steps = std::min(load.steps + (isBlock ? StepsOfInsert(*insert, inner->steps, most) : 1), most + 1);
  if (isBlock) load.depth = std::max(load.depth, inner->depth + 1);
}

// Walks through the blocks in depth first, with a stack of its own: how deep they nest is up to the file.
class BlockWalk {
 public:
  BlockWalk(const SourceDrawing& aSource, const std::string& aPath, std::uint64_t aMost)
      : fSource(aSource), fPath(aPath), fMost(aMost) {}

  // The load of entities outside blocks; finds the loads of all blocks on the way.
  void Run() {
    for (const auto& [key, block] : fSource.blocks) {
      Weigh(block);
    }
    CheckPlacements();
  }

 private:
  const SourceBlock* Find(const SourceInsert& aInsert) const {
    const auto place = fSource.blocks.find(BlockKey(aInsert.block));
    return place == fSource.blocks.end() ? nullptr : &place->second;
  }

  void Weigh(const SourceBlock& aBlock) {
    if (fLoads.contains(&aBlock)) {
      return;
    }
    fStack.assign(1, Visit{&aBlock, 0, {}});
    while (!fStack.empty()) {
      Visit& visit = fStack.back();
      if (visit.next < visit.block->entities.size()) {
        Step(visit);
      } else {
        fLoads[visit.block] = visit.load;
        fStack.pop_back();
      }
    }
  }

  // Looks at one entity of the block; an insert of a block without a load is looked at again when that is known.
  void Step(Visit& aVisit) {
    const SourceEntity& entity = aVisit.block->entities[aVisit.next];
    const auto* insert = std::get_if<SourceInsert>(&entity.shape);
    const SourceBlock* inner = insert == nullptr ? nullptr : Find(*insert);
    if (inner == nullptr) {
      AddStep(aVisit.load, nullptr, nullptr, fMost);
    } else if (const auto known = fLoads.find(inner); known != fLoads.end()) {
      AddStep(aVisit.load, insert, &known->second, fMost);
    } else {
      CheckIsNotOpen(*inner, entity.line);
      fStack.push_back(Visit{inner, 0, {}});
      return;
    }
    ++aVisit.next;
  }

  void CheckIsNotOpen(const SourceBlock& aBlock, std::size_t aLine) const {
    const auto place =
        std::find_if(fStack.begin(), fStack.end(), [&](const Visit& visit) { return visit.block == &aBlock; });
    if (place == fStack.end()) {
      return;
    }
    std::string ring;
    for (auto visit = place; visit != fStack.end(); ++visit) {
      ring += visit->block->name + " > ";
    }
    throw InputError(fPath, aLine, fmt::format("block {} contains itself ({}{})", aBlock.name, ring, aBlock.name),
                     "remove that insert from the block");
  }

  void CheckPlacements() const {
    BlockLoad load;
    for (const SourceEntity& entity : fSource.entities) {
      const auto* insert = std::get_if<SourceInsert>(&entity.shape);
      const SourceBlock* block = insert == nullptr ? nullptr : Find(*insert);
      if (block == nullptr) {
        continue;
      }
      const BlockLoad& inner = fLoads.at(block);
      if (inner.depth > kDeepestNesting) {
        throw InputError(fPath, entity.line,
                         fmt::format("block {} nests {} deep, more than {}", block->name, inner.depth, kDeepestNesting),
                         "explode some of its blocks");
      }
      AddStep(load, insert, &inner, fMost);
      if (load.steps > fMost) {
        throw InputError(fPath, entity.line,
                         fmt::format("placing block {} here makes more than {} entities", block->name, fMost),
                         "check the numbers of columns and rows, or allow more with --max-entities");
      }
    }
  }

  const SourceDrawing& fSource;
  const std::string& fPath;
  std::uint64_t fMost;  // entities handed to the maker
  Loads fLoads;
  std::vector<Visit> fStack;
};

}  // namespace

void CheckBlocks(const SourceDrawing& aSource, const std::string& aPath, std::uint64_t aMostEntities) {
  BlockWalk(aSource, aPath, aMostEntities).Run();
}

}  // namespace xsec
