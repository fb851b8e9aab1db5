// This library: the whole request of a host.

#include "benchmarks/support/HostRun.h"
#include "benchmarks/support/Program.h"

namespace {

class TRequest {
 public:
  explicit TRequest(const drawings::Drawing& aDrawing) : fRun(aDrawing) {}

  std::size_t operator()() {
    fRun.All();
    return fRun.FaceCount();
  }

 private:
  benchmarks::THostRun fRun;
};

}  // namespace

int main(int aCount, char** aArguments) {
  return benchmarks::RunProgram<TRequest>(aCount, aArguments);
}
