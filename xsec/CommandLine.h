#pragma once

// The arguments: which commands there are, which options each of them has, and where their values go. Only the source
// of this header knows the library that reads arguments, which takes long to compile.

#include <functional>
#include <memory>
#include <string>

#include "xsec/Errors.h"

namespace CLI {
class App;
}

namespace xsec {

using Action = std::function<ExitCode()>;

/// A command of a CommandLine, which keeps it. Variables and whatever functions refer to must outlive the parsing,
/// during which they get the values; functions throw UsageError at values that make no sense.
class Command {
 public:
  Command(CLI::App& aApp, Action& aAction) : fApp(&aApp), fAction(&aAction) {}

  /// The same command; the options that are added to this one stand together in its help.
  Command InGroup(const char* aGroup) const;

  /// What has to be given, without the name of an option before it.
  void AddRequired(const char* aName, const char* aMeaning, std::string& aValue) const;

  /// An option with a value, for which aUnit stands in the help. Value: std::string, double, std::optional<double>,
  /// int, std::int64_t, and std::vector<std::string> for an option that may be repeated.
  template <typename Value>
  void Add(const std::string& aName, const char* aUnit, const std::string& aMeaning,
           const std::function<void(const Value&)>& aKeep) const;
  template <typename Value>
  void Add(const std::string& aName, const char* aUnit, const std::string& aMeaning, Value& aVariable) const {
    Add<Value>(aName, aUnit, aMeaning, [&aVariable](const Value& value) { aVariable = value; });
  }

  /// An option without a value, which sets aFlag to what it means.
  void AddFlag(const char* aName, const char* aMeaning, bool& aFlag, bool aGiven = true) const;

  /// Done once all options have their values.
  void Check(const std::function<void()>& aCheck) const;

  /// What is to be run when the arguments name this command.
  void Run(const Action& aAction) const;

 private:
  CLI::App* fApp;
  Action* fAction;
  const char* fGroup = "Options";
};

/// The commands of the program, and what of them the arguments ask for.
class CommandLine {
 public:
  CommandLine(const char* aDescription, const char* aExamples);
  ~CommandLine();

  Command AddCommand(const char* aName, const char* aDescription, const char* aExamples);

  /// What the arguments ask to be run; empty when they asked for help or the version, which have then been printed.
  /// Throws UsageError.
  Action Parse(int aCount, const char* const* aArguments);

 private:
  std::unique_ptr<CLI::App> fApp;
  Action fAction;
};

}  // namespace xsec
