#include "tests/reliability/Allocations.h"

#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <limits>
#include <new>

namespace {

std::atomic<std::int64_t> live_allocations{0};
std::atomic<std::int64_t> live_bytes{0};
thread_local std::int64_t most_bytes = 0;
thread_local std::int64_t left = 0;  // allocations until the one that fails; 0: none does
thread_local bool for_good = false;
thread_local bool has_failed = false;
thread_local std::size_t largest = std::numeric_limits<std::size_t>::max();  // bytes

bool Fails() {
  if (has_failed && for_good) return true;
  if (left == 0 || --left != 0) return false;
  has_failed = true;
  return true;
}

std::int64_t BytesOf(void* aMemory) {
  return static_cast<std::int64_t>(malloc_usable_size(aMemory));
}

void* Allocate(std::size_t aSize) {
  if (Fails() || aSize > largest) return nullptr;
  void* memory = std::malloc(aSize == 0 ? 1 : aSize);
  if (memory == nullptr) return nullptr;
  live_allocations.fetch_add(1, std::memory_order_relaxed);
  most_bytes = std::max(most_bytes, live_bytes += BytesOf(memory));
  return memory;
}

void Free(void* aMemory) {
  if (aMemory == nullptr) return;
  live_allocations.fetch_sub(1, std::memory_order_relaxed);
  live_bytes -= BytesOf(aMemory);
  std::free(aMemory);
}

}  // namespace

void* operator new(std::size_t aSize) {
  if (void* memory = Allocate(aSize)) return memory;
  throw std::bad_alloc();
}

void* operator new(std::size_t aSize, const std::nothrow_t&) noexcept {
  return Allocate(aSize);
}

void operator delete(void* aMemory) noexcept {
  Free(aMemory);
}

void operator delete(void* aMemory, std::size_t) noexcept {
  Free(aMemory);
}

void operator delete(void* aMemory, const std::nothrow_t&) noexcept {
  Free(aMemory);
}

namespace GeometryEngine::support {

std::int64_t LiveAllocations() {
  return live_allocations.load(std::memory_order_relaxed);
}

std::int64_t LiveBytes() {
  return live_bytes;
}

TFailingAllocation::TFailingAllocation(std::int64_t aNumber, TFailure aFailure) {
  has_failed = false;
  for_good = aFailure == TFailure::ForGood;
  left = aNumber;
}

TFailingAllocation::~TFailingAllocation() {
  left = 0;
  has_failed = false;
  for_good = false;
}

bool TFailingAllocation::HasFailed() const {
  return has_failed;
}

TMostMemory::TMostMemory() : fBefore(live_bytes) {
  most_bytes = fBefore;
}

std::int64_t TMostMemory::Bytes() const {
  return most_bytes - fBefore;
}

TLargestAllocation::TLargestAllocation(std::size_t aBytes) {
  largest = aBytes;
}

TLargestAllocation::~TLargestAllocation() {
  largest = std::numeric_limits<std::size_t>::max();
}

}  // namespace GeometryEngine::support
