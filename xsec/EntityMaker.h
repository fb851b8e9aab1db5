#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "xsec/Affine.h"
#include "xsec/CurvePiece.h"
#include "xsec/Drawing.h"
#include "xsec/SourceDrawing.h"

namespace xsec {

/// Where and as what an entity of the drawing is put into millimetres.
struct Placement {
  Affine map;               ///< from the entity's own axes to millimetres
  std::string layer;        ///< stands for layer "0" inside a block
  std::int32_t colour = 0;  ///< stands for "as the block's insert has it"
  std::string block;        ///< the block that the entity belongs to, empty outside blocks
};

/// Makes lines and arcs of one entity of the file after the other and adds them to a drawing.
///
/// Points that entities share in the file stay the same bits. Arcs longer than a half circle become two equal ones.
/// Arcs that a placement stretches, ellipses and splines become shorter arcs and lines. What is degenerate is counted
/// as skipped.
class EntityMaker {
 public:
  /// aTolerance: see ReadOptions::flattenTolerance. The drawing must outlive the maker.
  EntityMaker(Drawing& aDrawing, std::optional<double> aTolerance, std::uint64_t aMostEntities);

  /// Any shape but an insert. Throws InputError when the drawing would hold more than the most lines and arcs.
  void Make(const SourceEntity& aEntity, const Placement& aPlacement);
  void Skip(const SourceEntity& aEntity, const Placement& aPlacement, const std::string& aReason);

 private:
  void MakeShape(const SourceSkipped& aShape, const Affine& aMap);
  void MakeShape(const SourceLine& aShape, const Affine& aMap);
  void MakeShape(const SourceArc& aShape, const Affine& aMap);
  void MakeShape(const SourcePolyline& aShape, const Affine& aMap);
  void MakeShape(const SourceEllipse& aShape, const Affine& aMap);
  void MakeShape(const SourceSpline& aShape, const Affine& aMap);
  void MakeShape(const SourceInsert& aShape, const Affine& aMap);
  void MakeShape(const SourceText& aShape, const Affine& aMap);

  void AddSegment(const SourceVertex& aFrom, const SourceVertex& aTo, const Affine& aMap);
  void AddBulge(const Point& aFrom, const Point& aTo, double aBulge);
  void AddArc(const Point& aCentre, double aRadius, double aStart, double aSweep);
  /// Tells the curve when it is followed less closely than the tolerance asked for.
  void AddCurve(const FlatCurve& aCurve, double aTolerance);
  void AddStretch(const SourceVertex& aFrom, const Point& aTo);
  void AddLine(const Point& aFrom, const Point& aTo);
  void Add(const GeometryEngine::TDXFEntity& aGeometry);
  void SkipThis(const std::string& aReason);
  double ToleranceFor(double aSize) const;

  Drawing& fDrawing;
  std::optional<double> fTolerance;
  std::uint64_t fMostEntities;
  DrawingEntity fTemplate;    // what the pieces of the present entity have in common
  bool fIsFlattened = false;  // the present entity is no line or arc by itself
};

/// The layer that an entity has where it is placed.
std::string PlacedLayer(const SourceEntity& aEntity, const Placement& aPlacement);
std::int32_t PlacedColour(const SourceEntity& aEntity, const Placement& aPlacement);

}  // namespace xsec
