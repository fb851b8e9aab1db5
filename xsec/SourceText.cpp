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

}  // namespace xsec
