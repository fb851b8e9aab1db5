#pragma once

#include <string>
#include <string_view>

namespace xsec {

/// The words of a TEXT: its %% codes for signs are spelled out, those for lines below and above go.
std::string PlainText(std::string_view aText);

/// The words of an MTEXT without what shapes them: fonts, heights, colours, braces. Lines are parted by a blank.
std::string PlainMText(std::string_view aText);

}  // namespace xsec
