#pragma once

#include <functional>
#include <vector>

#include "xsec/Errors.h"
#include "xsec/output/OutputFiles.h"

namespace xsec {

/// Does the work in a child process and answers what it does there: in the child the answer of the work, in this
/// process, which waits meanwhile, the child's exit code. What the work throws comes through in the child. A child that
/// a signal ends leaves nothing half written of the outputs; it is told, with what may help, and the answer is
/// ExitCode::EndedBySignal. SIGINT, SIGTERM and SIGHUP are handed on to the child, and this process ends by the one
/// that the child ended by. The child is asked to end when this process is gone.
/// REQUIRES: no other thread runs, and nothing waits in a buffer to be printed.
ExitCode RunApart(const std::vector<Output>& aOutputs, const std::function<ExitCode()>& aWork);

}  // namespace xsec
