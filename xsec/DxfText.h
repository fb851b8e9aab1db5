#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// The text of a DXF file, checked pair by pair before anything believes it.
///
/// The parser that interprets the drawing takes junk without complaint: a word becomes 0, a cut-off file a smaller
/// drawing. So nothing reaches it that has not passed CheckDxfText.
namespace xsec {

/// One group: its code and its value, both taken from the text without their line ends.
struct DxfPair {
  int code = 0;
  std::string_view value;  ///< points into the text
  std::size_t line = 0;    ///< line of the group code, counted from 1; the value stands on the next one
};

enum class DxfValueKind { Text, Real, Whole };

/// What the value of a group code is.
DxfValueKind KindOfCode(int aCode);

/// The text without blanks at either end.
std::string_view TrimBlanks(std::string_view aText);

/// A finite number in decimal notation with a point, blanks and a plus sign in front allowed; nothing for any other
/// text.
std::optional<double> ParseNumber(std::string_view aText);

/// Hands out the pairs of a text one after the other.
class DxfPairReader {
 public:
  /// The text must outlive the reader. A byte order mark in front is passed over.
  DxfPairReader(std::string_view aText, std::string aPath);

  /// The next pair, its code in range and its value of the code's kind; nothing at the end of the text.
  /// Throws InputError for a pair that is not like that, for a code without its value and for a line above 64 KiB.
  std::optional<DxfPair> Next();

  /// What has not been read yet.
  std::string_view Rest() const { return fText.substr(fPosition); }
  /// Line of the next pair.
  std::size_t Line() const { return fLine; }

 private:
  std::string_view NextLine();
  int CodeOf(std::string_view aText, std::size_t aLine) const;
  void CheckValue(const DxfPair& aPair) const;

  std::string_view fText;
  std::string fPath;
  std::size_t fPosition = 0;
  std::size_t fLine = 1;
};

/// Throws InputError unless the text is a whole DXF drawing: text at all, every pair as it should be, sections that
/// open and close, blocks that open and close, EOF at the end and nothing behind it.
void CheckDxfText(std::string_view aText, const std::string& aPath);

inline constexpr std::size_t kLargestFile = std::size_t{512} * 1024 * 1024;  // bytes

/// The bytes of a file. Throws InputError for one that is missing, a directory, unreadable or above so many bytes.
std::string LoadFile(const std::string& aPath, std::size_t aLargest = kLargestFile);

}  // namespace xsec
