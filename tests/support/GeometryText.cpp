// Reading and printing of the text form.

#include <array>
#include <charconv>
#include <cmath>
#include <sstream>
#include <stdexcept>
#include <system_error>
#include <vector>

#include "GeometryEngine/host/Numerics.h"
#include "tests/support/Geometry.h"

namespace GeometryEngine::support {

namespace {

constexpr std::string_view kSeparator = ";";

[[noreturn]] void Refuse(std::string_view aText, std::string_view aWhy) {
  throw std::invalid_argument("geometry text: '" + std::string(aText) + "' " + std::string(aWhy));
}

template <typename TNumber>
TNumber ReadNumber(std::string_view aWord) {
  TNumber number{};
  const auto [end, error] = std::from_chars(aWord.data(), aWord.data() + aWord.size(), number);
  if (error != std::errc{} || end != aWord.data() + aWord.size()) Refuse(aWord, "is not a number");
  return number;
}

// The two numbers on either side of `aMark`.
TEntityCoordinate ReadPair(std::string_view aWord, std::string_view aMark) {
  const std::size_t place = aWord.find(aMark);
  if (place == std::string_view::npos) Refuse(aWord, "lacks a '" + std::string(aMark) + "'");
  return {ReadNumber<double>(aWord.substr(0, place)), ReadNumber<double>(aWord.substr(place + aMark.size()))};
}

// Words are parted by blanks; semicolons and line ends are words of their own; quotes hold blanks together.
std::vector<std::string> SplitWords(std::string_view aText) {
  std::vector<std::string> words{""};
  bool quoted = false;
  for (const char letter : aText) {
    if (letter == '"') quoted = !quoted;
    if (quoted || std::string_view(" \t\n;").find(letter) == std::string_view::npos) {
      words.back() += letter;
      continue;
    }
    if (letter == ';' || letter == '\n') words.emplace_back(kSeparator);
    words.emplace_back();
  }
  std::erase(words, "");
  return words;
}

// Takes the words of a text one after the other.
class TWordReader {
 public:
  explicit TWordReader(std::string_view aText) : fText(aText), fWords(SplitWords(aText)) {}

  bool AtEnd() const { return fPlace == fWords.size(); }
  bool Accept(std::string_view aWord) {
    const bool isNext = !AtEnd() && fWords[fPlace] == aWord;
    if (isNext) ++fPlace;
    return isNext;
  }
  std::string_view Take() {
    if (AtEnd()) Refuse(fText, "ends too early");
    return fWords[fPlace++];
  }
  void Expect(std::string_view aWord) {
    if (!Accept(aWord)) Refuse(fText, "lacks '" + std::string(aWord) + "'");
  }
  TEntityCoordinate TakeCoordinate() { return ReadPair(Take(), ","); }

 private:
  std::string_view fText;
  std::vector<std::string> fWords;
  std::size_t fPlace = 0;
};

TEntityCoordinate PointOnArc(const TDXFEntity& aArc, double aAngle) {
  const double radians = aAngle * kRadiansPerDegree;
  return {aArc.CentreCoords.x + aArc.radius * std::cos(radians), aArc.CentreCoords.y + aArc.radius * std::sin(radians)};
}

TDXFEntity ReadLine(TWordReader& aReader) {
  const TEntityCoordinate start = aReader.TakeCoordinate();
  return TDXFEntity::Line(start, aReader.TakeCoordinate());
}

TDXFEntity ReadArc(TWordReader& aReader) {
  TDXFEntity arc;
  arc.EntityType = DXFArc;
  aReader.Expect("c");
  arc.CentreCoords = aReader.TakeCoordinate();
  aReader.Expect("r");
  arc.radius = ReadNumber<double>(aReader.Take());
  const TEntityCoordinate angles = ReadPair(aReader.Take(), "..");
  arc.startAngle = angles.x;
  arc.endAngle = angles.y;
  arc.StartCoords = PointOnArc(arc, arc.startAngle);
  arc.EndCoords = PointOnArc(arc, arc.endAngle);
  if (aReader.Accept("from")) {
    arc.StartCoords = aReader.TakeCoordinate();
    aReader.Expect("to");
    arc.EndCoords = aReader.TakeCoordinate();
  }
  return arc;
}

TDXFEntity ReadGeometry(TWordReader& aReader) {
  const std::string_view kind = aReader.Take();
  if (kind == "L") return ReadLine(aReader);
  if (kind == "A") return ReadArc(aReader);
  if (kind != "N" && kind != "R") Refuse(kind, "is no kind of entity");
  TDXFEntity marker;
  marker.EntityType = kind == "N" ? DXFNoLineType : DXFRegion;
  return marker;
}

std::string ReadQuoted(std::string_view aWord) {
  if (aWord.size() < 2 || aWord.front() != '"' || aWord.back() != '"') Refuse(aWord, "is not quoted");
  return std::string(aWord.substr(1, aWord.size() - 2));
}

void ReadTag(TWordReader& aReader, TDXFEntity& aEntity) {
  const std::string_view tag = aReader.Take();
  const std::string_view value = aReader.Take();
  if (tag == "col") {
    aEntity.ConductorCol = ReadNumber<std::int32_t>(value);
  } else if (tag == "row") {
    aEntity.ConductorRow = ReadNumber<std::int32_t>(value);
  } else if (tag == "side") {
    aEntity.SlotSide = static_cast<TSlotSide>(ReadNumber<std::uint8_t>(value));
  } else if (tag == "colour") {
    aEntity.Colour = ReadQuoted(value);
  } else if (tag == "name") {
    aEntity.RegionName = ReadQuoted(value);
  } else {
    Refuse(tag, "is no tag");
  }
}

void PrintTags(const TDXFEntity& aEntity, std::ostream& aOut) {
  if (aEntity.ConductorCol != 0) aOut << " col " << aEntity.ConductorCol;
  if (aEntity.ConductorRow != 0) aOut << " row " << aEntity.ConductorRow;
  if (aEntity.SlotSide != NoSide) aOut << " side " << int{static_cast<std::uint8_t>(aEntity.SlotSide)};
  if (!aEntity.Colour.empty()) aOut << " colour \"" << aEntity.Colour << '"';
  if (!aEntity.RegionName.empty()) aOut << " name \"" << aEntity.RegionName << '"';
  if (aEntity.SourceDXF != nullptr) aOut << " source " << aEntity.SourceDXF;  // an address can't be read back
}

void PrintArc(const TDXFEntity& aArc, std::ostream& aOut) {
  aOut << "A c " << ToText(aArc.CentreCoords) << " r " << ToText(aArc.radius) << ' ' << ToText(aArc.startAngle) << ".."
       << ToText(aArc.endAngle);
  const std::string ends = " from " + ToText(aArc.StartCoords) + " to " + ToText(aArc.EndCoords);
  const std::string computed =
      " from " + ToText(PointOnArc(aArc, aArc.startAngle)) + " to " + ToText(PointOnArc(aArc, aArc.endAngle));
  if (ends != computed) aOut << ends;
}

void PrintGeometry(const TDXFEntity& aEntity, std::ostream& aOut) {
  switch (aEntity.EntityType) {
    case DXFLine:
      aOut << "L " << ToText(aEntity.StartCoords) << ' ' << ToText(aEntity.EndCoords);
      return;
    case DXFArc:
      PrintArc(aEntity, aOut);
      return;
    case DXFRegion:
      aOut << 'R';
      return;
    case DXFNoLineType:
      aOut << 'N';
      return;
  }
  aOut << '?';
}

template <typename TElement>
std::string Join(const std::vector<TElement>& aElements, std::string_view aSeparator) {
  std::string joined;
  for (const TElement& element : aElements) joined += (joined.empty() ? "" : std::string(aSeparator)) + ToText(element);
  return joined;
}

}  // namespace

TEntityArray ParseEntities(std::string_view aText) {
  TEntityArray entities;
  TWordReader reader(aText);
  while (!reader.AtEnd()) {
    if (reader.Accept(kSeparator)) continue;
    entities.push_back(ReadGeometry(reader));
    while (!reader.AtEnd() && !reader.Accept(kSeparator)) ReadTag(reader, entities.back());
  }
  return entities;
}

TDXFEntity ParseEntity(std::string_view aText) {
  const TEntityArray entities = ParseEntities(aText);
  if (entities.size() != 1) Refuse(aText, "is not one entity");
  return entities.front();
}

TCoordinateArray ParseCoordinates(std::string_view aText) {
  TCoordinateArray coordinates;
  TWordReader reader(aText);
  while (!reader.AtEnd()) {
    if (!reader.Accept(kSeparator)) coordinates.push_back(reader.TakeCoordinate());
  }
  return coordinates;
}

std::string ToText(double aNumber) {
  if (std::isnan(aNumber)) return "nan";
  std::array<char, 32> letters{};
  const auto [end, error] = std::to_chars(letters.data(), letters.data() + letters.size(), aNumber);
  return std::string(letters.data(), end);
}

std::string ToText(const TEntityCoordinate& aCoordinate) {
  return ToText(aCoordinate.x) + "," + ToText(aCoordinate.y);
}

std::string ToText(const TDXFEntity& aEntity) {
  std::ostringstream text;
  PrintGeometry(aEntity, text);
  PrintTags(aEntity, text);
  return text.str();
}

std::string ToText(const TCoordinateArray& aCoordinates) {
  return Join(aCoordinates, " ");
}

std::string ToText(const TEntityArray& aEntities) {
  return Join(aEntities, "; ");
}

}  // namespace GeometryEngine::support
