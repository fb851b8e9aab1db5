#include "tests/fuzz/Bytes.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"

namespace fuzz {

namespace {

using namespace GeometryEngine;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kHard[] = {std::numeric_limits<double>::quiet_NaN(),
                            kInfinity,
                            -kInfinity,
                            1e300,
                            -1e300,
                            1e150,
                            1e-300,
                            5e-324,
                            -5e-324,
                            -0.0,
                            1e-4,
                            5e-5,
                            1e5,
                            -1e5,
                            360,
                            -1e-20};
constexpr std::int32_t kHardIndexes[] = {INT32_MIN, -2, -1, INT32_MAX};

constexpr int kLattice = 192;  // bytes below give a multiple of a quarter
constexpr int kBeside = 224;   // bytes below give one and a hair
constexpr int kTable = 250;    // bytes below give an entry of the table
constexpr double kHair = 2.5e-5;

double OnLattice(int aByte) {
  return (aByte - kLattice / 2) / 4.0;
}

}  // namespace

std::uint8_t Bytes::Byte() {
  return fPosition < fBytes.size() ? fBytes[fPosition++] : std::uint8_t{0};
}

std::uint32_t Bytes::Below(std::uint32_t aEnd) {
  return Byte() % aEnd;
}

std::int32_t Bytes::Index() {
  const std::uint8_t byte = Byte();
  if (byte < 240) return byte % 16 - 2;
  return kHardIndexes[byte % std::size(kHardIndexes)];
}

double Bytes::Raw() {
  std::uint64_t bits = 0;
  for (int i = 0; i < 8; ++i) bits = bits << 8U | Byte();
  return std::bit_cast<double>(bits);
}

double Bytes::Number() {
  const std::uint8_t byte = Byte();
  if (byte < kLattice) return OnLattice(byte);
  if (byte < kBeside) return OnLattice((byte - kLattice) * 6) + (Byte() - 128) * kHair;
  if (byte < kTable) return kHard[byte % std::size(kHard)];
  return Raw();
}

double Bytes::Angle() {
  const std::uint8_t byte = Byte();
  return byte < kLattice ? byte % 25 * 15.0 : Number();
}

TEntityCoordinate Bytes::Coordinate() {
  const double x = Number();
  return {x, Number()};
}

// Bytes are taken one after the other, never within one call: compilers differ in which argument they compute first.
TDXFEntity Bytes::Arc(std::uint32_t aKind, const TEntityCoordinate& aFirst) {
  const TEntityCoordinate second = aKind < 10 ? TEntityCoordinate{} : Coordinate();
  const TEntityCoordinate third = aKind < 12 ? TEntityCoordinate{} : Coordinate();
  if (aKind == 12) return CreateEntity_Arc_StartEnd(aFirst.x, aFirst.y, second.x, second.y, third.x, third.y);
  const double radius = Number();
  if (aKind == 10 || aKind == 11) return CreateEntity_Arc_StartEnd_Radius(aFirst, second, radius);
  const double start = Angle();
  const double end = Angle();
  if (aKind < 10) return CreateEntity_Arc(aFirst.x, aFirst.y, radius, start, end);
  return TDXFEntity::Arc(aFirst, second, third, radius, start, end);
}

TDXFEntity Bytes::Entity() {
  const std::uint32_t kind = Below(16);
  const TEntityCoordinate first = Coordinate();
  if (kind >= 7 && kind <= 13) return Arc(kind, first);
  const TEntityCoordinate second = Coordinate();
  if (kind < 7) return CreateEntity_Line(first, second);
  TDXFEntity plain = TDXFEntity::Line(first, second);
  if (kind == 15) plain.EntityType = Flag() ? DXFRegion : DXFNoLineType;
  return plain;
}

TEntityArray Bytes::Entities(std::size_t aMost) {
  TEntityArray entities;
  while (entities.size() < aMost && !IsAtEnd()) entities.push_back(Entity());
  return entities;
}

TEntityArray Bytes::Chain(std::size_t aMost) {
  TEntityArray entities;
  const auto count = Below(static_cast<std::uint32_t>(aMost) + 1);
  const std::uint8_t style = Byte();
  const TEntityCoordinate first = Coordinate();
  TEntityCoordinate from = first;
  for (std::uint32_t i = 0; i < count; ++i) {
    const bool isLast = i + 1 == count;
    const TEntityCoordinate to = isLast && (style & 1U) == 0 ? first : Coordinate();
    const std::uint8_t side = Byte();
    if (side < 160) {
      entities.push_back(side % 2 == 0 ? CreateEntity_Line(from, to) : CreateEntity_Line(to, from));
    } else {
      const TEntityCoordinate start = side % 2 == 0 ? from : to;
      entities.push_back(CreateEntity_Arc_StartEnd_Radius(start, side % 2 == 0 ? to : from, Number()));
    }
    from = to;
  }
  return entities;
}

std::string Bytes::Text(std::size_t aMost) {
  std::string text;
  for (std::size_t length = Below(static_cast<std::uint32_t>(aMost) + 1); text.size() < length;) {
    text += static_cast<char>(Byte());
  }
  return text;
}

bool IsSameBits(double aLeft, double aRight) {
  if (std::isnan(aLeft) || std::isnan(aRight)) return std::isnan(aLeft) && std::isnan(aRight);
  return std::bit_cast<std::uint64_t>(aLeft) == std::bit_cast<std::uint64_t>(aRight);
}

bool IsSameBits(const TEntityCoordinate& aLeft, const TEntityCoordinate& aRight) {
  return IsSameBits(aLeft.x, aRight.x) && IsSameBits(aLeft.y, aRight.y);
}

bool IsSameBits(const TDXFEntity& aLeft, const TDXFEntity& aRight) {
  return aLeft.EntityType == aRight.EntityType && IsSameBits(aLeft.StartCoords, aRight.StartCoords) &&
         IsSameBits(aLeft.EndCoords, aRight.EndCoords) && IsSameBits(aLeft.CentreCoords, aRight.CentreCoords) &&
         IsSameBits(aLeft.radius, aRight.radius) && IsSameBits(aLeft.startAngle, aRight.startAngle) &&
         IsSameBits(aLeft.endAngle, aRight.endAngle) && aLeft.Colour == aRight.Colour &&
         aLeft.RegionName == aRight.RegionName;
}

bool IsSameBits(const TEntityArray& aLeft, const TEntityArray& aRight) {
  return std::equal(aLeft.begin(), aLeft.end(), aRight.begin(), aRight.end(),
                    [](const TDXFEntity& left, const TDXFEntity& right) { return IsSameBits(left, right); });
}

}  // namespace fuzz
