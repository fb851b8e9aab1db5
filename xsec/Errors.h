#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace xsec {

/// What the program answers to the shell.
enum class ExitCode : int {
  Fine = 0,
  Findings = 1,  ///< of a check; the drawing was read and looked through
  WrongUsage = 2,
  InputUnreadable = 3,
  OutputNotWritten = 4,
  NoClosedRegion = 5,
  CannotBeOffset = 6,
  LimitReached = 7,      ///< the memory or the time that there is, or that was given, is used up
  EndedBySignal = 8,     ///< the process at work, where it is one apart: it crashed or was killed
  UnexpectedFault = 70,  ///< nothing the user can help: there is a mistake in the program
};

/// The drawing cannot be read. what() is one line for people: "FILE:LINE: what is wrong; what to do".
class InputError : public std::runtime_error {
 public:
  /// aLine counts from 1; 0 stands for the file as a whole and is left out of the message.
  InputError(std::string aFile, std::size_t aLine, std::string aProblem, std::string aAdvice);

  const std::string& File() const noexcept { return fFile; }
  std::size_t Line() const noexcept { return fLine; }
  const std::string& Problem() const noexcept { return fProblem; }
  const std::string& Advice() const noexcept { return fAdvice; }

 private:
  std::string fFile;
  std::size_t fLine;
  std::string fProblem;
  std::string fAdvice;
};

/// A result cannot be written. what() is one line: "FILE: what is wrong".
class OutputError : public std::runtime_error {
 public:
  OutputError(std::string aFile, const std::string& aProblem);

  const std::string& File() const noexcept { return fFile; }

 private:
  std::string fFile;
};

/// The command line asks for what cannot be done: an unknown unit, setting, suffix.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace xsec
