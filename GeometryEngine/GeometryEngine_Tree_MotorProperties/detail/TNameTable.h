#pragma once

// Which names the nodes of a tree answer to, so that making a name unique need not ask every node. Private.

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine::detail {

/// The names (`GetRegionName_Unique`) of a tree's nodes but the root, the letters A to Z folded, with the number of
/// nodes that answer to each.
///
/// The table follows its tree on demand: `Update` reads the nodes that have been entered since, and those of which
/// `NoteRenaming` was told; after any other change of the flat index it reads all of them anew.
class TNameTable {
 public:
  /// To be called before a node takes another name.
  void NoteRenaming(TIndex aIndex);
  /// `aChanges` and `aCount` are the tree's; `aGetName` gives the name of the node at a place, nil where there is none.
  template <typename TGetName>
  void Update(std::uint64_t aChanges, TIndex aCount, const TGetName& aGetName) {
    // A table that could not be brought up to date, for want of memory, is made anew the next time.
    const bool isKept = std::exchange(fIsComplete, false) && fChanges == aChanges;
    if (!isKept) Forget();
    fChanges = aChanges;
    for (const TIndex index : fRenamed) Replace(index, aGetName(index));
    fRenamed.clear();
    while (ToIndex(fNames.size()) < aCount) fNames.push_back(Enter(aGetName(ToIndex(fNames.size()))));
    fIsComplete = true;
  }

  // REQUIRES, for both: the table is up to date.
  /// True when a node other than the one at `aIndex` answers to the name.
  bool IsTakenByOther(std::string_view aName, TIndex aIndex) const;
  /// The least number from 1 to `aLimit` for which "aName_number" is free; beyond the limit when none is.
  std::int32_t GetLeastFreeNumber(std::string_view aName, std::int32_t aLimit);

  static std::string NumberedName(std::string_view aName, std::int32_t aNumber);

 private:
  using THolders = std::unordered_map<std::string, TIndex>;
  using THolder = THolders::value_type;

  void Forget();
  void Replace(TIndex aIndex, const std::string* aName);
  THolder* Enter(const std::string* aName);
  void Leave(THolder* aHolder);
  void NoteFree(const std::string& aFoldedName);

  THolders fHolders;
  std::vector<THolder*> fNames;  ///< by place in the flat index; nil for the root and where there is no name
  std::vector<TIndex> fRenamed;
  std::unordered_map<std::string, std::int32_t> fLeastFree;  ///< by name; no smaller number is free
  std::uint64_t fChanges = 0;                                ///< of the tree, when the table was made
  bool fIsComplete = false;
};

}  // namespace GeometryEngine::detail
