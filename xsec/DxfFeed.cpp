#include "xsec/DxfFeed.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "GeometryEngine/host/Numerics.h"

namespace xsec {

namespace {

constexpr std::size_t kLongestValue = 1000;     // bytes; the parser's line buffer holds 1024
constexpr std::string_view kUnknownType = "-";  // a type that the parser does not know
constexpr int kFirstExtendedCode = 1000;        // from here on extended data

constexpr std::array<std::string_view, 13> kReadTypes = {"LINE",   "ARC",    "CIRCLE", "LWPOLYLINE", "POLYLINE",
                                                         "VERTEX", "SEQEND", "INSERT", "ELLIPSE",    "SPLINE",
                                                         "TEXT",   "MTEXT",  "ATTRIB"};

bool IsBracket(std::string_view type) {
  return type == "BLOCK" || type == "ENDBLK" || type == "SEQEND" || type == "SECTION" || type == "ENDSEC" ||
         type == "EOF";
}

// How often the codes occur up to the end of the record that the reader stands in.
template <std::size_t N>
std::array<int, N> CountCodes(DxfPairReader reader, const std::array<int, N>& codes) {
  std::array<int, N> counts{};
  for (auto pair = reader.Next(); pair && pair->code != 0; pair = reader.Next()) {
    const auto place = std::find(codes.begin(), codes.end(), pair->code);
    if (place != codes.end()) {
      ++counts[static_cast<std::size_t>(place - codes.begin())];
    }
  }
  return counts;
}

// Counts that the parser takes from groups of their own; CountCodes has found them instead.
bool IsCount(std::string_view type, int code) {
  return (type == "LWPOLYLINE" && code == 90) || (type == "SPLINE" && (code == 72 || code == 73 || code == 74));
}

std::int32_t WholeValue(const DxfPair& pair) {
  return GeometryEngine::ToInteger_Saturated(ParseNumber(pair.value).value_or(0));
}

}  // namespace

bool IsReadType(std::string_view aType) {
  return std::find(kReadTypes.begin(), kReadTypes.end(), aType) != kReadTypes.end();
}

DxfFeed::DxfFeed(std::string_view aText, const std::string& aPath) : fReader(aText, aPath), fPath(aPath) {}

DxfFeed::int_type DxfFeed::underflow() {
  fBuffer.clear();
  while (fBuffer.empty()) {
    const bool isOver = fCurrent.type == "EOF";  // what stands behind it has not been checked
    const auto pair = isOver ? std::nullopt : fReader.Next();
    if (!pair) {
      return traits_type::eof();
    }
    if (Take(*pair)) {
      WriteValue(*pair);
    }
  }
  setg(fBuffer.data(), fBuffer.data(), fBuffer.data() + fBuffer.size());
  return traits_type::to_int_type(fBuffer.front());
}

// Whether the pair goes to the parser as it is.
bool DxfFeed::Take(const DxfPair& aPair) {
  if (fAwaitsName && aPair.code == 2) {
    NameSection(TrimBlanks(aPair.value));
    return true;
  }
  return aPair.code == 0 ? TakeRecord(aPair) : TakeGroup(aPair);
}

bool DxfFeed::TakeRecord(const DxfPair& aPair) {
  const std::string_view type = TrimBlanks(aPair.value);
  const bool isBracket = IsBracket(type);
  fInBraces = false;
  fIsPassedOn = isBracket || fSection == Section::Entities || (fSection == Section::Tables && type == "LAYER");
  if (!fIsPassedOn) {
    return false;
  }
  fFinished = std::exchange(fCurrent, DxfRecord{});
  fCurrent.type = type;
  fCurrent.line = aPair.line + 1;
  fCurrent.isEntity = fSection == Section::Entities && !isBracket;
  fIsRead = !fCurrent.isEntity || IsReadType(type);
  fAwaitsName = type == "SECTION";
  if (fAwaitsName) {
    fSection = Section::None;
  }
  Write(0, fIsRead ? type : kUnknownType);
  TakeCounts();
  return false;
}

void DxfFeed::TakeCounts() {
  if (!fCurrent.isEntity) {
    return;
  }
  if (fCurrent.type == "LWPOLYLINE") {
    const auto [vertices] = CountCodes(fReader, std::array{10});
    Write(90, fmt::format("{}", vertices));
  } else if (fCurrent.type == "SPLINE") {
    const auto [knots, points, fitPoints] = CountCodes(fReader, std::array{40, 10, 11});
    Write(72, fmt::format("{}", knots));
    Write(73, fmt::format("{}", points));
    Write(74, fmt::format("{}", fitPoints));
  }
}

bool DxfFeed::TakeGroup(const DxfPair& aPair) {
  if (aPair.code == 9 && fSection == Section::Header) {
    fFinished = std::exchange(fCurrent, DxfRecord{});
    return fIsPassedOn = true;
  }
  if (aPair.code == 102) {
    fInBraces = aPair.value.starts_with('{');
    return false;
  }
  if (!fIsPassedOn || fInBraces || aPair.code == 9 || aPair.code == 999 || aPair.code >= kFirstExtendedCode ||
      (fCurrent.isEntity && IsCount(fCurrent.type, aPair.code))) {
    return false;
  }
  if (aPair.code == 5) {
    fCurrent.handle = TrimBlanks(aPair.value);
  } else if (aPair.code == 70) {
    fCurrent.flags = WholeValue(aPair);
  }
  return fIsRead || aPair.code == 8 || aPair.code == 67;
}

void DxfFeed::NameSection(std::string_view aName) {
  fAwaitsName = false;
  fIsPassedOn = false;
  if (aName == "HEADER") {
    fSection = Section::Header;
  } else if (aName == "TABLES") {
    fSection = Section::Tables;
  } else {
    fSection = aName == "BLOCKS" || aName == "ENTITIES" ? Section::Entities : Section::Other;
  }
}

void DxfFeed::Write(int aCode, std::string_view aValue) {
  fBuffer += std::to_string(aCode);
  fBuffer += '\n';
  fBuffer += aValue.substr(0, kLongestValue);
  fBuffer += '\n';
}

void DxfFeed::WriteValue(const DxfPair& aPair) {
  switch (KindOfCode(aPair.code)) {
    case DxfValueKind::Text:
      Write(aPair.code, aPair.value);
      break;
    case DxfValueKind::Real:
      Write(aPair.code, fmt::format("{}", ParseNumber(aPair.value).value_or(0)));
      break;
    case DxfValueKind::Whole:
      Write(aPair.code, fmt::format("{}", WholeValue(aPair)));
      break;
  }
}

}  // namespace xsec
