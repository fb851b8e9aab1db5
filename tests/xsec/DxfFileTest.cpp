// Drawings from the file system.
#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "tests/xsec/DxfTexts.h"
#include "xsec/DxfText.h"
#include "xsec/Errors.h"

namespace xsec {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

// A folder of its own that goes away with the test.
class ReadDrawingFile : public ::testing::Test {
 protected:
  ReadDrawingFile() : fFolder(std::filesystem::temp_directory_path() / ("xsec_test_" + std::to_string(getpid()))) {
    std::filesystem::create_directories(fFolder);
  }
  ~ReadDrawingFile() override {
    std::error_code ignored;
    std::filesystem::remove_all(fFolder, ignored);
  }
  std::string Path(const std::string& aName) const { return (fFolder / aName).string(); }
  std::string Write(const std::string& aName, const std::string& aText) const {
    std::ofstream(Path(aName), std::ios::binary) << aText;
    return Path(aName);
  }
  static std::string MessageOf(const std::string& aPath) {
    try {
      ReadDrawing(aPath);
    } catch (const InputError& error) {
      return error.what();
    }
    return "";
  }

 private:
  std::filesystem::path fFolder;
};

TEST_F(ReadDrawingFile, GivesEntitiesAndItsPath) {
  const std::string path = Write("one.dxf", DxfOf({"0 LINE | 11 4", "", "", ""}));
  const Drawing drawing = ReadDrawing(path);
  EXPECT_EQ(drawing.path, path);
  EXPECT_EQ(drawing.entities.size(), 1U);
}

TEST_F(ReadDrawingFile, FaultNamesFileAndLine) {
  const std::string path = Write("bad.dxf", DxfOf({"0 LINE | 10 x", "", "", ""}));
  EXPECT_THAT(MessageOf(path), StartsWith(path + ":8: group 10 holds \"x\""));
}

TEST_F(ReadDrawingFile, MissingFileIsRefused) {
  EXPECT_EQ(MessageOf(Path("none.dxf")),
            Path("none.dxf") + ": the file cannot be opened (No such file or directory); check its name");
}

TEST_F(ReadDrawingFile, DirectoryIsRefused) {
  EXPECT_EQ(MessageOf(Path("")), Path("") + ": this is a directory; name a DXF drawing");
}

TEST_F(ReadDrawingFile, EmptyFileIsRefused) {
  EXPECT_THAT(MessageOf(Write("empty.dxf", "")), HasSubstr("empty.dxf: the file is empty"));
}

TEST_F(ReadDrawingFile, FileAbove512MebibytesIsRefusedWithoutReadingIt) {
  const std::string path = Write("huge.dxf", "0\n");
  std::filesystem::resize_file(path, std::uintmax_t{512} * 1024 * 1024 + 1);  // a hole, not bytes
  EXPECT_THAT(MessageOf(path), StartsWith(path + ": the file has more than 512 MiB; "));
}

TEST_F(ReadDrawingFile, EndlessInputIsRefused) {
  EXPECT_THAT(MessageOf("/dev/zero"), StartsWith("/dev/zero: the file has more than 512 MiB; "));
}

TEST(InputError, LeavesOutTheLineOfTheFileAsAWholeAndEmptyAdvice) {
  EXPECT_STREQ(InputError("a.dxf", 0, "wrong", "cure").what(), "a.dxf: wrong; cure");
  EXPECT_STREQ(InputError("a.dxf", 3, "wrong", "").what(), "a.dxf:3: wrong");
}

TEST(OutputError, NamesTheFile) {
  EXPECT_STREQ(OutputError("a.svg", "no room").what(), "a.svg: no room");
}

}  // namespace
}  // namespace xsec
