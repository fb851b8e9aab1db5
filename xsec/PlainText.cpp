#include "xsec/PlainText.h"

#include <algorithm>

namespace xsec {

namespace {

constexpr std::string_view kUpToSemicolon = "ACFHQTWfp";  // codes with a value behind them
constexpr std::string_view kAlone = "LlOoKkN";            // codes without

std::string_view Sign(char code) {
  switch (code) {
    case 'c':
    case 'C':
      return "⌀";
    case 'd':
    case 'D':
      return "°";
    case 'p':
    case 'P':
      return "±";
    case '%':
      return "%";
    default:
      return "";
  }
}

/// Takes the code behind a backslash off the text.
std::string TakeCode(std::string_view& text) {
  const char code = text.front();
  text.remove_prefix(1);
  if (code == 'P' || code == '~' || code == 'X') return " ";
  if (kAlone.find(code) != std::string_view::npos) return "";
  if (code == 'S' || kUpToSemicolon.find(code) != std::string_view::npos) {
    std::string value(text.substr(0, text.find(';')));
    text.remove_prefix(std::min(text.size(), value.size() + 1));
    for (char& c : value) c = c == '^' || c == '#' ? '/' : c;
    return code == 'S' ? value : "";
  }
  return std::string(1, code);
}

std::string Trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(" \t");
  return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

}  // namespace

std::string PlainText(std::string_view aText) {
  std::string plain;
  for (; !aText.empty(); aText.remove_prefix(1)) {
    if (!aText.starts_with("%%") || aText.size() < 3) {
      plain += aText.front();
      continue;
    }
    plain += Sign(aText[2]);
    aText.remove_prefix(2);
  }
  return Trimmed(plain);
}

std::string PlainMText(std::string_view aText) {
  std::string plain;
  while (!aText.empty()) {
    const char c = aText.front();
    aText.remove_prefix(1);
    if (c == '\\' && !aText.empty()) {
      plain += TakeCode(aText);
    } else if (c != '{' && c != '}') {
      plain += c;
    }
  }
  return PlainText(plain);
}

}  // namespace xsec
