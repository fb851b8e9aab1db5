#pragma once

// What every fuzz target is made of: the entry that the fuzzer calls, and a check that ends the process with a message.

#include <cstddef>
#include <cstdint>

/// Takes any bytes. Ends the process when something does not hold that has to, whatever the bytes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* aData, std::size_t aSize);

namespace fuzz {

/// Says what does not hold and aborts, unless it does.
void Require(bool aHolds, const char* aWhat);

}  // namespace fuzz
