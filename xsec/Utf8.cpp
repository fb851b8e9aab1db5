#include "xsec/Utf8.h"

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <system_error>

namespace xsec {

namespace {

constexpr std::string_view kEscape = "\\U+";
constexpr std::size_t kEscapeDigits = 4;

void Append(std::string& text, std::uint32_t code) {
  if (code < 0x20 || code == 0x7F) {
    text += '?';
  } else if (code < 0x80) {
    text += static_cast<char>(code);
  } else if (code < 0x800) {
    text += static_cast<char>(0xC0 | (code >> 6));
    text += static_cast<char>(0x80 | (code & 0x3F));
  } else {
    text += static_cast<char>(0xE0 | (code >> 12));
    text += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (code & 0x3F));
  }
}

bool IsContinuation(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// Smallest code point that a sequence of that many bytes may hold.
constexpr std::uint32_t Least(std::size_t length) {
  return length == 2 ? 0x80 : length == 3 ? 0x800 : 0x10000;
}

bool IsCodePoint(std::uint32_t code, std::size_t length) {
  return code >= Least(length) && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
}

// Length of the UTF-8 sequence of more than one byte at the front, 0 when there is none.
std::size_t SequenceLength(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text.front());
  const std::size_t length = lead >= 0xF0 && lead < 0xF8 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 0;
  if (lead >= 0xF8 || length == 0 || text.size() < length) {
    return 0;
  }
  std::uint32_t code = lead & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    if (!IsContinuation(text[i])) {
      return 0;
    }
    code = code << 6 | (static_cast<unsigned char>(text[i]) & 0x3F);
  }
  return IsCodePoint(code, length) ? length : 0;
}

// The code point that "\U+XXXX" at the front stands for.
std::optional<std::uint32_t> EscapedCode(std::string_view text) {
  if (!text.starts_with(kEscape) || text.size() < kEscape.size() + kEscapeDigits) {
    return std::nullopt;
  }
  const char* first = text.data() + kEscape.size();
  std::uint32_t code = 0;
  const auto [end, fault] = std::from_chars(first, first + kEscapeDigits, code, 16);
  const bool isRead = fault == std::errc() && end == first + kEscapeDigits;
  return isRead && (code < 0x80 || IsCodePoint(code, code < 0x800 ? 2 : 3)) ? std::optional(code) : std::nullopt;
}

}  // namespace

std::string ToUtf8(std::string_view aText) {
  std::string result;
  while (!aText.empty()) {
    std::size_t taken = 1;
    if (const auto code = EscapedCode(aText)) {
      Append(result, *code);
      taken = kEscape.size() + kEscapeDigits;
    } else if (const std::size_t length = SequenceLength(aText); length != 0) {
      result += aText.substr(0, length);
      taken = length;
    } else {
      Append(result, static_cast<unsigned char>(aText.front()));
    }
    aText.remove_prefix(taken);
  }
  return result;
}

}  // namespace xsec
