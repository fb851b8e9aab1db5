#pragma once

// The options that every command with a drawing has: which drawing, in which unit, and with which settings.

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "xsec/CommandLine.h"
#include "xsec/Drawing.h"
#include "xsec/DxfReader.h"
#include "xsec/Errors.h"
#include "xsec/ProcessLimits.h"
#include "xsec/Settings.h"
#include "xsec/output/OutputFiles.h"

namespace xsec {

struct DrawingOptions {
  std::string path;
  ReadOptions reading;
  std::vector<std::string> layers;          ///< patterns of those that are taken; none for all
  std::vector<std::string> excludedLayers;  ///< patterns of those that are not
  bool strict = false;                      ///< whatever is not read is an error
  SettingsRequest settings;
  ProcessLimits limits;
  bool isIsolated = false;  ///< the work is done in a process apart
};

/// Binds the options to where they are kept, which must outlive the parsing. Values that make no sense are a UsageError
/// while they are parsed.
void AddDrawingOptions(const Command& aCommand, DrawingOptions& aOptions);

/// Does a command's work as the options ask: here or in a process apart.
ExitCode RunAsAsked(const DrawingOptions& aOptions, const std::vector<Output>& aOutputs,
                    const std::function<ExitCode()>& aWork);

/// The length, if it is one above 0. Throws UsageError, which names the option.
double CheckedLength(const char* aOption, double aLength);

/// The area, if it is 0 or more. Throws UsageError, which names the option.
double CheckedArea(const char* aOption, double aArea);

/// "X,Y" as two numbers. Throws UsageError, which names the option.
std::pair<double, double> PairOf(const std::string& aOption, const std::string& aText);

/// The drawing that the options name, with the layers that they ask for. Throws InputError.
Drawing LoadDrawing(const DrawingOptions& aOptions);

}  // namespace xsec
