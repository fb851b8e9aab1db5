// Runs a fuzz target on the files named, in place of the fuzzer: what it has found, and what it began with, stay tests.

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "tests/fuzz/FuzzTarget.h"

int main(int aCount, char** aArguments) {
  int files = 0;
  for (int i = 1; i < aCount; ++i) {
    for (const auto& entry : std::filesystem::directory_iterator(aArguments[i])) {
      std::ifstream file(entry.path(), std::ios::binary);
      const std::vector<char> bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
      std::printf("%s\n", entry.path().c_str());
      std::fflush(stdout);
      LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
      ++files;
    }
  }
  std::printf("%d inputs\n", files);
  return files > 0 ? 0 : 1;
}
