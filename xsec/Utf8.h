#pragma once

#include <string>
#include <string_view>

namespace xsec {

/// A name from a drawing as UTF-8: text that is UTF-8 stays, other bytes are taken as Latin-1, "\U+00E4" is decoded,
/// and control characters become '?', so that every output may hold the name.
std::string ToUtf8(std::string_view aText);

}  // namespace xsec
