#include "tests/xsec/DxfTexts.h"

#include <string>

#include "xsec/DxfText.h"
#include "xsec/Errors.h"

namespace xsec {

namespace {

std::string Section(std::string_view name, std::string_view pairs) {
  if (pairs.empty()) {
    return "";
  }
  return Pairs("0 SECTION | 2 " + std::string(name)) + Pairs(pairs) + Pairs("0 ENDSEC");
}

// "code value" as two lines; a code without a value gets an empty line.
std::string Lines(std::string_view pair) {
  const std::size_t gap = std::min(pair.find(' '), pair.size());
  const std::string_view value = gap < pair.size() ? pair.substr(gap + 1) : "";
  return std::string(pair.substr(0, gap)) + "\n" + std::string(value) + "\n";
}

}  // namespace

std::string Pairs(std::string_view aPairs) {
  std::string text;
  while (!aPairs.empty()) {
    const std::size_t end = std::min(aPairs.find_first_of("|\n"), aPairs.size());
    const std::string_view pair = TrimBlanks(aPairs.substr(0, end));
    text += pair.empty() ? "" : Lines(pair);
    aPairs.remove_prefix(std::min(end + 1, aPairs.size()));
  }
  return text;
}

std::string DxfOf(const DxfParts& aParts) {
  return Section("HEADER", aParts.header) + Section("TABLES", aParts.layers) + Section("BLOCKS", aParts.blocks) +
         Section("ENTITIES", aParts.entities) + Pairs("0 EOF");
}

Drawing ReadEntities(std::string_view aEntities, const ReadOptions& aOptions) {
  return ReadBlocks("", aEntities, aOptions);
}

Drawing ReadBlocks(std::string_view aBlocks, std::string_view aEntities, const ReadOptions& aOptions) {
  return ReadDrawingText(DxfOf({std::string(aEntities), std::string(aBlocks), "", ""}), "test.dxf", aOptions);
}

GeometryEngine::TEntityArray GeometryOf(const Drawing& aDrawing) {
  GeometryEngine::TEntityArray entities;
  for (const DrawingEntity& entity : aDrawing.entities) {
    entities.push_back(entity.geometry);
  }
  return entities;
}

std::size_t SkippedCount(const Drawing& aDrawing, std::string_view aType, std::string_view aLayer,
                         std::string_view aReason) {
  const auto place = aDrawing.skipped.find({std::string(aType), std::string(aLayer), std::string(aReason)});
  return place == aDrawing.skipped.end() ? 0 : place->second.count;
}

std::string RefusalOf(std::string_view aText) {
  try {
    ReadDrawingText(aText, "test.dxf");
  } catch (const InputError& error) {
    return std::to_string(error.Line()) + ": " + error.Problem() + "; " + error.Advice();
  }
  return "";
}

}  // namespace xsec
