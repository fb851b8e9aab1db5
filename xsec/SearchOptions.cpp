#include "xsec/SearchOptions.h"

#include <fmt/format.h>

#include <cmath>
#include <map>

#include "xsec/DrawingOptions.h"
#include "xsec/Errors.h"

namespace xsec {

namespace {

constexpr int kMostCopies = 100000;

double CheckedTurn(double turn) {
  if (std::isfinite(turn)) return turn;
  throw UsageError(fmt::format("--turn {}: expected an angle in degrees", turn));
}

NameSource SourceNamed(const std::string& name) {
  const std::map<std::string, NameSource> sources = {
      {"layer", NameSource::Layer}, {"text", NameSource::Text}, {"block", NameSource::Block}};
  const auto place = sources.find(name);
  if (place != sources.end()) return place->second;
  throw UsageError(fmt::format("--name-from {}: unknown; known are layer, text, block", name));
}

void AddNaming(const Command& command, SearchOptions& options) {
  command.Add("--rules", "FILE", "Give names, types, colours, materials by the rules in a JSON file", options.rules);
  command.Add<std::string>(
      "--name-from", "layer|text|block",
      "Name regions by the layer of their outline (as without this), the text in them, or the block they come from",
      [&](const std::string& name) { options.request.naming.source = SourceNamed(name); });
}

}  // namespace

void AddSearchOptions(const Command& aCommand, SearchOptions& aOptions, SettingsRequest& aSettings) {
  AddNaming(aCommand, aOptions);
  aCommand.Add<double>("--min-area", "MM2", "Leave out regions with less net area",
                       [&](double area) { aOptions.request.minimumArea = CheckedArea("--min-area", area); });
  aCommand.Add<double>("--min-label-area", "MM2",
                       "Write no names into the picture of smaller regions, holes counted in",
                       [&](double area) { aSettings.minimumLabelArea = CheckedArea("--min-label-area", area); });
  aCommand.Add<double>("--turn", "DEG", "Turn the drawing before its regions are sought, and the regions back after it",
                       [&](double turn) { aOptions.request.turn = CheckedTurn(turn); });
}

void AddCopiesOption(const Command& aCommand, std::size_t& aCopies, const char* aMeaning) {
  aCommand.Add<int>("--copies", "N", aMeaning, [&aCopies](int copies) {
    if (copies < 1 || copies > kMostCopies) {
      throw UsageError(fmt::format("--copies {}: expected a number from 1 to {}", copies, kMostCopies));
    }
    aCopies = static_cast<std::size_t>(copies);
  });
}

SearchRequest LoadRequest(const SearchOptions& aOptions) {
  SearchRequest request = aOptions.request;
  if (!aOptions.rules.empty()) request.naming.rules = LoadRules(aOptions.rules);
  return request;
}

}  // namespace xsec
