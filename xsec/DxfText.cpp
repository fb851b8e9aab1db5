#include "xsec/DxfText.h"

#include <fmt/format.h>

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <system_error>
#include <utility>

#include "xsec/Errors.h"

namespace xsec {

namespace {

constexpr std::size_t kLongestLine = 64 * 1024;  // bytes
constexpr std::size_t kLongestQuote = 40;        // bytes of the file's text shown in a message
constexpr int kLargestCode = 1071;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kSaveAgain = "save the drawing again as a DXF text file";

struct CodeRange {
  int first;
  int last;
  DxfValueKind kind;
};

// Group codes whose values are numbers; the value of any other code is text.
constexpr std::array kNumericCodes = {
    CodeRange{10, 59, DxfValueKind::Real},     CodeRange{60, 79, DxfValueKind::Whole},
    CodeRange{90, 99, DxfValueKind::Whole},    CodeRange{110, 149, DxfValueKind::Real},
    CodeRange{160, 179, DxfValueKind::Whole},  CodeRange{210, 239, DxfValueKind::Real},
    CodeRange{270, 299, DxfValueKind::Whole},  CodeRange{370, 389, DxfValueKind::Whole},
    CodeRange{400, 409, DxfValueKind::Whole},  CodeRange{420, 429, DxfValueKind::Whole},
    CodeRange{440, 459, DxfValueKind::Whole},  CodeRange{460, 469, DxfValueKind::Real},
    CodeRange{1010, 1059, DxfValueKind::Real}, CodeRange{1060, 1071, DxfValueKind::Whole},
};

bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r';
}

// A piece of the file's text, fit to stand in a message.
std::string Quoted(std::string_view text) {
  std::string shown(text.substr(0, kLongestQuote));
  for (char& c : shown) {
    if (c < ' ' || c > '~') {
      c = '?';
    }
  }
  return fmt::format("\"{}{}\"", shown, text.size() > kLongestQuote ? "..." : "");
}

std::string_view AdviceForNumber(std::string_view value) {
  return value.find(',') == std::string_view::npos ? kSaveAgain : "write numbers with a point, not a comma";
}

}  // namespace

DxfValueKind KindOfCode(int aCode) {
  for (const CodeRange& range : kNumericCodes) {
    if (aCode >= range.first && aCode <= range.last) {
      return range.kind;
    }
  }
  return DxfValueKind::Text;
}

std::string_view TrimBlanks(std::string_view aText) {
  while (!aText.empty() && IsBlank(aText.front())) {
    aText.remove_prefix(1);
  }
  while (!aText.empty() && IsBlank(aText.back())) {
    aText.remove_suffix(1);
  }
  return aText;
}

std::optional<double> ParseNumber(std::string_view aText) {
  std::string_view text = TrimBlanks(aText);
  if (text.starts_with('+')) {
    text.remove_prefix(1);
    if (text.starts_with('-')) {
      return std::nullopt;
    }
  }
  double value = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
  const bool isWhole = fault == std::errc() && end == text.data() + text.size();
  return isWhole && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

DxfPairReader::DxfPairReader(std::string_view aText, std::string aPath) : fText(aText), fPath(std::move(aPath)) {
  if (fText.starts_with(kByteOrderMark)) {
    fPosition = kByteOrderMark.size();
  }
}

std::optional<DxfPair> DxfPairReader::Next() {
  if (fPosition >= fText.size()) {
    return std::nullopt;
  }
  DxfPair pair;
  pair.line = fLine;
  pair.code = CodeOf(NextLine(), pair.line);
  if (fPosition >= fText.size()) {
    throw InputError(fPath, pair.line, fmt::format("the file ends after group code {} without its value", pair.code),
                     "it was cut off: get or save it again");
  }
  pair.value = NextLine();
  CheckValue(pair);
  return pair;
}

std::string_view DxfPairReader::NextLine() {
  const std::size_t end = std::min(fText.find('\n', fPosition), fText.size());
  std::string_view line = fText.substr(fPosition, end - fPosition);
  if (line.size() > kLongestLine) {
    throw InputError(fPath, fLine, fmt::format("the line has more than {} bytes", kLongestLine),
                     fmt::format("this is no DXF text; {}", kSaveAgain));
  }
  fPosition = std::min(end + 1, fText.size());
  ++fLine;
  return line.ends_with('\r') ? line.substr(0, line.size() - 1) : line;
}

int DxfPairReader::CodeOf(std::string_view aText, std::size_t aLine) const {
  const std::string_view text = TrimBlanks(aText);
  int code = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), code);
  if (end != text.data() + text.size() || text.empty() || fault == std::errc::invalid_argument) {
    throw InputError(fPath, aLine, fmt::format("{} stands where a group code (a whole number) belongs", Quoted(text)),
                     fmt::format("a line is missing or doubled above, or this is no DXF text; {}", kSaveAgain));
  }
  if (fault != std::errc() || code < 0 || code > kLargestCode) {
    throw InputError(fPath, aLine, fmt::format("group code {} is not in 0 to {}", Quoted(text), kLargestCode),
                     fmt::format("a line is missing or doubled above; {}", kSaveAgain));
  }
  return code;
}

void DxfPairReader::CheckValue(const DxfPair& aPair) const {
  const DxfValueKind kind = KindOfCode(aPair.code);
  if (kind == DxfValueKind::Text) {
    return;
  }
  const std::optional<double> number = ParseNumber(aPair.value);
  if (!number) {
    throw InputError(fPath, aPair.line + 1,
                     fmt::format("group {} holds {}, which is not a finite number", aPair.code, Quoted(aPair.value)),
                     std::string(AdviceForNumber(aPair.value)));
  }
  if (kind == DxfValueKind::Whole && *number != std::trunc(*number)) {
    throw InputError(fPath, aPair.line + 1,
                     fmt::format("group {} holds {}, which is not a whole number", aPair.code, Quoted(aPair.value)),
                     std::string(kSaveAgain));
  }
}

}  // namespace xsec
