#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <memory>

#include "xsec/Commands.h"
#include "xsec/DrawingOptions.h"
#include "xsec/Terminal.h"
#include "xsec/diff/RegionDiff.h"

namespace xsec {

namespace {

constexpr const char* kExamples =
    "Examples:\n"
    "  xsec diff old.json new.json               a line for each region that was added, removed or changed\n"
    "  xsec diff old.json new.json --tol 0.01    places within 0.01 mm are the same\n"
    "\n"
    "Both files come from xsec regions -o FILE.json.\n"
    "\n"
    "Exit codes: 0 no difference, 1 differences, 2 wrong usage, 3 a file is unreadable.";

struct DiffOptions {
  std::string before;
  std::string after;
  double tolerance = 0;  // 0: as the files say
};

std::size_t Count(const std::vector<RegionChange>& changes, RegionChange::Kind kind) {
  return static_cast<std::size_t>(
      std::count_if(changes.begin(), changes.end(), [&](const RegionChange& change) { return change.kind == kind; }));
}

ExitCode RunDiff(const DiffOptions& options) {
  const FoundRegions before = LoadRegions(options.before);
  const FoundRegions after = LoadRegions(options.after);
  const double tolerance = options.tolerance > 0 ? options.tolerance : std::max(before.tolerance, after.tolerance);
  const std::vector<RegionChange> changes = CompareRegions(before, after, tolerance);
  std::string text;
  for (const RegionChange& change : changes) text += LineOf(change, tolerance) + "\n";
  text += fmt::format("{} and {} regions: {} removed, {} added, {} changed\n", before.regions.size(),
                      after.regions.size(), Count(changes, RegionChange::Kind::Removed),
                      Count(changes, RegionChange::Kind::Added), Count(changes, RegionChange::Kind::Changed));
  PrintToStandardOutput(text);
  return changes.empty() ? ExitCode::Fine : ExitCode::Findings;
}

}  // namespace

void AddDiffCommand(CommandLine& aLine) {
  const auto options = std::make_shared<DiffOptions>();
  const Command command = aLine.AddCommand("diff", "Compare the regions of two drawings", kExamples);
  command.AddRequired("BEFORE", "JSON of the regions before", options->before);
  command.AddRequired("AFTER", "JSON of the regions after", options->after);
  command.Add<double>("--tol", "MM",
                      "How far a place may move unnoticed. Without it the larger tolerance of the two files",
                      [options](double value) { options->tolerance = CheckedLength("--tol", value); });
  command.Run([options] { return RunDiff(*options); });
}

}  // namespace xsec
