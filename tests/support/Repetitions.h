#pragma once

namespace GeometryEngine::support {

/// So many times, or as many times more as the environment says in RELIABILITY_TIMES: tools/reliability asks for a
/// hundred times what every run does.
int Repetitions(int aTimes);

}  // namespace GeometryEngine::support
