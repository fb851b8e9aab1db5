#include "tests/support/RunWithStack.h"

#include <pthread.h>

#include <cstddef>
#include <stdexcept>
#include <system_error>

#include <gtest/gtest.h>

namespace GeometryEngine::support {
namespace {

TEST(RunWithStack, RunsTheFunctionOnAStackOfThatSize) {
  std::size_t size = 0;
  RunWithStack(256 * 1024, [&] {
    pthread_attr_t attributes;
    ASSERT_EQ(pthread_getattr_np(pthread_self(), &attributes), 0);
    EXPECT_EQ(pthread_attr_getstacksize(&attributes, &size), 0);
    pthread_attr_destroy(&attributes);
  });
  EXPECT_EQ(size, kStackFactor * 256 * 1024);
}

TEST(RunWithStack, ThrowsOnWhatTheFunctionThrows) {
  EXPECT_THROW(RunWithStack(256 * 1024, [] { throw std::runtime_error("inside"); }), std::runtime_error);
}

TEST(RunWithStack, RefusesAStackThatNoThreadCanHave) {
  EXPECT_THROW(RunWithStack(1, [] {}), std::system_error);
}

}  // namespace
}  // namespace GeometryEngine::support
