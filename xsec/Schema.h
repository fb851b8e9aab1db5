#pragma once

#include <string_view>

namespace xsec {

/// The JSON schema of what JsonText gives, from xsec/schema/regions.schema.json.
std::string_view RegionsSchema();

}  // namespace xsec
