// A drawing's bytes from the file system.
#include <fmt/format.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

#include "xsec/DxfText.h"
#include "xsec/Errors.h"

namespace xsec {

namespace {

constexpr std::size_t kChunk = std::size_t{1024} * 1024;  // bytes read at a time

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

[[noreturn]] void FailForSize(const std::string& path, std::size_t largest) {
  throw InputError(path, 0, fmt::format("the file has more than {} MiB", largest / 1024 / 1024),
                   "leave out what does not belong to it, or allow more with --max-file");
}

std::string SystemMessage(int code) {
  return std::generic_category().message(code);
}

// A size that the file system knows beforehand saves reading it; a pipe has none.
void CheckKindAndSize(const std::string& path, std::size_t largest) {
  std::error_code fault;
  const auto status = std::filesystem::status(path, fault);
  if (std::filesystem::is_directory(status)) {
    throw InputError(path, 0, "this is a directory", "name a DXF drawing");
  }
  if (std::filesystem::is_regular_file(status) && std::filesystem::file_size(path, fault) > largest && !fault) {
    FailForSize(path, largest);
  }
}

}  // namespace

std::string LoadFile(const std::string& aPath, std::size_t aLargest) {
  CheckKindAndSize(aPath, aLargest);
  const std::unique_ptr<std::FILE, FileCloser> file(std::fopen(aPath.c_str(), "rb"));
  if (!file) {
    throw InputError(aPath, 0, fmt::format("the file cannot be opened ({})", SystemMessage(errno)), "check its name");
  }
  std::string text;
  std::string chunk(kChunk, '\0');
  while (const std::size_t count = std::fread(chunk.data(), 1, chunk.size(), file.get())) {
    text.append(chunk, 0, count);
    if (text.size() > aLargest) {
      FailForSize(aPath, aLargest);
    }
  }
  if (std::ferror(file.get()) != 0) {
    throw InputError(aPath, 0, fmt::format("the file cannot be read ({})", SystemMessage(errno)), "");
  }
  return text;
}

}  // namespace xsec
