#pragma once

// The memory of this test program is counted, and can be made to run out: Allocations.cpp replaces operator new, for
// the library too.

#include <cstddef>
#include <cstdint>

namespace GeometryEngine::support {

/// How many allocations of the process are not freed yet.
std::int64_t LiveAllocations();

/// What they take, in bytes.
std::int64_t LiveBytes();

enum class TFailure { Once, ForGood };

/// While it lives, the calling thread's allocation number `aNumber` (from 1) throws std::bad_alloc, alone or with all
/// that come after it.
class TFailingAllocation {
 public:
  TFailingAllocation(std::int64_t aNumber, TFailure aFailure);
  ~TFailingAllocation();
  TFailingAllocation(const TFailingAllocation&) = delete;
  TFailingAllocation& operator=(const TFailingAllocation&) = delete;

  /// Whether that many allocations have been asked for.
  bool HasFailed() const;
};

/// How many bytes more than at its beginning the process has held at most, as the calling thread's allocations saw it.
class TMostMemory {
 public:
  TMostMemory();
  std::int64_t Bytes() const;

 private:
  std::int64_t fBefore;
};

/// While it lives, the calling thread's allocations of more bytes than these throw std::bad_alloc, as in a host with
/// little memory.
class TLargestAllocation {
 public:
  explicit TLargestAllocation(std::size_t aBytes);
  ~TLargestAllocation();
  TLargestAllocation(const TLargestAllocation&) = delete;
  TLargestAllocation& operator=(const TLargestAllocation&) = delete;
};

}  // namespace GeometryEngine::support
