#include "xsec/Terminal.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "xsec/Errors.h"

namespace xsec {

namespace {

void WriteToStandardError(const std::string& text) {
  std::fwrite(text.data(), 1, text.size(), stderr);
}

bool StandardErrorIsTerminal() {
  const char* kind = std::getenv("TERM");
  return ::isatty(STDERR_FILENO) != 0 && kind != nullptr && std::string_view(kind) != "dumb";
}

/// https://no-color.org: whoever sets the variable to anything wants no colours.
bool StandardErrorHasColours() {
  const char* noColour = std::getenv("NO_COLOR");
  return StandardErrorIsTerminal() && (noColour == nullptr || *noColour == '\0');
}

}  // namespace

Progress::Progress() : fShown(StandardErrorIsTerminal()) {}

void Progress::Show(std::string_view aDoing) const {
  if (fShown) WriteToStandardError(fmt::format("\r\033[K{} ...", aDoing));
}

void Progress::Clear() const {
  if (fShown) WriteToStandardError("\r\033[K");
}

void OccupyClosedStreams() {
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (::fcntl(stream, F_GETFD) >= 0) continue;
    ::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);  // takes the lowest number that is free
  }
}

void Tell(std::string_view aLine) {
  const bool isColoured = aLine.starts_with("warning") && StandardErrorHasColours();
  WriteToStandardError(fmt::format("xsec: {}{}{}\n", isColoured ? "\033[33m" : "", aLine, isColoured ? "\033[0m" : ""));
}

void PrintToStandardOutput(const std::string& aText) {
  const bool written = std::fwrite(aText.data(), 1, aText.size(), stdout) == aText.size();
  if (!written || std::fflush(stdout) != 0) throw OutputError("standard output", std::strerror(errno));
}

}  // namespace xsec
