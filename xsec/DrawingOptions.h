#pragma once

// The options that every command with a drawing has: which drawing, in which unit, and with which settings.

#include <optional>
#include <string>

#include "xsec/Drawing.h"
#include "xsec/Settings.h"

namespace CLI {
class App;
}

namespace xsec {

struct DrawingOptions {
  std::string path;
  std::optional<DrawingUnits> units;
  SettingsRequest settings;
};

/// Binds the options to where they are kept, which must outlive the parsing. Values that make no sense are a UsageError
/// while they are parsed.
void AddDrawingOptions(CLI::App& aCommand, DrawingOptions& aOptions);

/// The drawing that the options name. Throws InputError.
Drawing LoadDrawing(const DrawingOptions& aOptions);

}  // namespace xsec
