#pragma once

// One region of the cross-section: its outline, what is cut out of it, its area, centroid, label points and how often
// it occurs round the machine. The tree that holds regions is TTree_Geometry; colour, type and names come from
// TTreeNode_CoreProperties.

#include <cstdint>
#include <memory>
#include <vector>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Definitions/TPolyType.h"
#include "GeometryEngine/GeometryEngine_Plane/TPlane.h"
#include "GeometryEngine/GeometryEngine_Tree_MotorProperties/TTreeNode_CoreProperties.h"
#include "GeometryEngine/Pole_Inaccessibility/PoleSearch.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine {

class TTreeNode_Geometry;

/// References to nodes; owns none of them.
using TTreeNodeArray_Geometry = std::vector<TTreeNode_Geometry*>;

/// A region with its shape.
///
/// A region is bounded by its outline (`Entities`); an internal chain (`Entities_Internal`) cuts a hole into it that is
/// no region itself, and its children are regions that lie within it. The base area is the outline's less the internal
/// chain's; the net area (`GetRegionArea`) takes off the children too.
///
/// The chains are the host's to fill; area, centroid and label point are not kept up to date by themselves:
/// `UpdateGeometry_Outputs` computes them. A label must not fall on a child, so the order matters: attach the children
/// and give them their chains first, compute the parent's outputs then.
///
/// The first of the label points (`RegionCoordinates`) is the region's single label point, one at (0, 0) to begin with.
/// Number and angle of duplication are always set together, from either of the two.
///
/// OWNS: both chains and the plane, of which it always has one.
///
///   region->Entities().AddEntities(outline);
///   region->UpdateGeometry_Outputs();
///   const double area = region->GetRegionArea();
///   const TEntityCoordinate label = region->RegionCoordinate();
class GEOMETRYENGINE_API TTreeNode_Geometry : public TTreeNode_CoreProperties {
 public:
  /// A closed region without entities that occurs once, over 360 degrees.
  explicit TTreeNode_Geometry(TTree_Base* aTree);
  ~TTreeNode_Geometry() override;

  // Copies. Neither touches the children.
  /// Takes over what describes the region apart from its shape: what TTreeNode_CoreProperties copies, the
  /// duplications (number from the region's angle, which wins), the flags, the poly type and the plane's values.
  /// AdaptiveEntities and DetectionStartCoords stay as they are.
  void CopyRegionParameters(const TTreeNode_Geometry& aRegion, bool aApplyUniqueName);
  /// Appends the region's outline and internal chain to this one's own, and takes over their start vertices, the base
  /// area, the centroid and all label points.
  void CopyRegionParameters_Geometry(const TTreeNode_Geometry& aRegion);

  // Structure
  /// The child at that place; nil where there is none, and for a child that is no geometry node.
  TTreeNode_Geometry* GetNode(TIndex aIndex) const;
  /// The children as geometry nodes, in order. A child of another class is left out, here and in every measure.
  TTreeNodeArray_Geometry Children() const;

  // Chains
  TEntityStorage& Entities();
  const TEntityStorage& Entities() const;
  /// REQUIRES: a host that fills this chain also sets its start vertex; UpdateGeometry_Outputs does so for the outline
  /// only. The chain runs anticlockwise, as an outline does.
  TEntityStorage& Entities_Internal();
  const TEntityStorage& Entities_Internal() const;
  TIndex GetNumEntities() const;
  TIndex NumberEntities() const;
  TIndex GetNumEntities_Internal() const;
  TIndex NumberEntities_Internal() const;
  /// Points from which a detection is to start; the library only keeps them.
  TCoordinateArray& DetectionStartCoords();
  const TCoordinateArray& DetectionStartCoords() const;

  // Measures
  /// Net area of one occurrence of the region: the base area less that of the children, each as often as it occurs in
  /// one occurrence of the region. A region that occurs once and holds a child that occurs 8 times loses 8 of it.
  /// DEGENERATE: the base area alone when this region is not a valid closed one; the children's validity plays no part.
  /// Infinite or not a number when this region occurs 0 times and has children.
  double GetRegionArea() const;
  double RegionArea() const;
  /// Area of the outline less that of the internal chain, as last computed or set.
  double RegionArea_Base() const;
  void RegionArea_Base(double aArea);
  /// Centroid of the outline, as last computed or set; the internal chain and the children play no part.
  const TEntityCoordinate& Centroid() const;
  void Centroid(const TEntityCoordinate& aCentroid);
  /// Extent of the outline in x, its bounds being recomputed.
  /// DEGENERATE: +infinity without entities.
  double GetWidth();
  double Width();
  /// Extent of the outline in y, its bounds being recomputed.
  /// DEGENERATE: -infinity without entities.
  double GetHeight();
  /// KEPT: spelled so; hosts and their scripts know the height under this name.
  double Heigth();
  /// True for a closed region (poly type ptClosed) that has entities and a base area other than 0 (standard
  /// closeness), and for every closed region whose own type is rtCompositeEmpty.
  bool IsRegionValid_Closed() const;
  /// True when the point lies in the region's material: within the outline, not within the internal chain, and not
  /// within a child of one of the types. A point on the outline or the internal chain counts as within that chain when
  /// `aIncludePointOnEntity`; a point on a child's outline is always the child's. What a child has cut out by its
  /// internal chain is not the child's.
  /// DEGENERATE: false for a region that is not a valid closed one.
  bool PointInsideRegion(const TEntityCoordinate& aPoint, const TGeometryRegionTypesSet& aRegionTypes,
                         bool aIncludePointOnEntity) const;
  /// True when every vertex and midpoint of the other region's outline, and every chord point of its arcs, passes
  /// PointInsideRegion here, children left aside.
  /// DEGENERATE: true for an outline without vertices.
  bool RegionInsideRegion(const TTreeNode_Geometry& aRegion, bool aIncludePointOnEntity) const;
  /// Sets the base area from the chains; negative when the outline runs clockwise.
  void UpdateRegionArea_Base();
  /// Computes everything that follows from the chains: the outline's start vertex, the base area, the centroid and the
  /// single label point. An outline that comes out with a negative area is reversed, so that outlines run
  /// anticlockwise and areas are positive. The label is the centroid where that lies in the region's material, else
  /// the pole of inaccessibility; a region whose base area is not above the host's ifMinimumLabelArea keeps the label
  /// that it has.
  /// REQUIRES: children are attached before, and their outputs computed, else the label may fall on them.
  void UpdateGeometry_Outputs();

  // Label points
  TCoordinateArray& RegionCoordinates();
  const TCoordinateArray& RegionCoordinates() const;
  /// The first label point; (0, 0) when the list is empty.
  TEntityCoordinate GetRegionCoordinate_Single() const;
  /// Overwrites the first label point, or adds it to an empty list.
  void SetRegionCoordinate_Single(const TEntityCoordinate& aCoordinate);
  TEntityCoordinate RegionCoordinate() const;
  void RegionCoordinate(const TEntityCoordinate& aCoordinate);
  /// Puts the single label point at the pole of inaccessibility, whatever the area (see FindPoleInaccessibility).
  /// UNITS: precision 1.0, distance 0.001, in drawing length units: meant for drawings in millimetres.
  void UpdateRegionCoordinate();
  /// The region's chains as the pole search sees them; valid while the node and its children live unchanged.
  TPoleRegion PoleRegion();

  // Duplications
  std::int32_t NumberDuplications() const;
  /// Same as UpdateRegionDuplicationValues.
  void NumberDuplications(std::int32_t aNumDuplications);
  /// UNITS: degrees between two occurrences.
  double DuplicationAngle() const;
  /// Same as UpdateDuplicationValues_Angle.
  void DuplicationAngle(double aAngle);
  /// Sets the number, and the angle to 360 / number. DEGENERATE: angle 0 for a number below 1.
  void UpdateRegionDuplicationValues(std::int32_t aNumDuplications);
  /// Sets the angle, and the number to the whole occurrences that fit into 360 degrees.
  /// DEGENERATE: number 0 for an angle that is not above 0; a number beyond the 32-bit range saturates.
  void UpdateDuplicationValues_Angle(double aAngle);
  /// True when the duplications of some child are no whole multiple of this region's: the section can't be cut so
  /// that each piece holds whole children. False without children.
  /// DEGENERATE: of a region with 0 duplications, a child with 0 counts as fractional and any other one as whole.
  bool HasFractionalChildDuplications() const;

  // Plane
  TPlane& GetPlane();
  TPlane& Plane();
  /// Takes the plane over and frees the one held so far.
  /// DEGENERATE: nil is not taken: the region keeps its plane, and the argument is left as it was.
  void SetPlane(std::unique_ptr<TPlane>& aPlane);
  void Plane(std::unique_ptr<TPlane>& aPlane);

  // Flags. The library keeps them for the host and its exports, and copies them where said above.
  /// The region lies on a symmetry boundary.
  bool OnBoundary() const;
  void OnBoundary(bool aOnBoundary);
  bool Singular() const;
  void Singular(bool aSingular);
  bool FitToParent() const;
  void FitToParent(bool aFitToParent);
  bool IncludeRegionIdentifier() const;
  void IncludeRegionIdentifier(bool aInclude);
  /// What the chain stands for: a point, an open polyline or a closed region.
  TPolyType RegionPolyType() const;
  void RegionPolyType(TPolyType aPolyType);
  bool CustomRegionApplied() const;
  void CustomRegionApplied(bool aApplied);
  bool AdaptiveEntities() const;
  void AdaptiveEntities(bool aAdaptive);

  // Transforms of this region alone: children stay where they are. UNITS: angles in degrees, anticlockwise.
  /// Turns the outline, the label points and the centroid about the origin. The internal chain stays behind.
  void Rotate(double aAngle);
  /// Turns both chains, the label points and the centroid about the point.
  void Rotate_AboutPoint(double aAngle, const TEntityCoordinate& aPoint);
  /// Moves both chains, the label points and the centroid.
  void Translate(double xDistance, double yDistance);
  /// Mirrors both chains, the centroid and the label points but the first about the line, then computes the outputs
  /// afresh, which gives a region that is large enough its new first label point; one that is too small for that
  /// keeps the point that it had.
  /// DEGENERATE: a mirror that is no line moves nothing. The outputs are computed all the same, and an internal chain
  /// is left running clockwise, since a chain is turned round by every mirror: only lines are good for mirroring.
  void Mirror(const TDXFEntity& aMirrorLine);
  /// Replaces the outline by its parallel chain, see `TEntityStorage::Offset`. Internal chain and outputs stay.
  void Offset(double aDistance);

  // Copies of this region about or along the axis, in its own chains.
  /// Puts every occurrence of the region into its chains: both become the ring of `NumberDuplications` copies, without
  /// the radial lines that copies share unless the region is singular. The base area becomes that of all copies, the
  /// centroid their mean, the label points one a copy, and the duplication number 1.
  /// DEGENERATE: a duplication number below 1 changes nothing.
  void Duplicate();
  /// Joins that many neighbouring copies into one region: about the axis (`gpRadial`), where the duplication number
  /// tells how many make a full ring, or in a row along x at the distance of the region's width (`gpAxial`). The pieces
  /// are put in order as one closed outline; of a full ring the inner loop becomes the internal chain. The outputs are
  /// computed afresh and the duplication number is divided by the copies joined. Copies that do not touch stay beside
  /// one another, with area, centroid and label points as `Duplicate` gives them. DEGENERATE: fewer than 2 copies, or
  /// more than a full ring has, change nothing. The duplication number is divided without remainder and stays at 1 or
  /// more.
  void DuplicateAndUnite(std::int32_t aNumberDuplications, TGeometryPlane aDirection);

  /// The node as a geometry node; nil for nil and for any other node.
  static TTreeNode_Geometry* TypeCast(TTreeNode_Base* aNode);
  static const TTreeNode_Geometry* TypeCast(const TTreeNode_Base* aNode);

 private:
  void MeasureChains();
  bool HasInside() const;
  bool PointInsideChild(const TEntityCoordinate& aPoint, const TGeometryRegionTypesSet& aRegionTypes) const;
  bool UniteOutline();
  void PlaceAroundAxis(std::int32_t aCopies, std::int32_t aCopies_Full);
  void SpreadAroundAxis(std::int32_t aCopies);
  template <typename TPlaceCopy>
  void SpreadOutputs(std::int32_t aCopies, const TPlaceCopy& aPlaceCopy);

  TEntityStorage fEntities;
  TEntityStorage fEntities_Internal;
  TEntityCoordinate fCentroid;
  double fRegionArea_Base = 0;
  std::int32_t fNumDuplications = 1;
  double fDuplicationAngle = kFullTurn;
  bool fOnBoundary = false;
  bool fSingularRegion = false;
  bool fFitToParent = false;
  std::unique_ptr<TPlane> fPlane;  ///< nil for a new plane that nobody has asked for yet
  TCoordinateArray fRegionCoordinates;
  bool fIncludeRegionIdentifier = true;
  TPolyType fRegionPolyType = ptClosed;
  bool fCustomRegionApplied = false;
  bool fAdaptiveEntities = false;
  TCoordinateArray fDetectionStartCoords;
};

}  // namespace GeometryEngine
