#include "xsec/DxfCollector.h"

#include <dl_dxf.h>
#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <istream>
#include <numbers>
#include <utility>

#include "GeometryEngine/host/Numerics.h"
#include "xsec/PlainText.h"
#include "xsec/Utf8.h"

namespace xsec {

namespace {

using GeometryEngine::kFullTurn;

constexpr int kClosedFlag = 1;           // of polylines and splines
constexpr int kMeshFlags = 16 | 64;      // of polylines: meshes and polyface meshes
constexpr int kWorldPolylineFlag = 8;    // of polylines: points in the drawing's own axes
constexpr int kFrameFlag = 16;           // of vertices: control point of a fitted curve, not on it
constexpr int kExternalFlags = 4 | 8;    // of blocks: stand for another file
constexpr int kByLayer = 256;            // colour
constexpr int kWhite = 7;                // colour of layers without one of their own
constexpr double kFullTurnSlack = 1e-6;  // degrees or radians: what a rounded full turn may lack
constexpr double kPlumb = 1e-9;          // share of x and y in an extrusion direction that still counts as along z
constexpr const char* kNotRead = "this type is not read";
constexpr const char* kAside = "it is drawn in a plane that is not the xy plane";

enum class Facing { Up, Down, Aside };

Facing FacingOf(const DL_Extrusion& extrusion) {
  const double* direction = extrusion.getDirection();
  const double slack = kPlumb * std::abs(direction[2]);
  if (direction[2] == 0 || std::abs(direction[0]) > slack || std::abs(direction[1]) > slack) {
    return Facing::Aside;
  }
  return direction[2] > 0 ? Facing::Up : Facing::Down;
}

// The sweep from one end to the other in anticlockwise direction; equal ends make a full turn, and so does what lacks
// or exceeds one by no more than rounding.
double SweepOf(double start, double end, double fullTurn) {
  if (std::abs(end - start - fullTurn) <= kFullTurnSlack) {
    return fullTurn;
  }
  const double sweep = std::fmod(end - start, fullTurn);
  const double positive = sweep > 0 ? sweep : sweep + fullTurn;
  return positive >= fullTurn - kFullTurnSlack ? fullTurn : positive;
}

std::uint32_t CountOf(int count) {
  return static_cast<std::uint32_t>(std::max(count, 1));
}

// The blocks that stand for the drawing itself and for its sheets bear a * or, in older files, a $ in front.
bool IsLayout(const SourceBlock* block, std::string_view name) {
  return block != nullptr && !block->name.empty() && BlockKey(block->name.substr(1)).starts_with(name);
}

bool IsModel(const SourceBlock* block) {
  return block == nullptr || IsLayout(block, "MODEL_SPACE");
}
bool IsPaper(const SourceBlock* block) {
  return IsLayout(block, "PAPER_SPACE");
}

}  // namespace

std::string BlockKey(std::string aName) {
  std::transform(aName.begin(), aName.end(), aName.begin(),
                 [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
  return aName;
}

SourceDrawing ParseDxf(std::string_view aText, const std::string& aPath) {
  DxfFeed feed(aText, aPath);
  DxfCollector collector(feed);
  std::istream stream(&feed);
  DL_Dxf().in(stream, &collector);
  return std::move(collector).Result();
}

SourceDrawing DxfCollector::Result() && {
  if (fTilted != 0) {
    fDrawing.warnings.push_back(
        fmt::format("entities whose points differ in z: {}; they are read as seen along z", fTilted));
  }
  return std::move(fDrawing);
}

void DxfCollector::setVariableInt(const std::string& aKey, int aValue, int /*aCode*/) {
  if (aKey == "$INSUNITS") {
    fDrawing.insUnits = aValue;
  }
}

void DxfCollector::addLayer(const DL_LayerData& aData) {
  const int colour = std::abs(std::max(getAttributes().getColor(), -kByLayer));
  fDrawing.layerColours[ToUtf8(aData.name)] = colour == 0 || colour == kByLayer ? kWhite : colour;
}

void DxfCollector::addBlock(const DL_BlockData& aData) {
  SourceBlock block;
  block.name = ToUtf8(aData.name);
  block.base = {aData.bpx, aData.bpy};
  block.line = fFeed.Finished().line;
  block.isExternal = (aData.flags & kExternalFlags) != 0;
  const auto [place, isNew] = fDrawing.blocks.insert_or_assign(BlockKey(block.name), std::move(block));
  fBlock = &place->second;
  fIsTaken = true;
  if (!isNew) {
    fDrawing.warnings.push_back(
        fmt::format("block {} is defined twice; the definition on line {} is used", fBlock->name, fBlock->line));
  }
}

void DxfCollector::endBlock() {
  fBlock = nullptr;
  fOpen = nullptr;
}

std::vector<SourceEntity>& DxfCollector::Scope() {
  return IsModel(fBlock) || IsPaper(fBlock) ? fDrawing.entities : fBlock->entities;
}

void DxfCollector::Add(SourceShape aShape) {
  const DxfRecord& record = fFeed.Finished();
  const DL_Attributes common = getAttributes();
  SourceEntity entity{std::move(aShape),
                      ToUtf8(record.type),
                      ToUtf8(common.getLayer()),
                      ToUtf8(record.handle),
                      record.line,
                      common.getColor(),
                      false};
  if (common.isInPaperSpace() || IsPaper(fBlock)) {
    entity.shape = SourceSkipped{"it stands in paper space"};
  }
  Scope().push_back(std::move(entity));
  fOpen = &Scope().back();
  fHeight.reset();
  fIsTilted = false;
  fIsTaken = true;
}

// For entities whose points stand in axes of their own, which the extrusion direction turns.
void DxfCollector::AddInPlane(SourceShape aShape) {
  const Facing facing = FacingOf(*getExtrusion());
  if (facing == Facing::Aside) {
    aShape = SourceSkipped{kAside};
  }
  Add(std::move(aShape));
  fOpen->isFlipped = facing == Facing::Down;
}

// A drawing is read as seen along z; an entity whose points differ in that is noted once.
void DxfCollector::NoteHeight(double aZ) {
  if (!fHeight) {
    fHeight = aZ;
  } else if (*fHeight != aZ && !fIsTilted) {
    fIsTilted = true;
    ++fTilted;
  }
}

void DxfCollector::addLine(const DL_LineData& aData) {
  Add(SourceLine{{aData.x1, aData.y1}, {aData.x2, aData.y2}});
  NoteHeight(aData.z1);
  NoteHeight(aData.z2);
}

void DxfCollector::addArc(const DL_ArcData& aData) {
  const double sweep = SweepOf(aData.angle1, aData.angle2, kFullTurn);
  AddInPlane(SourceArc{{aData.cx, aData.cy}, aData.radius, aData.angle1, sweep});
}

void DxfCollector::addCircle(const DL_CircleData& aData) {
  AddInPlane(SourceArc{{aData.cx, aData.cy}, aData.radius, 0, kFullTurn});
}

void DxfCollector::addPolyline(const DL_PolylineData& aData) {
  if ((aData.flags & kMeshFlags) != 0 && fFeed.Finished().type == "POLYLINE") {
    Add(SourceSkipped{"it is a mesh"});
  } else if ((aData.flags & kWorldPolylineFlag) != 0 && fFeed.Finished().type == "POLYLINE") {
    Add(SourcePolyline{{}, (aData.flags & kClosedFlag) != 0});  // its points stand in the drawing's own axes
  } else {
    AddInPlane(SourcePolyline{{}, (aData.flags & kClosedFlag) != 0});
  }
}

void DxfCollector::addVertex(const DL_VertexData& aData) {
  if (fOpen == nullptr) {
    return;
  }
  fIsTaken = true;
  auto* polyline = std::get_if<SourcePolyline>(&fOpen->shape);
  const bool isOnCurve = fFeed.Finished().type != "VERTEX" || (fFeed.Finished().flags & kFrameFlag) == 0;
  if (polyline != nullptr && isOnCurve) {
    polyline->vertices.push_back({{aData.x, aData.y}, aData.bulge});
    NoteHeight(aData.z);
  }
}

void DxfCollector::addEllipse(const DL_EllipseData& aData) {
  const Facing facing = FacingOf(*getExtrusion());
  if (facing == Facing::Aside) {
    return Add(SourceSkipped{kAside});
  }
  const double ratio = facing == Facing::Down ? -aData.ratio : aData.ratio;
  Add(SourceEllipse{{aData.cx, aData.cy},
                    {aData.mx, aData.my},
                    {-ratio * aData.my, ratio * aData.mx},
                    aData.angle1,
                    SweepOf(aData.angle1, aData.angle2, 2 * std::numbers::pi)});
}

void DxfCollector::addSpline(const DL_SplineData& aData) {
  if (FacingOf(*getExtrusion()) == Facing::Aside) {
    return Add(SourceSkipped{kAside});
  }
  SourceSpline spline;
  spline.degree = aData.degree;
  spline.fit.startTangent = {aData.tangentStartX, aData.tangentStartY};
  spline.fit.endTangent = {aData.tangentEndX, aData.tangentEndY};
  spline.fit.isClosed = (aData.flags & kClosedFlag) != 0;
  Add(std::move(spline));
}

void DxfCollector::addControlPoint(const DL_ControlPointData& aData) {
  if (auto* spline = fOpen == nullptr ? nullptr : std::get_if<SourceSpline>(&fOpen->shape)) {
    spline->points.push_back({{aData.x, aData.y}, aData.w});
    NoteHeight(aData.z);
  }
}

void DxfCollector::addFitPoint(const DL_FitPointData& aData) {
  if (auto* spline = fOpen == nullptr ? nullptr : std::get_if<SourceSpline>(&fOpen->shape)) {
    spline->fit.points.push_back({aData.x, aData.y});
  }
}

void DxfCollector::addKnot(const DL_KnotData& aData) {
  if (auto* spline = fOpen == nullptr ? nullptr : std::get_if<SourceSpline>(&fOpen->shape)) {
    spline->knots.push_back(aData.k);
  }
}

void DxfCollector::addInsert(const DL_InsertData& aData) {
  AddInPlane(SourceInsert{ToUtf8(aData.name),
                          {aData.ipx, aData.ipy},
                          {aData.sx, aData.sy},
                          aData.angle,
                          CountOf(aData.cols),
                          CountOf(aData.rows),
                          {aData.colSp, aData.rowSp}});
}

// Text that is justified in any way is attached by its second point.
void DxfCollector::addText(const DL_TextData& aData) {
  const bool isJustified = aData.hJustification != 0 || aData.vJustification != 0;
  AddInPlane(SourceText{isJustified ? Point{aData.apx, aData.apy} : Point{aData.ipx, aData.ipy},
                        PlainText(ToUtf8(aData.text))});
}

void DxfCollector::addAttribute(const DL_AttributeData& aData) {
  addText(aData);
}

void DxfCollector::addMTextChunk(const std::string& aText) {
  fChunks += aText;
}

void DxfCollector::addMText(const DL_MTextData& aData) {
  Add(SourceText{{aData.ipx, aData.ipy}, PlainMText(ToUtf8(std::exchange(fChunks, {}) + aData.text))});
}

// A LWPOLYLINE or SPLINE is complete, or the vertices of a POLYLINE are.
void DxfCollector::endEntity() {
  fOpen = nullptr;
}

void DxfCollector::endSection() {
  const DxfRecord& record = fFeed.Finished();
  const bool isVertex = record.type == "VERTEX";
  const bool isPartOfOpen = isVertex && fOpen != nullptr;
  if (!fIsTaken && record.type == "BLOCK") {
    addBlock(DL_BlockData("", 0, 0, 0, 0));
  } else if (!fIsTaken && record.isEntity && !isPartOfOpen) {
    Add(SourceSkipped{isVertex                  ? "it belongs to no polyline"
                      : IsReadType(record.type) ? "it is incomplete"
                                                : kNotRead});
  }
  if (record.type != "POLYLINE" && !isPartOfOpen) {
    fOpen = nullptr;
  }
  fIsTaken = false;
}

}  // namespace xsec
