#include "xsec/output/DxfWriter.h"

#include <fmt/format.h>

#include <cmath>
#include <set>
#include <utility>

#include "GeometryEngine/host/Numerics.h"

namespace xsec {

namespace {

using GeometryEngine::kHalfTurn;

constexpr int kMillimetres = 4;  // of $INSUNITS
constexpr int kClosed = 1;       // flag of a polyline

/// Names of layers may hold no character of these.
std::string LayerName(std::string name) {
  if (name.empty()) return "0";
  for (char& c : name) c = std::string_view("<>/\\\":;?*|=`").find(c) == std::string_view::npos ? c : '_';
  return name;
}

/// Characters beyond ASCII are spelled as this version of the format does.
std::string Spelled(std::string_view utf8) {
  std::string text;
  for (std::size_t i = 0; i < utf8.size();) {
    const auto lead = static_cast<unsigned char>(utf8[i]);
    const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    unsigned code = length == 1 ? lead : lead & (0xFFU >> (length + 1));
    for (std::size_t k = 1; k < length && i + k < utf8.size(); ++k) {
      code = code << 6U | (static_cast<unsigned char>(utf8[i + k]) & 0x3FU);
    }
    text += code < 0x80     ? std::string(1, static_cast<char>(code))
            : code > 0xFFFF ? "_"
                            : fmt::format("\\U+{:04X}", code);
    i += length;
  }
  return text;
}

/// The pieces of a loop, none of them longer than a half circle.
Loop ShortPieces(const Loop& loop) {
  Loop pieces;
  for (const TravelledPiece& piece : loop) {
    if (!piece.isArc || std::abs(piece.sweep) <= kHalfTurn) {
      pieces.push_back(piece);
      continue;
    }
    pieces.push_back(PartOf(piece, 0, 0.5));
    pieces.push_back(PartOf(piece, 0.5, 1));
  }
  return pieces;
}

double BulgeOf(const TravelledPiece& piece) {
  return piece.isArc ? std::tan(piece.sweep * GeometryEngine::kRadiansPerDegree / 4) : 0;
}

/// Handles of the records that every drawing has; entities and layers come after them.
enum Handle : int {
  kBlockRecordTable = 1,
  kLayerTable,
  kLinetypeTable,
  kStyleTable,
  kAppTable,
  kDimstyleTable,
  kViewTable,
  kUcsTable,
  kViewportTable,
  kModelRecord,
  kPaperRecord,
  kModelBlock,
  kModelEnd,
  kPaperBlock,
  kPaperEnd,
  kByBlockType,
  kByLayerType,
  kContinuousType,
  kStandardStyle,
  kApp,
  kRootDictionary,
  kGroupDictionary,
  kFirstFree
};

class DxfTextWriter {
 public:
  explicit DxfTextWriter(const std::vector<DxfOutline>& outlines) : fOutlines(outlines) {
    for (const DxfOutline& outline : outlines) fLayers.insert(LayerName(outline.layer));
    fLayers.insert("0");
  }

  std::string Text() {
    Tables();
    Blocks();
    Entities();
    Objects();
    const std::string body = std::exchange(fText, {});
    Header();  // it names the first handle that is free
    return fText + body;
  }

 private:
  void Add(int code, std::string_view value) { fText += fmt::format("{:3}\n{}\n", code, value); }
  void Add(int code, int value) { Add(code, fmt::format("{}", value)); }
  void Add(int code, double value) { Add(code, fmt::format("{}", value)); }
  void AddHandle(int code, int handle) { Add(code, fmt::format("{:X}", handle)); }

  void Section(std::string_view name) {
    Add(0, "SECTION");
    Add(2, name);
  }

  void Header() {
    Section("HEADER");
    Add(9, "$ACADVER");
    Add(1, "AC1015");
    Add(9, "$HANDSEED");
    AddHandle(5, fNextHandle);
    Add(9, "$INSUNITS");
    Add(70, kMillimetres);
    Add(9, "$MEASUREMENT");
    Add(70, 1);
    for (const auto& [name, point] : {std::pair("$EXTMIN", LowCorner()), std::pair("$EXTMAX", HighCorner())}) {
      Add(9, name);
      Add(10, point.x);
      Add(20, point.y);
      Add(30, 0.0);
    }
    Add(0, "ENDSEC");
  }

  Extents Box() const {
    Extents box = EmptyExtents();
    for (const DxfOutline& outline : fOutlines) Widen(box, Bounds(outline.loop));
    return fOutlines.empty() ? Extents{} : box;
  }
  Point LowCorner() const { return {Box().minX, Box().minY}; }
  Point HighCorner() const { return {Box().maxX, Box().maxY}; }

  void BeginTable(std::string_view name, int handle, std::size_t records) {
    Add(0, "TABLE");
    Add(2, name);
    AddHandle(5, handle);
    AddHandle(330, 0);
    Add(100, "AcDbSymbolTable");
    Add(70, static_cast<int>(records));
  }

  void BeginRecord(std::string_view type, int handle, int table, std::string_view subclass, std::string_view name) {
    Add(0, type);
    AddHandle(5, handle);
    AddHandle(330, table);
    Add(100, "AcDbSymbolTableRecord");
    Add(100, subclass);
    Add(2, name);
  }

  void EmptyTable(std::string_view name, int handle) {
    BeginTable(name, handle, 0);
    Add(0, "ENDTAB");
  }

  void Tables() {
    Section("TABLES");
    EmptyTable("VPORT", kViewportTable);
    Linetypes();
    Layers();
    Styles();
    EmptyTable("VIEW", kViewTable);
    EmptyTable("UCS", kUcsTable);
    BeginTable("APPID", kAppTable, 1);
    BeginRecord("APPID", kApp, kAppTable, "AcDbRegAppTableRecord", "ACAD");
    Add(70, 0);
    Add(0, "ENDTAB");
    BeginTable("DIMSTYLE", kDimstyleTable, 0);
    Add(100, "AcDbDimStyleTable");
    Add(0, "ENDTAB");
    BeginTable("BLOCK_RECORD", kBlockRecordTable, 2);
    BeginRecord("BLOCK_RECORD", kModelRecord, kBlockRecordTable, "AcDbBlockTableRecord", "*Model_Space");
    BeginRecord("BLOCK_RECORD", kPaperRecord, kBlockRecordTable, "AcDbBlockTableRecord", "*Paper_Space");
    Add(0, "ENDTAB");
    Add(0, "ENDSEC");
  }

  void Linetypes() {
    BeginTable("LTYPE", kLinetypeTable, 3);
    for (const auto& [handle, name] : {std::pair(kByBlockType, "ByBlock"), std::pair(kByLayerType, "ByLayer"),
                                       std::pair(kContinuousType, "Continuous")}) {
      BeginRecord("LTYPE", handle, kLinetypeTable, "AcDbLinetypeTableRecord", name);
      Add(70, 0);
      Add(3, "");
      Add(72, 65);
      Add(73, 0);
      Add(40, 0.0);
    }
    Add(0, "ENDTAB");
  }

  void Layers() {
    BeginTable("LAYER", kLayerTable, fLayers.size());
    int colour = 0;
    for (const std::string& layer : fLayers) {
      BeginRecord("LAYER", fNextHandle++, kLayerTable, "AcDbLayerTableRecord", Spelled(layer));
      Add(70, 0);
      Add(62, layer == "0" ? 7 : colour++ % 6 + 1);
      Add(6, "Continuous");
    }
    Add(0, "ENDTAB");
  }

  void Styles() {
    BeginTable("STYLE", kStyleTable, 1);
    BeginRecord("STYLE", kStandardStyle, kStyleTable, "AcDbTextStyleTableRecord", "Standard");
    Add(70, 0);
    for (const int code : {40, 41, 50}) Add(code, code == 41 ? 1.0 : 0.0);
    Add(71, 0);
    Add(42, 2.5);
    Add(3, "txt");
    Add(4, "");
    Add(0, "ENDTAB");
  }

  void Block(std::string_view name, int record, int begin, int end) {
    Add(0, "BLOCK");
    AddHandle(5, begin);
    AddHandle(330, record);
    Add(100, "AcDbEntity");
    Add(8, "0");
    Add(100, "AcDbBlockBegin");
    Add(2, name);
    Add(70, 0);
    for (const int code : {10, 20, 30}) Add(code, 0.0);
    Add(3, name);
    Add(1, "");
    Add(0, "ENDBLK");
    AddHandle(5, end);
    AddHandle(330, record);
    Add(100, "AcDbEntity");
    Add(8, "0");
    Add(100, "AcDbBlockEnd");
  }

  void Blocks() {
    Section("BLOCKS");
    Block("*Model_Space", kModelRecord, kModelBlock, kModelEnd);
    Block("*Paper_Space", kPaperRecord, kPaperBlock, kPaperEnd);
    Add(0, "ENDSEC");
  }

  void Entities() {
    Section("ENTITIES");
    for (const DxfOutline& outline : fOutlines) Polyline(outline);
    Add(0, "ENDSEC");
  }

  void Polyline(const DxfOutline& outline) {
    const Loop pieces = ShortPieces(outline.loop);
    Add(0, "LWPOLYLINE");
    AddHandle(5, fNextHandle++);
    AddHandle(330, kModelRecord);
    Add(100, "AcDbEntity");
    Add(8, Spelled(LayerName(outline.layer)));
    if (outline.colour != 256) Add(62, outline.colour);
    Add(100, "AcDbPolyline");
    Add(90, static_cast<int>(pieces.size()));
    Add(70, kClosed);
    for (const TravelledPiece& piece : pieces) {
      Add(10, piece.from.x);
      Add(20, piece.from.y);
      if (const double bulge = BulgeOf(piece); bulge != 0) Add(42, bulge);
    }
  }

  void Objects() {
    Section("OBJECTS");
    Add(0, "DICTIONARY");
    AddHandle(5, kRootDictionary);
    AddHandle(330, 0);
    Add(100, "AcDbDictionary");
    Add(3, "ACAD_GROUP");
    AddHandle(350, kGroupDictionary);
    Add(0, "DICTIONARY");
    AddHandle(5, kGroupDictionary);
    AddHandle(330, kRootDictionary);
    Add(100, "AcDbDictionary");
    Add(0, "ENDSEC");
    Add(0, "EOF");
  }

  const std::vector<DxfOutline>& fOutlines;
  std::set<std::string> fLayers;
  int fNextHandle = kFirstFree;
  std::string fText;
};

}  // namespace

std::string DxfTextOf(const std::vector<DxfOutline>& aOutlines) {
  return DxfTextWriter(aOutlines).Text();
}

}  // namespace xsec
