#pragma once

// The options of commands that look for regions: how they are named, turned, counted, and which are left out.

#include <optional>
#include <string>

#include "xsec/CommandLine.h"
#include "xsec/RegionSearch.h"
#include "xsec/Settings.h"

namespace xsec {

struct SearchOptions {
  SearchRequest request;
  std::string rules;  ///< path of the file, empty for none
};

/// As AddDrawingOptions; what is for the library goes into aSettings.
void AddSearchOptions(const Command& aCommand, SearchOptions& aOptions, SettingsRequest& aSettings);

/// How often the machine holds what is drawn. Its name is an option of other commands too.
void AddCopiesOption(const Command& aCommand, std::size_t& aCopies, const char* aMeaning);

/// The request with its rules read. Throws InputError.
SearchRequest LoadRequest(const SearchOptions& aOptions);

}  // namespace xsec
