#pragma once

// The frame of the programs that are compared with one another: each makes one drawing, works on it once, and prints
// one line of figures.

#include <sys/resource.h>

#include <chrono>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "benchmarks/drawings/Drawing.h"

namespace benchmarks {

/// Seconds of the processor that the process has used, its own and the system's on its behalf.
inline double ProcessorSeconds() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// The most memory that the process has held so far, the drawing included.
inline double PeakMegabytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

/// `program KIND ENTITIES`. A TWork is made from the drawing, which isn't measured; its call operator, which answers
/// the number of faces, is.
template <typename TWork>
int RunProgram(int aCount, char** aArguments) {
  const drawings::Kind* kind = aCount == 3 ? drawings::FindKind(aArguments[1]) : nullptr;
  const long entities = aCount == 3 ? std::strtol(aArguments[2], nullptr, 10) : 0;
  if (kind == nullptr || entities < 1) {
    std::fprintf(stderr, "usage: %s KIND ENTITIES\nkinds:", aArguments[0]);
    for (const drawings::Kind& known : drawings::Kinds()) std::fprintf(stderr, " %s", known.name.data());
    std::fprintf(stderr, "\n");
    return 2;
  }
  const drawings::Drawing drawing = kind->make(static_cast<std::size_t>(entities));
  const auto work = std::make_unique<TWork>(drawing);
  const double processorBegin = ProcessorSeconds();
  const auto begin = std::chrono::steady_clock::now();
  const std::size_t faces = (*work)();
  const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - begin;
  std::printf("entities %zu faces %zu wall %.6f cpu %.6f peak_mb %.1f\n", drawing.size(), faces, wall.count(),
              ProcessorSeconds() - processorBegin, PeakMegabytes());
  std::fflush(stdout);
  std::_Exit(0);  // taking it all down again is not measured, and need not be waited for
}

}  // namespace benchmarks
