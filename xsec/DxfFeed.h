#pragma once

#include <array>
#include <cstdint>
#include <streambuf>
#include <string>
#include <string_view>

#include "xsec/DxfText.h"

namespace xsec {

/// What the feed knows of one record: a group 0 with the groups behind it.
struct DxfRecord {
  std::string type;
  std::string handle;
  std::size_t line = 0;    ///< of the record's type
  std::int32_t flags = 0;  ///< group 70
  bool isEntity = false;   ///< stands in ENTITIES or in a block, and is no bracket of either
};

/// The checked text as the DXF parser is to see it, and the place in the file where the parser stands.
///
/// Only what xsec reads goes through: the header, layers, blocks, entities. Types that xsec does not read go through
/// with a type that the parser does not know either, so that it still reports their layer. Numbers are written anew in
/// one spelling and text is cut to what the parser's line buffer holds. The parser reserves memory for the counts of
/// vertices, knots and control points that a record states, so these counts are taken from the record's own groups.
class DxfFeed : public std::streambuf {
 public:
  /// The text must have passed CheckDxfText and must outlive the feed.
  DxfFeed(std::string_view aText, const std::string& aPath);

  /// The record that the parser reports now: it does so when it meets the next one.
  const DxfRecord& Finished() const { return fFinished; }

 protected:
  int_type underflow() override;

 private:
  enum class Section : std::uint8_t { None, Header, Tables, Entities, Other };

  bool Take(const DxfPair& aPair);
  bool TakeRecord(const DxfPair& aPair);
  bool TakeGroup(const DxfPair& aPair);
  void TakeCounts();
  void NameSection(std::string_view aName);
  void Write(int aCode, std::string_view aValue);
  void WriteValue(const DxfPair& aPair);

  DxfPairReader fReader;
  std::string fPath;
  std::string fBuffer;
  DxfRecord fFinished;
  DxfRecord fCurrent;
  Section fSection = Section::None;
  bool fAwaitsName = false;  // a section has begun, its name comes next
  bool fIsPassedOn = false;  // the groups of the current record go through
  bool fIsRead = false;      // xsec reads the current record's type
  bool fInBraces = false;    // between 102 "{..." and 102 "}": an application's own groups
};

/// Whether xsec makes lines and arcs of entities of that type.
bool IsReadType(std::string_view aType);

}  // namespace xsec
