#pragma once

// The sizes at which benchmarks run, and how their growth is fitted.

#include <benchmark/benchmark.h>

namespace benchmarks {

/// From 1,000 up to a million, ten times as much each, fitted to n log n. What a size takes is in its own line.
inline void FromThousandToMillion(benchmark::internal::Benchmark* aBenchmark) {
  aBenchmark->RangeMultiplier(10)->Range(1000, 1000000)->Unit(benchmark::kMillisecond)->Complexity(benchmark::oNLogN);
}

/// The same up to 100,000: for chains and regions, of which no drawing has a larger one.
inline void FromThousandToHundredThousand(benchmark::internal::Benchmark* aBenchmark) {
  aBenchmark->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond)->Complexity(benchmark::oNLogN);
}

/// A number of entities, regions or vertices as the benchmark's argument has it.
inline std::size_t SizeOf(const benchmark::State& aState) {
  return static_cast<std::size_t>(aState.range(0));
}

}  // namespace benchmarks
