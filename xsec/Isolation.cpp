#include "xsec/Isolation.h"

#include <fmt/format.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#ifdef __linux__
#include <sys/prctl.h>
#endif

#include "xsec/HeldSignals.h"
#include "xsec/Terminal.h"

namespace xsec {

namespace {

/// Whoever sends these wants the end.
bool IsRequestToEnd(int signal) {
  return signal == SIGINT || signal == SIGTERM || signal == SIGHUP;
}

std::string_view AdviceFor(int signal) {
  switch (signal) {
    case SIGKILL:
      return "the system may have run out of memory; --max-memory gives up before that";
    case SIGXCPU:
    case SIGXFSZ:
      return "that is a limit of the shell or the service that started it";
    default:
      return "that is a mistake in the program; please report it, if you can with the drawing";
  }
}

/// Asks for an end when the parent ends, which it may have done before it could be asked for.
void EndWithParent([[maybe_unused]] pid_t parent) {
#ifdef __linux__
  ::prctl(PR_SET_PDEATHSIG, SIGTERM);
  if (::getppid() != parent) std::raise(SIGTERM);
#endif
}

/// The child's status as waitpid has it. Signals among those held go on to the child until it has ended.
int AwaitChild(pid_t child, const HeldSignals& held) {
  int status = 0;
  for (int signal = 0;;) {
    ::sigwait(&held.Signals(), &signal);
    if (signal != SIGCHLD) {
      ::kill(child, signal);
    } else if (::waitpid(child, &status, WNOHANG) == child) {
      return status;
    }
  }
}

ExitCode AnswerToSignal(int signal) {
  if (IsRequestToEnd(signal)) std::raise(signal);
  Progress().Clear();
  Tell(fmt::format("the process at work was ended by signal {} ({}): {}", signal, ::strsignal(signal),
                   AdviceFor(signal)));
  return ExitCode::EndedBySignal;
}

}  // namespace

ExitCode RunApart(const std::vector<Output>& aOutputs, const std::function<ExitCode()>& aWork) {
  std::signal(SIGCHLD, SIG_DFL);  // where it is ignored, nobody hears how a child ended
  HeldSignals held{SIGINT, SIGTERM, SIGHUP, SIGCHLD};
  const pid_t parent = ::getpid();
  const pid_t child = ::fork();
  if (child < 0) {
    Tell(fmt::format("no process can be started ({}); leave out --isolate to go on without", std::strerror(errno)));
    return ExitCode::LimitReached;
  }
  if (child == 0) {
    EndWithParent(parent);
    held.Release();
    return aWork();
  }
  const int status = AwaitChild(child, held);
  if (WIFEXITED(status)) return static_cast<ExitCode>(WEXITSTATUS(status));
  RemoveUnfinished(aOutputs, child);
  held.Release();
  return AnswerToSignal(WTERMSIG(status));
}

}  // namespace xsec
