// The first floor: see BarePipeline.h.

#include "benchmarks/floor/BarePipeline.h"
#include "benchmarks/support/Program.h"

int main(int aCount, char** aArguments) {
  return benchmarks::RunProgram<benchmarks::TBarePipeline>(aCount, aArguments);
}
