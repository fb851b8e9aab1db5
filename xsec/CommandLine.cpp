#include "xsec/CommandLine.h"

#include <CLI/CLI.hpp>
#include <cstdint>
#include <optional>
#include <vector>

namespace xsec {

namespace {

std::string FaultOf(const std::string& command) {
  if (command.empty()) return "no command is given";
  return command + (command.starts_with("-") ? ": a command has to come first" : ": unknown command");
}

/// What the parser would only call a subcommand that is missing.
void CheckCommand(const CLI::App& app, int count, const char* const* arguments) {
  const std::string command = count > 1 ? arguments[1] : "";
  if (!command.empty() && app.get_option_no_throw(command) != nullptr) return;
  std::string known;
  for (const CLI::App* each : app.get_subcommands([](const CLI::App*) { return true; })) {
    if (each->get_name() == command) return;
    known += (known.empty() ? "" : ", ") + each->get_name();
  }
  throw UsageError(FaultOf(command) + "; known are " + known);
}

}  // namespace

Command Command::InGroup(const char* aGroup) const {
  Command command = *this;
  command.fGroup = aGroup;
  return command;
}

void Command::AddRequired(const char* aName, const char* aMeaning, std::string& aValue) const {
  fApp->add_option(aName, aValue, aMeaning)->required()->type_name("");
}

template <typename Value>
void Command::Add(const std::string& aName, const char* aUnit, const std::string& aMeaning,
                  const std::function<void(const Value&)>& aKeep) const {
  // No extra arguments: an option that may be repeated takes one value each time, so that the drawing may follow it.
  fApp->add_option_function<Value>(aName, aKeep, aMeaning)->type_name(aUnit)->group(fGroup)->allow_extra_args(false);
}

template <typename Value>
using Keep = std::function<void(const Value&)>;

template void Command::Add(const std::string&, const char*, const std::string&, const Keep<std::string>&) const;
template void Command::Add(const std::string&, const char*, const std::string&, const Keep<double>&) const;
template void Command::Add(const std::string&, const char*, const std::string&,
                           const Keep<std::optional<double>>&) const;
template void Command::Add(const std::string&, const char*, const std::string&, const Keep<int>&) const;
template void Command::Add(const std::string&, const char*, const std::string&, const Keep<std::int64_t>&) const;
template void Command::Add(const std::string&, const char*, const std::string&,
                           const Keep<std::vector<std::string>>&) const;

void Command::AddFlag(const char* aName, const char* aMeaning, bool& aFlag, bool aGiven) const {
  fApp->add_flag_callback(
          aName, [&aFlag, aGiven] { aFlag = aGiven; }, aMeaning)
      ->group(fGroup);
}

void Command::Check(const std::function<void()>& aCheck) const {
  fApp->parse_complete_callback(aCheck);
}

void Command::Run(const Action& aAction) const {
  fApp->callback([asked = fAction, aAction] { *asked = aAction; });
}

CommandLine::CommandLine(const char* aDescription, const char* aExamples)
    : fApp(std::make_unique<CLI::App>(aDescription, "xsec")) {
  fApp->set_version_flag("--version", "xsec " XSEC_VERSION);
  fApp->footer(aExamples);
  fApp->require_subcommand(1);
}

CommandLine::~CommandLine() = default;

Command CommandLine::AddCommand(const char* aName, const char* aDescription, const char* aExamples) {
  CLI::App& app = *fApp->add_subcommand(aName, aDescription);
  app.footer(aExamples);
  return {app, fAction};
}

Action CommandLine::Parse(int aCount, const char* const* aArguments) {
  CheckCommand(*fApp, aCount, aArguments);
  try {
    fApp->parse(aCount, aArguments);
  } catch (const CLI::Success& success) {
    fApp->exit(success);
    return {};
  } catch (const CLI::ParseError& error) {
    throw UsageError(error.what());
  }
  return fAction;
}

}  // namespace xsec
