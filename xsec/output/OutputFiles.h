#pragma once

// The files that a run writes. Each appears whole or not at all, also when the run is interrupted or the disk is full.

#include <sys/types.h>

#include <string>
#include <vector>

#include "xsec/Report.h"

namespace xsec {

struct Output {
  std::string path;
  std::string (*render)(const Report&);
};

/// What each path asks for by its suffix, in any case. Throws UsageError for an unknown suffix and for a path given
/// twice.
std::vector<Output> FindOutputs(const std::vector<std::string>& aPaths);

/// Throws OutputError when a file of that name can plainly not be made, so that nobody waits for a result in vain, and
/// UsageError when it would replace one of the files that are read. Inputs without a name are none.
void CheckOutputs(const std::vector<Output>& aOutputs, const std::vector<std::string>& aInputs);

/// Writes every file under a name of its own beside the target and then moves them all into place. Throws OutputError;
/// no temporary file stays behind. Interrupts wait until the moves are done.
void WriteOutputs(const std::vector<Output>& aOutputs, const Report& aReport);

/// Removes what another process that wrote these outputs has left beside them because a signal ended it.
void RemoveUnfinished(const std::vector<Output>& aOutputs, pid_t aProcess);

}  // namespace xsec
