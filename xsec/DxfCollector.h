#pragma once

#include <dl_creationadapter.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "xsec/DxfFeed.h"
#include "xsec/SourceDrawing.h"

namespace xsec {

/// Takes what the DXF parser reports and keeps it as a SourceDrawing.
///
/// The parser calls endSection once for every record that the feed gave it, so whatever of a record nothing was made of
/// is noticed there and kept as skipped.
class DxfCollector : public DL_CreationAdapter {
 public:
  explicit DxfCollector(const DxfFeed& aFeed) : fFeed(aFeed) {}

  SourceDrawing Result() &&;

  void setVariableInt(const std::string& aKey, int aValue, int aCode) override;
  void addLayer(const DL_LayerData& aData) override;
  void addBlock(const DL_BlockData& aData) override;
  void endBlock() override;
  void addLine(const DL_LineData& aData) override;
  void addArc(const DL_ArcData& aData) override;
  void addCircle(const DL_CircleData& aData) override;
  void addPolyline(const DL_PolylineData& aData) override;
  void addVertex(const DL_VertexData& aData) override;
  void addEllipse(const DL_EllipseData& aData) override;
  void addSpline(const DL_SplineData& aData) override;
  void addControlPoint(const DL_ControlPointData& aData) override;
  void addFitPoint(const DL_FitPointData& aData) override;
  void addKnot(const DL_KnotData& aData) override;
  void addInsert(const DL_InsertData& aData) override;
  void addText(const DL_TextData& aData) override;
  void addAttribute(const DL_AttributeData& aData) override;
  void addMText(const DL_MTextData& aData) override;
  void addMTextChunk(const std::string& aText) override;
  void endEntity() override;
  void endSection() override;

 private:
  std::vector<SourceEntity>& Scope();
  void Add(SourceShape aShape);
  void AddInPlane(SourceShape aShape);
  void NoteHeight(double aZ);

  const DxfFeed& fFeed;
  SourceDrawing fDrawing;
  SourceBlock* fBlock = nullptr;  // the block being read, in fDrawing
  SourceEntity* fOpen = nullptr;  // the polyline or spline that is still growing, the last one of its scope
  bool fIsTaken = false;          // something was made of the record that the parser reports now
  std::optional<double> fHeight;  // z of the latest entity's first point
  bool fIsTilted = false;         // the latest entity's points differ in z
  std::string fChunks;            // what stands in front of the last part of a long text
  std::size_t fTilted = 0;        // how many such entities there are
};

}  // namespace xsec
