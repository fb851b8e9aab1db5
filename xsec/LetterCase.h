#pragma once

#include <string_view>

namespace xsec {

/// The letter in lower case; other than A to Z as it is.
char Lower(char aLetter);

/// Whether two names are one but for the case of the letters A to Z.
bool IsSameName(std::string_view aFirst, std::string_view aSecond);

}  // namespace xsec
