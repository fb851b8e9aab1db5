#pragma once

#include <cstdint>
#include <initializer_list>

#include "GeometryEngine/host/TGeometryRegionType.h"

namespace GeometryEngine {

/// A set of region types: one bit an ordinal, 0 to 63. Members above 63 are never in it.
class TGeometryRegionTypesSet {
 public:
  constexpr TGeometryRegionTypesSet() = default;
  constexpr TGeometryRegionTypesSet(std::initializer_list<TGeometryRegionType> aTypes) {
    for (const TGeometryRegionType type : aTypes) Include(type);
  }
  /// Every type from ordinal 0 to 60.
  static constexpr TGeometryRegionTypesSet All() {
    TGeometryRegionTypesSet all;
    all.fBits = (std::uint64_t{1} << (kLastRegionType + 1)) - 1;
    return all;
  }

  constexpr bool Contains(TGeometryRegionType aType) const {
    const auto ordinal = static_cast<std::uint8_t>(aType);
    return ordinal < 64 && ((fBits >> ordinal) & 1U) != 0;
  }
  constexpr void Include(TGeometryRegionType aType) {
    const auto ordinal = static_cast<std::uint8_t>(aType);
    if (ordinal < 64) fBits |= std::uint64_t{1} << ordinal;
  }
  constexpr void Exclude(TGeometryRegionType aType) {
    const auto ordinal = static_cast<std::uint8_t>(aType);
    if (ordinal < 64) fBits &= ~(std::uint64_t{1} << ordinal);
  }
  constexpr bool IsEmpty() const { return fBits == 0; }

  /// Walks the members in ascending ordinal.
  class TIterator {
   public:
    constexpr explicit TIterator(std::uint64_t aRest) : fRest(aRest) {}
    constexpr TGeometryRegionType operator*() const;
    constexpr TIterator& operator++() {
      fRest &= fRest - 1;
      return *this;
    }
    constexpr bool operator!=(const TIterator& aOther) const { return fRest != aOther.fRest; }

   private:
    std::uint64_t fRest;
  };
  constexpr TIterator begin() const { return TIterator(fBits); }
  constexpr TIterator end() const { return TIterator(0); }

 private:
  std::uint64_t fBits = 0;
};

constexpr TGeometryRegionType TGeometryRegionTypesSet::TIterator::operator*() const {
  std::uint8_t ordinal = 0;
  while (((fRest >> ordinal) & 1U) == 0) ++ordinal;
  return static_cast<TGeometryRegionType>(ordinal);
}

}  // namespace GeometryEngine
