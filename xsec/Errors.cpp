#include "xsec/Errors.h"

#include <fmt/core.h>

#include <utility>

namespace xsec {

namespace {

std::string Place(const std::string& file, std::size_t line) {
  return line == 0 ? file : fmt::format("{}:{}", file, line);
}

std::string Sentence(const std::string& problem, const std::string& advice) {
  return advice.empty() ? problem : fmt::format("{}; {}", problem, advice);
}

}  // namespace

InputError::InputError(std::string aFile, std::size_t aLine, std::string aProblem, std::string aAdvice)
    : std::runtime_error(fmt::format("{}: {}", Place(aFile, aLine), Sentence(aProblem, aAdvice))),
      fFile(std::move(aFile)),
      fLine(aLine),
      fProblem(std::move(aProblem)),
      fAdvice(std::move(aAdvice)) {}

OutputError::OutputError(std::string aFile, const std::string& aProblem)
    : std::runtime_error(fmt::format("{}: {}", aFile, aProblem)), fFile(std::move(aFile)) {}

}  // namespace xsec
