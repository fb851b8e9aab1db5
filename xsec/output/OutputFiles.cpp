#include "xsec/output/OutputFiles.h"

#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <utility>

#include "xsec/Errors.h"
#include "xsec/HeldSignals.h"
#include "xsec/LetterCase.h"

namespace xsec {

namespace {

namespace fs = std::filesystem;

struct Format {
  const char* suffix;
  std::string (*render)(const Report&);
};

constexpr std::array<Format, 6> kFormats = {{{".svg", &SvgText},
                                             {".json", &JsonText},
                                             {".csv", &CsvText},
                                             {".dxf", &DxfOutputText},
                                             {".geo", &GeoText},
                                             {".fem", &FemText}}};
constexpr int kTemporaryNames = 100;

std::string Suffixes() {
  std::string names;
  for (const Format& format : kFormats) names += (names.empty() ? "" : ", ") + std::string(format.suffix);
  return names;
}

const Format& FindFormat(const std::string& path) {
  const std::string suffix = fs::path(path).extension().string();
  const auto format =
      std::find_if(kFormats.begin(), kFormats.end(), [&](const Format& f) { return IsSameName(f.suffix, suffix); });
  if (format == kFormats.end()) {
    throw UsageError(fmt::format("-o {}: unknown suffix \"{}\"; known are {}", path, suffix, Suffixes()));
  }
  return *format;
}

/// Where a file of that path comes to stand: a link keeps its place, and the file it leads to is replaced.
fs::path PlaceOf(const std::string& path) {
  std::error_code error;
  const fs::path real = fs::canonical(path, error);
  return error ? fs::path(path) : real;
}

/// As it is where nobody knows the folder that it counts from.
fs::path Absolute(const fs::path& path) {
  std::error_code error;
  const fs::path absolute = fs::absolute(path, error);
  return error ? path : absolute;
}

bool AreOneFile(const std::string& path, const std::string& other) {
  std::error_code error;
  return !other.empty() && fs::equivalent(path, other, error);
}

/// A name beside the place that no other process takes.
std::string TemporaryName(const fs::path& place, pid_t process, int number) {
  return fmt::format("{}.{}-{}.tmp", place.string(), process, number);
}

/// A file beside its target, removed unless it is moved into place.
class TemporaryFile {
 public:
  TemporaryFile(std::string target, const std::string& text) : fTarget(std::move(target)), fPlace(PlaceOf(fTarget)) {
    std::FILE* file = Open();
    const bool written = std::fwrite(text.data(), 1, text.size(), file) == text.size();
    const int error = errno;
    const bool closed = std::fclose(file) == 0;
    if (!written || !closed) {
      Remove();
      throw OutputError(fTarget, std::strerror(written ? errno : error));
    }
  }
  ~TemporaryFile() { Remove(); }
  TemporaryFile(TemporaryFile&& other) noexcept
      : fTarget(std::move(other.fTarget)), fPlace(std::move(other.fPlace)), fName(std::exchange(other.fName, {})) {}
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  TemporaryFile& operator=(TemporaryFile&&) = delete;

  void MoveIntoPlace() {
    std::error_code error;
    fs::rename(fName, fPlace, error);
    if (error) throw OutputError(fTarget, error.message());
    fName.clear();
  }

 private:
  std::FILE* Open() {
    for (int i = 0; i < kTemporaryNames; ++i) {
      fName = TemporaryName(fPlace, ::getpid(), i);
      if (std::FILE* file = std::fopen(fName.c_str(), "wbx")) return file;
      if (errno != EEXIST) break;
    }
    fName.clear();
    throw OutputError(fTarget, std::strerror(errno));
  }

  void Remove() noexcept {
    if (!fName.empty()) std::remove(fName.c_str());
    fName.clear();
  }

  std::string fTarget;
  fs::path fPlace;
  std::string fName;
};

}  // namespace

std::vector<Output> FindOutputs(const std::vector<std::string>& aPaths) {
  std::vector<Output> outputs;
  std::vector<fs::path> known;
  for (const std::string& path : aPaths) {
    const Format& format = FindFormat(path);
    const fs::path normal = Absolute(path).lexically_normal();
    if (std::find(known.begin(), known.end(), normal) != known.end()) {
      throw UsageError(fmt::format("-o {}: given twice", path));
    }
    known.push_back(normal);
    outputs.push_back({path, format.render});
  }
  return outputs;
}

void CheckOutputs(const std::vector<Output>& aOutputs, const std::vector<std::string>& aInputs) {
  for (const Output& output : aOutputs) {
    std::error_code error;
    const fs::path folder = Absolute(output.path).parent_path();
    for (const std::string& input : aInputs) {
      if (!AreOneFile(output.path, input)) continue;
      throw UsageError(fmt::format("-o {}: this file is read; name another one, it would be lost", output.path));
    }
    if (fs::is_directory(output.path, error)) throw OutputError(output.path, "is a folder");
    if (!fs::is_directory(folder, error)) throw OutputError(output.path, "its folder does not exist");
    if (::access(folder.c_str(), W_OK | X_OK) != 0) throw OutputError(output.path, std::strerror(errno));
  }
}

void WriteOutputs(const std::vector<Output>& aOutputs, const Report& aReport) {
  std::vector<std::string> texts;
  for (const Output& output : aOutputs) texts.push_back(output.render(aReport));
  const HeldSignals held{SIGINT, SIGTERM, SIGHUP, SIGXCPU};  // interrupts, and the end of the time given
  std::vector<TemporaryFile> files;
  for (std::size_t i = 0; i < aOutputs.size(); ++i) files.emplace_back(aOutputs[i].path, texts[i]);
  for (TemporaryFile& file : files) file.MoveIntoPlace();
}

void RemoveUnfinished(const std::vector<Output>& aOutputs, pid_t aProcess) {
  for (const Output& output : aOutputs) {
    const fs::path place = PlaceOf(output.path);
    for (int i = 0; i < kTemporaryNames; ++i) std::remove(TemporaryName(place, aProcess, i).c_str());
  }
}

}  // namespace xsec
