#pragma once

// From bytes to geometry. Few bytes make an entity, near ones near entities, and every byte string makes something: the
// fuzzer then spends its time on the geometry and not on the form of its input.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"

namespace fuzz {

/// Hands out the bytes of an input one after the other; behind the last one stand zeros.
class Bytes {
 public:
  explicit Bytes(std::span<const std::uint8_t> aBytes) : fBytes(aBytes) {}

  bool IsAtEnd() const { return fPosition >= fBytes.size(); }
  std::uint8_t Byte();
  bool Flag() { return (Byte() & 1U) != 0; }
  /// A whole number from 0 to `aEnd` - 1.
  std::uint32_t Below(std::uint32_t aEnd);
  /// An index: near 0, or one of the ends of the range.
  std::int32_t Index();

  /// Mostly a multiple of a quarter within 24 of 0, sometimes a hair beside one, sometimes a number that is hard to
  /// compute with: not-a-number, infinities, denormals, huge ones, any eight bytes.
  double Number();
  /// A multiple of 15 degrees, or any number.
  double Angle();
  GeometryEngine::TEntityCoordinate Coordinate();
  /// A line, an arc made in one of the ways there are, an arc of inconsistent numbers, or an entity without geometry.
  GeometryEngine::TDXFEntity Entity();
  /// At most so many entities; fewer when the bytes end.
  GeometryEngine::TEntityArray Entities(std::size_t aMost);
  /// A polygon with some arcs on its sides, closed or not, of at most so many entities.
  GeometryEngine::TEntityArray Chain(std::size_t aMost);
  std::string Text(std::size_t aMost);

 private:
  double Raw();
  GeometryEngine::TDXFEntity Arc(std::uint32_t aKind, const GeometryEngine::TEntityCoordinate& aFirst);

  std::span<const std::uint8_t> fBytes;
  std::size_t fPosition = 0;
};

/// Every number of both is the same bits, but for not-a-numbers, which are all alike.
bool IsSameBits(double aLeft, double aRight);
bool IsSameBits(const GeometryEngine::TEntityCoordinate& aLeft, const GeometryEngine::TEntityCoordinate& aRight);
bool IsSameBits(const GeometryEngine::TDXFEntity& aLeft, const GeometryEngine::TDXFEntity& aRight);
bool IsSameBits(const GeometryEngine::TEntityArray& aLeft, const GeometryEngine::TEntityArray& aRight);

}  // namespace fuzz
