#include "xsec/LetterCase.h"

#include <algorithm>

namespace xsec {

char Lower(char aLetter) {
  return 'A' <= aLetter && aLetter <= 'Z' ? static_cast<char>(aLetter - 'A' + 'a') : aLetter;
}

bool IsSameName(std::string_view aFirst, std::string_view aSecond) {
  return std::equal(aFirst.begin(), aFirst.end(), aSecond.begin(), aSecond.end(),
                    [](char a, char b) { return Lower(a) == Lower(b); });
}

}  // namespace xsec
