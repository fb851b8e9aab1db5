#pragma once

// The ordered chain of entities that describes one boundary, usually the closed outline of a region, and everything
// that is measured on it or derived from it as a whole. For a plain list of entities see EntityArrays.h, for the two
// ends of one entity EntityEnds.h, for one entity's share in area and centroid EntityTerms.h.
//
// A host that runs with floating-point traps holds a TFloatEnvironment round all calls but Offset.

#include <cstdint>
#include <string_view>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Definitions/TRotationMatrix.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine {

/// What a walk along a chain found at a vertex.
struct TEntityAtVertex {
  TDXFEntity aEntity;
  TIndex success = kNotFound;  ///< 0 when found, else kNotFound
};

/// A chain of entities, in order.
///
/// Consecutive entities share an end point, under the tolerance equality of coordinates; in a closed chain the last
/// entity also shares one with the first. Each record's own direction is free: the direction of the chain follows from
/// the shared ends alone. The chain begins at the end of entity 0 that entity 1 does not touch, its start vertex.
///
/// The vertex walk: from the start vertex, each entity is passed from the vertex where the walk meets it to its other
/// end. Vertex i is the one where the walk meets entity i; the far end of the last entity is no vertex of its own.
/// Everything below that speaks of vertices walks so. Where neighbours don't touch the walk goes on from (0, 0), and
/// what it answers means nothing.
///
/// The storage is also used as a mere list of entities, unordered; then only the container operations and the bounds
/// that look at entities one by one make sense.
///
///     TEntityStorage square;
///     square.AddEntity(CreateEntity_Line(0, 0, 2, 0));
///     square.AddEntity(CreateEntity_Line(2, 2, 2, 0));  // stored against the chain: fine
///     square.AddEntity(CreateEntity_Line(2, 2, 0, 2));
///     square.AddEntity(CreateEntity_Line(0, 2, 0, 0));
///     square.GetClosedArea();                               // 4: anticlockwise is positive
///     square.StartCoordinate(square.GetStartCoordinate());  // before asking for points inside
///     square.PointInsideEntities({1, 1}, true);             // true
///
/// Indexes count from 0. A search that finds nothing answers `kNotFound`; reading at an index outside the storage gives
/// an empty entity or null, writing there does nothing. Arguments may refer to what the storage itself holds, and a
/// storage may be its own argument.
///
/// OWNS: its entity records, by value; never what `SourceDXF` refers to. Not copyable: `CopyGeometry` is the copy. For
/// one thread at a time.
class GEOMETRYENGINE_API TEntityStorage {
 public:
  /// An empty storage.
  TEntityStorage();
  ~TEntityStorage();
  TEntityStorage(const TEntityStorage&) = delete;
  TEntityStorage& operator=(const TEntityStorage&) = delete;

  // Container ---------------------------------------------------------------------------------------------------------

  TIndex GetCount() const;
  TIndex Count() const;
  bool GetIsIndexValid(TIndex aIndex) const;

  /// A copy of the entity.
  TDXFEntity GetEntityFromIndex(TIndex aIndex) const;
  TDXFEntity Entities(TIndex aIndex) const;
  void Entities(TIndex aIndex, const TDXFEntity& aEntity);
  /// The stored record itself. It moves when the storage grows, shrinks or is reordered.
  PtrDXFEntity GetEntityFromIndex_Pointer(TIndex aIndex);
  const TDXFEntity* GetEntityFromIndex_Pointer(TIndex aIndex) const;
  PtrDXFEntity Entities_P(TIndex aIndex);
  const TDXFEntity* Entities_P(TIndex aIndex) const;
  TEntityArray& EntityArray();
  const TEntityArray& EntityArray() const;
  void SetEntityFromIndex(TIndex aIndex, const TDXFEntity& aEntity);

  /// Appends a copy; the new count.
  TIndex AddEntity(const TDXFEntity& aEntity);
  /// Inserts a copy before `aIndex`; the new count. DEGENERATE: an index outside the storage appends.
  TIndex AddEntity_AtIndex(const TDXFEntity& aEntity, TIndex aIndex);
  /// Appends a copy of the whole array, in its order.
  void AddEntities(const TEntityArray& aEntityArray);

  /// Removes the entity at `aIndex`. DEGENERATE: an index past the end takes off the last entity; a negative index and
  /// an empty storage change nothing.
  void RemoveEntityFromArray(TIndex aIndex);
  /// Removes the first equal entity; nothing when there is none.
  void RemoveEntityFromArray(const TDXFEntity& aDXFEntity);
  /// Removes, for each entity of the array in order, the first equal one.
  void RemoveEntities(const TEntityArray& aEntityArray);

  bool CheckEntityExists(const TDXFEntity& aEntity) const;
  /// Index of the first equal entity, else `kNotFound`.
  TIndex IndexOf(const TDXFEntity& aEntity) const;

  void SetEntityColour(TIndex aIndex, std::string_view aColour);
  void SetEntitySourceDXF(TIndex aIndex, void* aSourceDXF);

  /// Empties the storage. Start vertex and bounds stay as they were set last.
  void FreeEntities();
  /// Makes the entities a copy of the other storage's; start vertex and bounds stay.
  void CopyGeometry(const TEntityStorage& apEntityClass);
  /// Takes the other storage's entities over and leaves it empty, but alive. Onto itself nothing changes.
  void CopyNewGeometry(TEntityStorage& apEntityClass);
  /// True when both hold equal entities in the same order.
  bool IsEqual(const TEntityStorage& aEntityStorage) const;

  /// Sorts the entities from `aLow` to `aHigh`, both included, by the x of their left-most coordinate, smallest first.
  ///
  /// Equal keys come out in the order that a quicksort in the Lomuto scheme leaves (the last entity of a slice is its
  /// pivot, entities not right of it go to the left part); the sort is not stable, but the same input gives the same
  /// order always. Input already in order stays as it is. Input on which that scheme would take more than 16 n log2(n)
  /// comparisons is finished by a merge sort.
  /// DEGENERATE: nothing when `aLow` is not below `aHigh` or either is no index of the storage.
  /// COST: one left-most coordinate an entity, O(n log n) comparisons, no recursion.
  void QuickSortArray(TIndex aLow, TIndex aHigh);

  // Chain -------------------------------------------------------------------------------------------------------------

  /// The first vertex: the end of entity 0 that entity 1 does not touch. The only entity's `StartCoords` when there is
  /// one, and entity 0's when two entities close on themselves. DEGENERATE: (0, 0) when the storage is empty or its
  /// first two entities do not touch.
  TEntityCoordinate GetStartCoordinate() const;
  /// The end of the last entity that the one before it does not touch; otherwise as `GetStartCoordinate`, with
  /// `EndCoords`.
  TEntityCoordinate GetEndCoordinate() const;
  /// The end of the first entity that the second does not touch; (0, 0) when the two do not touch.
  static TEntityCoordinate GetCommonCoordinate_StartEnd(const TDXFEntity& aFirst, const TDXFEntity& aSecond);

  /// The entity that leaves the vertex. DEGENERATE: none with fewer than two entities.
  TEntityAtVertex GetEntity_Next(const TEntityCoordinate& aVertex) const;
  /// The entity that arrives at the vertex, the last one at the start vertex: the chain counts as closed.
  /// DEGENERATE: none with fewer than two entities.
  TEntityAtVertex GetEntity_Previous(const TEntityCoordinate& aVertex) const;
  /// Moves the entities before the vertex to the end, so that a closed chain starts there. Nothing when the coordinate
  /// is no vertex. Records are not flipped.
  void ReOrderEntities(const TEntityCoordinate& aCoordinate);
  /// Reverses the order of the entities and thereby the sense of travel. Records are not flipped.
  void ReverseEntities();

  /// The vertices, one an entity; a closed chain's first vertex is not repeated.
  TCoordinateArray GetVertices() const;
  /// The chain as a polyline: for a line its vertex (and its middle if asked for), for an arc the ends of its chords
  /// but the last, chords that stay within 0.01 of the arc. Other entities add nothing.
  /// RANGE: an arc gives 1 000 000 points at most. COST: their number grows with the square root of its radius.
  TCoordinateArray GetVertices_Surf(bool aIncludeMidPoint) const;

  /// Sets `Min_X` to `Max_Y` from the extreme coordinates of the entities, see ExtremeCoordinates.h. DEGENERATE: plus
  /// infinity for the least and minus infinity for the greatest values of an empty storage.
  void CalculateMinMaxValues();
  /// Sets `Min_R` to `Max_T` from the polyline with middles of lines. UNITS: angles in degrees. RANGE: angles over -180
  /// up to 180, so a chain across the negative x axis has an angle range that goes round the other way.
  /// DEGENERATE: as `CalculateMinMaxValues`.
  void CalculateMinMaxValues_RT();

  /// Largest distance of an entity's end from the origin, 0 when empty. What an arc does between its ends is left out;
  /// see `GetRadius_MaximumSurf`.
  double GetRadius_Maximum() const;
  /// Smallest distance of an entity's end from the origin, 0 when empty. What an entity does between its ends is left
  /// out. RANGE: at most 1e9.
  double GetRadius_Minimum() const;
  /// Largest distance of the polyline's points from the origin, 0 when empty. DEGENERATE: not a number when no entity
  /// is a line or an arc.
  double GetRadius_MaximumSurf() const;

  /// The start vertex as it was stored last, here or by `Translate` and `Mirror`; see `PointInsideEntities`.
  const TEntityCoordinate& StartCoordinate() const;
  void StartCoordinate(const TEntityCoordinate& aStartCoordinate);

  /// The bounds, as `CalculateMinMaxValues` and `CalculateMinMaxValues_RT` left them; no other call touches them.
  double Min_X() const;
  double Max_X() const;
  double Min_Y() const;
  double Max_Y() const;
  double Min_R() const;
  double Max_R() const;
  double Min_T() const;
  double Max_T() const;

  // Measures of a closed chain ----------------------------------------------------------------------------------------

  /// True when the chain winds anticlockwise round the point; `aIncludePointOnEntity` when the point lies on it.
  /// A point within a clockwise chain is outside.
  /// REQUIRES: `StartCoordinate` holds the start vertex. The walk begins there and does not look for it; with any other
  /// value its pieces, and so the answer, are wrong.
  bool PointInsideEntities(const TEntityCoordinate& aCoord, bool aIncludePointOnEntity) const;
  /// True when the point lies on a line or touches an arc of the storage.
  bool PointOnEntities(const TEntityCoordinate& aCoordinate) const;
  /// The area within the chain, positive when it runs anticlockwise; arcs count exactly. 0 when empty.
  double GetClosedArea() const;
  /// The centre of the area within the chain; arcs count as chords of the host's arc resolution.
  /// DEGENERATE: not finite where the area is 0.
  TEntityCoordinate GetCentroid() const;
  /// Distance to the closed polyline of `GetVertices_Surf`; plus infinity when that has fewer than two points.
  double MinPointToEntitiesDistance(const TEntityCoordinate& aPoint) const;

  // Transforms and duplication ----------------------------------------------------------------------------------------

  /// Turns every entity about the origin. `StartCoordinate` stays as it is: set it anew before asking for points
  /// inside.
  void RotateEntities(const TRotationMatrix& aMatrix);
  /// Turns every entity about a point. `StartCoordinate` stays as it is.
  void RotateEntities_AroundPoint(const TRotationMatrix& aMatrix, const TEntityCoordinate& aCentre);
  /// Moves every entity and stores the new start vertex.
  void Translate(double aXDistance, double aYDistance);
  /// Mirrors every entity about the line, stores the start vertex and reverses the order, so that the chain keeps its
  /// sense of travel. An entity that is no line mirrors nothing; the order is reversed all the same.
  void Mirror(const TDXFEntity& aMirrorLine);

  /// Replaces the chain by a ring of copies, copy k turned by k times `aAngle` about the origin, copy 0 first.
  /// `aDuplications_Full` is the number of copies that a whole ring has; seams between neighbours are left out by the
  /// rule of `IncludeDuplicatedEntity`, none with `aSingular`. DEGENERATE: fewer than 1 copies leave nothing.
  /// UNITS: degrees. COST: as many entities as copies times entities.
  void DuplicateAroundAxis(std::int32_t aDuplications, std::int32_t aDuplications_Full, double aAngle, bool aSingular);
  /// Makes the chain a row of copies, copy k moved by k times the distance along x. An entity that falls on an equal
  /// one of the copy before is dropped together with that one, so neighbours that share an edge merge into one outline.
  /// DEGENERATE: fewer than 2 copies change nothing. COST: as many entities as copies times entities.
  void DuplicateAlongAxis(std::int32_t aDuplications, double aDuplicationDistance);
  /// Replaces the closed chain by the parallel chain at the distance: to the right of the direction of travel, that is
  /// outwards for an anticlockwise chain, when it is positive, to the left when it is negative. Corners are mitred.
  /// Lines stay lines; arcs stay arcs about their centres while their radius exceeds the distance, else they become
  /// lines. DEGENERATE: a distance of 0 changes nothing. Self-intersections stay, an arc that the chain passes
  /// clockwise becomes its complement, and a chain that turns back on itself has no mitre there. REQUIRES: a closed
  /// chain without repeated points; points are looked up by coordinate, and the first one counts. UNITS: drawing length
  /// units. COST: in proportion to the points of the surface polyline, as long as few of them are the same.
  void Offset(double aDistance);

 private:
  TEntityArray fEntityArray;
  TEntityCoordinate fStartCoordinate;
  double fMin_X = 0;
  double fMax_X = 0;
  double fMin_Y = 0;
  double fMax_Y = 0;
  double fMin_R = 0;
  double fMax_R = 0;
  double fMin_T = 0;
  double fMax_T = 0;
};

}  // namespace GeometryEngine
