#include "tests/support/RunWithStack.h"

#include <pthread.h>

#include <exception>
#include <system_error>

namespace GeometryEngine::support {

namespace {

struct TJob {
  const std::function<void()>& function;
  std::exception_ptr thrown;
};

void* Run(void* aJob) {
  TJob& job = *static_cast<TJob*>(aJob);
  try {
    job.function();
  } catch (...) {
    job.thrown = std::current_exception();
  }
  return nullptr;
}

void Check(int aError) {
  if (aError != 0) throw std::system_error(aError, std::generic_category(), "RunWithStack");
}

}  // namespace

void RunWithStack(std::size_t aBytes, const std::function<void()>& aFunction) {
  TJob job{aFunction, nullptr};
  pthread_attr_t attributes;
  pthread_t thread;
  Check(pthread_attr_init(&attributes));
  Check(pthread_attr_setstacksize(&attributes, kStackFactor * aBytes));
  Check(pthread_create(&thread, &attributes, &Run, &job));
  Check(pthread_join(thread, nullptr));
  Check(pthread_attr_destroy(&attributes));
  if (job.thrown) std::rethrow_exception(job.thrown);
}

}  // namespace GeometryEngine::support
