#include "xsec/Run.h"

#include <fmt/format.h>

#include <exception>
#include <new>

#include "xsec/Commands.h"
#include "xsec/Terminal.h"

namespace xsec {

namespace {

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
  } catch (const std::bad_alloc&) {
    Tell("the memory is used up; leave out what does not belong to the cross-section, or give more by --max-memory");
    return ExitCode::LimitReached;
  } catch (const std::exception& error) {
    Tell(fmt::format("unexpected fault: {}", error.what()));
    return ExitCode::UnexpectedFault;
  }
}

}  // namespace

ExitCode Run(int aCount, const char* const* aArguments) {
  OccupyClosedStreams();
  try {
    const Action action = ParseArguments(aCount, aArguments);
    return action ? action() : ExitCode::Fine;
  } catch (...) {
    return AnswerToException();
  }
}

}  // namespace xsec
