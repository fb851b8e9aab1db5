#pragma once

// What a run has answered, number by number, so that two runs can be compared to the last bit.

#include <bit>
#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine::properties {

/// A list of answers. Names are kept as pointers and have to be literals.
class TwinRecord {
 public:
  /// What the answers from here on are about.
  void Section(const char* aName, TIndex aIndex = kNotFound) { fSections.push_back({aName, aIndex, fAnswers.size()}); }

  void Add(const char* aName, std::integral auto aValue) {
    fAnswers.push_back({aName, static_cast<std::uint64_t>(aValue), false});
  }
  /// All not-a-numbers are alike; 0 and -0 are not.
  void Add(const char* aName, double aValue) {
    fAnswers.push_back({aName, std::isnan(aValue) ? kNaN : std::bit_cast<std::uint64_t>(aValue), true});
  }
  void Add(const char* aName, std::string_view aText);
  void Add(const char* aName, const TEntityCoordinate& aPoint);
  void Add(const char* aName, const TDXFEntity& aEntity);
  template <typename TElement>
  void Add(const char* aName, const std::vector<TElement>& aElements) {
    Add(aName, aElements.size());
    for (const TElement& element : aElements) Add(aName, element);
  }

  std::size_t Size() const { return fAnswers.size(); }
  /// Empty when both hold the same; else where they first differ.
  std::string FirstDifference(const TwinRecord& aOther) const;

 private:
  static constexpr std::uint64_t kNaN = 0x7ff8000000000000;
  struct TAnswer {
    const char* fName;
    std::uint64_t fBits;
    bool fIsReal;
  };
  struct TSection {
    const char* fName;
    TIndex fIndex;
    std::size_t fFirst;
  };
  std::string Place(std::size_t aAnswer) const;
  std::string Value(std::size_t aAnswer) const;

  std::vector<TAnswer> fAnswers;
  std::vector<TSection> fSections;
};

}  // namespace GeometryEngine::properties
