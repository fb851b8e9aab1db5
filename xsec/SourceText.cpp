#include "xsec/SourceText.h"

#include <fmt/format.h>

namespace xsec {

std::string SourceText(const DrawingEntity& aEntity) {
  std::string text = fmt::format("{} on layer \"{}\"", aEntity.type, aEntity.layer);
  if (!aEntity.block.empty()) text += fmt::format(" in block {}", aEntity.block);
  if (!aEntity.handle.empty()) text += fmt::format(", handle {}", aEntity.handle);
  if (aEntity.line != 0) text += fmt::format(", line {} of the file", aEntity.line);
  return text;
}

std::string SkippedText(const SkippedKind& aKind, const Tally& aTally) {
  std::string text = fmt::format("{} {} on layer \"{}\": {}", aTally.count, aKind.type, aKind.layer, aKind.reason);
  if (aTally.line != 0) text += fmt::format("; first on line {} of the file", aTally.line);
  return text;
}

}  // namespace xsec
