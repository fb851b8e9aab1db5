#pragma once

#include <fmt/format.h>

#include <algorithm>
#include <string>
#include <utility>

namespace xsec {

/// A text that grows by what is added, for writers of files to derive from. (What formats into a string at once,
/// without one in between, would take each writer seconds to compile.)
class FormattedText {
 protected:
  template <typename... Values>
  void Add(fmt::format_string<Values...> aFormat, Values&&... aValues) {
    fText += fmt::format(aFormat, std::forward<Values>(aValues)...);
  }

  std::string fText;
};

/// A text between quotes, for formats that know no way to put a quote inside.
inline std::string Quoted(std::string aText) {
  std::replace(aText.begin(), aText.end(), '"', '\'');
  return '"' + aText + '"';
}

}  // namespace xsec
