#include "xsec/Run.h"

#include <fmt/format.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>

#include "xsec/CommandLine.h"
#include "xsec/DxfReader.h"
#include "xsec/RegionDetection.h"
#include "xsec/Report.h"

namespace xsec {

namespace {

/// One line on a terminal that says what goes on; it makes way for everything else.
class Progress {
 public:
  Progress() : fShown(::isatty(STDERR_FILENO) != 0) {}
  ~Progress() { Clear(); }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  void Show(std::string_view doing) const {
    if (fShown) fmt::print(stderr, "\r\033[K{} ...", doing);
  }
  void Clear() const {
    if (fShown) fmt::print(stderr, "\r\033[K");
  }

 private:
  bool fShown;
};

void Tell(std::string_view line) {
  fmt::print(stderr, "xsec: {}\n", line);
}

void PrintToStandardOutput(const std::string& text) {
  const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  if (!written || std::fflush(stdout) != 0) throw OutputError("standard output", std::strerror(errno));
}

ExitCode RunRegions(const RegionsCommand& command) {
  CheckOutputs(command.outputs);
  const Progress progress;
  progress.Show("reading " + command.drawing);
  const Drawing drawing = ReadDrawing(command.drawing, {command.units, std::nullopt});
  const Settings settings = ApplySettings(command.settings, drawing.extents);
  progress.Show(fmt::format("finding regions among {} entities", drawing.entities.size()));
  const Detection detection = DetectRegions(drawing, settings);
  const Report report{drawing, settings, detection};
  progress.Show("writing");
  WriteOutputs(command.outputs, report);
  progress.Clear();

  for (const std::string& line : DiagnosticLines(report)) Tell(line);
  for (const Output& output : command.outputs) Tell("wrote " + output.path);
  PrintToStandardOutput(TableText(report));
  if (!detection.regions.empty()) return ExitCode::Fine;
  Tell("no closed region found");
  return ExitCode::NoClosedRegion;
}

/// The answer to the exception that is under way, with its message told.
ExitCode AnswerToException() {
  try {
    throw;
  } catch (const UsageError& error) {
    Tell(error.what());
    Tell("xsec --help tells more");
    return ExitCode::WrongUsage;
  } catch (const InputError& error) {
    Tell(error.what());
    return ExitCode::InputUnreadable;
  } catch (const OutputError& error) {
    Tell(error.what());
    return ExitCode::OutputNotWritten;
  } catch (const std::exception& error) {
    Tell(fmt::format("unexpected fault: {}", error.what()));
    return ExitCode::UnexpectedFault;
  }
}

}  // namespace

ExitCode Run(int aCount, const char* const* aArguments) {
  try {
    const auto command = ParseCommandLine(aCount, aArguments);
    return command ? RunRegions(*command) : ExitCode::Fine;
  } catch (...) {
    return AnswerToException();
  }
}

}  // namespace xsec
