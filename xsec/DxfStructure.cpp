// The order of a DXF text: sections, blocks, EOF. What a single pair must be like is checked in DxfText.cpp.
#include <fmt/format.h>

#include <algorithm>
#include <string>

#include "xsec/DxfText.h"
#include "xsec/Errors.h"

namespace xsec {

namespace {

constexpr std::string_view kBinarySentinel = "AutoCAD Binary DXF";
constexpr std::string_view kDrawingSignature = "AC10";  // first bytes of a drawing in the binary format DWG
constexpr char kEndOfTextMark = '\x1A';                 // some writers close a text with it
constexpr const char* kCutOff = "it was cut off: get or save it again";
constexpr const char* kSaveAgain = "save the drawing again as a DXF text file";

// What is wrong with the text as a whole, before it is read line by line.
void CheckIsText(std::string_view text, const std::string& path) {
  if (text.empty()) {
    throw InputError(path, 0, "the file is empty", "name a DXF drawing");
  }
  if (text.starts_with(kBinarySentinel)) {
    throw InputError(path, 0, "this is a binary DXF file", "save the drawing as a DXF text (ASCII) file");
  }
  if (text.starts_with(kDrawingSignature)) {
    throw InputError(path, 0, "this is a DWG file", "save the drawing as a DXF text file");
  }
  if (const std::size_t place = text.find('\0'); place != std::string_view::npos) {
    const auto line = 1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(place), '\n');
    throw InputError(path, static_cast<std::size_t>(line), "the file holds a zero byte, so it is not text", kSaveAgain);
  }
  if (text.find('\n') == std::string_view::npos && text.find('\r') != std::string_view::npos) {
    throw InputError(path, 1, "lines end with a carriage return alone", "convert the line ends to LF or CRLF");
  }
}

class StructureCheck {
 public:
  explicit StructureCheck(const std::string& aPath) : fPath(aPath) {}

  void Take(const DxfPair& aPair) {
    if (aPair.code == 999) {
      return;
    }
    if (fAwaitsName) {
      TakeSectionName(aPair);
    } else if (aPair.code == 0) {
      TakeRecord(TrimBlanks(aPair.value), aPair.line + 1);
    } else if (!InSection()) {
      Fail(aPair.line, fmt::format("group code {} stands outside any section", aPair.code), kSaveAgain);
    }
  }

  bool IsAtEnd() const { return fIsAtEnd; }
  [[noreturn]] void Fail(std::size_t aLine, std::string aProblem, std::string aAdvice) const {
    throw InputError(fPath, aLine, std::move(aProblem), std::move(aAdvice));
  }
  // The text is over and EOF was not there.
  [[noreturn]] void FailForEnd(std::size_t aLastLine) const {
    Fail(aLastLine, InSection() ? fmt::format("the file ends inside {}", SectionText()) : "the file ends without EOF",
         kCutOff);
  }

 private:
  bool InSection() const { return fSectionLine != 0; }
  std::string SectionText() const { return fmt::format("section {} that begins on line {}", fSection, fSectionLine); }

  void TakeSectionName(const DxfPair& aPair) {
    if (aPair.code != 2) {
      Fail(aPair.line, "a section begins without its name (group code 2)", kSaveAgain);
    }
    fSection = TrimBlanks(aPair.value);
    fAwaitsName = false;
  }

  void TakeRecord(std::string_view aType, std::size_t aLine) {
    if (aType == "SECTION") {
      OpenSection(aLine);
    } else if (aType == "ENDSEC") {
      CloseSection(aLine);
    } else if (aType == "EOF") {
      TakeEnd(aLine);
    } else if (!InSection()) {
      Fail(aLine, fmt::format("{} stands outside any section", aType.substr(0, 40)),
           "a drawing starts with a section (0, SECTION); is this a DXF file?");
    } else if (fSection == "BLOCKS") {
      TakeBlockRecord(aType, aLine);
    }
  }

  void OpenSection(std::size_t aLine) {
    if (InSection()) {
      Fail(aLine, fmt::format("a section begins inside {}", SectionText()), kSaveAgain);
    }
    fSectionLine = aLine;
    fAwaitsName = true;
  }

  void CloseSection(std::size_t aLine) {
    if (!InSection()) {
      Fail(aLine, "ENDSEC stands outside any section", kSaveAgain);
    }
    if (fBlockLine != 0) {
      Fail(aLine, fmt::format("the block that begins on line {} is not closed", fBlockLine), kSaveAgain);
    }
    fSectionLine = 0;
  }

  void TakeEnd(std::size_t aLine) {
    if (InSection()) {
      Fail(aLine, fmt::format("EOF stands inside {}", SectionText()), kSaveAgain);
    }
    fIsAtEnd = true;
  }

  void TakeBlockRecord(std::string_view aType, std::size_t aLine) {
    if (aType == "BLOCK") {
      if (fBlockLine != 0) {
        Fail(aLine, fmt::format("a block begins inside the one that begins on line {}", fBlockLine), kSaveAgain);
      }
      fBlockLine = aLine;
    } else if (aType == "ENDBLK") {
      fBlockLine = 0;
    } else if (fBlockLine == 0) {
      Fail(aLine, fmt::format("{} stands between blocks", aType.substr(0, 40)), kSaveAgain);
    }
  }

  const std::string& fPath;
  std::string_view fSection;
  std::size_t fSectionLine = 0;  // 0 outside sections
  std::size_t fBlockLine = 0;    // 0 outside blocks
  bool fAwaitsName = false;
  bool fIsAtEnd = false;
};

// Behind EOF only line ends and an end-of-text mark may stand.
bool IsEmptyRest(std::string_view rest) {
  return std::all_of(rest.begin(), rest.end(),
                     [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == kEndOfTextMark; });
}

}  // namespace

void CheckDxfText(std::string_view aText, const std::string& aPath) {
  CheckIsText(aText, aPath);
  DxfPairReader reader(aText, aPath);
  StructureCheck check(aPath);
  while (!check.IsAtEnd()) {
    const auto pair = reader.Next();
    if (!pair) {
      check.FailForEnd(reader.Line() - 1);
    }
    check.Take(*pair);
  }
  if (!IsEmptyRest(reader.Rest())) {
    check.Fail(reader.Line(), "there is text behind EOF", "the file holds more than one drawing, or junk: cut it off");
  }
}

}  // namespace xsec
