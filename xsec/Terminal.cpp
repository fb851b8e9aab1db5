#include "xsec/Terminal.h"

#include <fmt/format.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "xsec/Errors.h"

namespace xsec {

namespace {

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
  if (fShown) fmt::print(stderr, "\r\033[K{} ...", aDoing);
}

void Progress::Clear() const {
  if (fShown) fmt::print(stderr, "\r\033[K");
}

void Tell(std::string_view aLine) {
  const bool isColoured = aLine.starts_with("warning") && StandardErrorHasColours();
  fmt::print(stderr, "xsec: {}{}{}\n", isColoured ? "\033[33m" : "", aLine, isColoured ? "\033[0m" : "");
}

void PrintToStandardOutput(const std::string& aText) {
  const bool written = std::fwrite(aText.data(), 1, aText.size(), stdout) == aText.size();
  if (!written || std::fflush(stdout) != 0) throw OutputError("standard output", std::strerror(errno));
}

}  // namespace xsec
