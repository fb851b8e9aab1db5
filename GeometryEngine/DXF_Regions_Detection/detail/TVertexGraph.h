#pragma once

// A coordinate tree, read once into arrays for a pass that walks through all of it. Private.

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TPendingGraph.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine::detail {

/// One end of a piece: what leaves a vertex.
struct THalfEdge {
  TIndex fVertex = kNotFound;     ///< the vertex that it leaves
  TIndex fFarVertex = kNotFound;  ///< the first vertex that is the same as its far end; kNotFound without one
  TIndex fEntityIndex = kNotFound;
  TIndex fTwin = kNotFound;   ///< the piece's other half-edge, if it begins at the far end to the bit; else kNotFound
  bool fIsTravelled = false;  ///< when the graph was read
  bool fIsLine = false;
  /// The far end is the far vertex's point to the bit, and all numbers of the piece are finite and below 1e150, so that
  /// its directions are numbers and the piece equals itself.
  bool fIsExact = false;
};

/// The vertices of a coordinate tree and their half-edges, both in the order of the tree, with the vertex at each far
/// end. Vertices and half-edges are known by their number in that order, until `NumberByPlace`.
///
/// REQUIRES: tree, storage and settings stay as they are while the graph is used; marks of travel may change.
/// COST: a few searches in constant time for each vertex and half-edge.
class TVertexGraph {
 public:
  explicit TVertexGraph(const TEntityTree& aTree);

  TIndex VertexCount() const { return ToIndex(fPoints.size()); }
  TIndex HalfEdgeCount() const { return ToIndex(fHalfEdges.size()); }
  TIndex EntityCount() const { return ToIndex(fEntities.size()); }
  const TEntityCoordinate& Point(TIndex aVertex) const { return fPoints[At(aVertex)]; }
  /// The half-edges that leave a vertex are those from its first one up to the first one of the next vertex.
  TIndex FirstHalfEdge(TIndex aVertex) const { return fFirst[At(aVertex)]; }
  TIndex EndOfHalfEdges(TIndex aVertex) const { return fFirst[At(aVertex) + 1]; }
  /// How many half-edges leave a vertex.
  TIndex Degree(TIndex aVertex) const { return EndOfHalfEdges(aVertex) - FirstHalfEdge(aVertex); }
  bool Leaves(TIndex aVertex, TIndex aHalfEdge) const {
    return FirstHalfEdge(aVertex) <= aHalfEdge && aHalfEdge < EndOfHalfEdges(aVertex);
  }
  /// True for a vertex that a single half-edge leaves.
  bool IsDangling(TIndex aVertex) const { return Degree(aVertex) == 1; }

  const THalfEdge& HalfEdge(TIndex aHalfEdge) const { return fHalfEdges[At(aHalfEdge)]; }
  /// The half-edge at a place in the order of the tree.
  TIndex HalfEdgeInOrder(TIndex aPlace) const { return fInOrder.empty() ? aPlace : fInOrder[At(aPlace)]; }
  /// Marks in the tree, whose nodes need not be there for it, the half-edges that have been travelled since it was
  /// read.
  template <class TIsTravelled>
  void WriteMarks(TIsTravelled aIsTravelled) const {
    const auto isNew = [&](TIndex aPlace) {
      const TIndex h = HalfEdgeInOrder(aPlace);
      return aIsTravelled(h) && !HalfEdge(h).fIsTravelled;
    };
    for (TIndex place = 0; place < ToIndex(fNodes.size()); ++place) {
      if (isNew(place)) fNodes[At(place)]->Travelled(true);
    }
    for (TIndex i = 0; i < ToIndex(fPendingPlaces.size()); ++i) {
      if (isNew(fPendingPlaces[At(i)])) fPending->MarkTravelled(i);
    }
  }
  const TDXFEntity& Entity(const THalfEdge& aHalfEdge) const;
  /// The same, for who knows the ends and asks for the curve between them: one line stands for all, and is at hand.
  const TDXFEntity& Curve(const THalfEdge& aHalfEdge) const { return aHalfEdge.fIsLine ? fAnyLine : Entity(aHalfEdge); }
  const TEntityCoordinate& From(const THalfEdge& aHalfEdge) const { return Point(aHalfEdge.fVertex); }
  TEntityCoordinate FarEnd(const THalfEdge& aHalfEdge) const {
    return aHalfEdge.fIsExact ? Point(aHalfEdge.fFarVertex) : FarEndFrom(From(aHalfEdge), aHalfEdge);
  }
  /// The far end of a half-edge of this vertex, were it entered at this point.
  TEntityCoordinate FarEndFrom(const TEntityCoordinate& aPoint, const THalfEdge& aHalfEdge) const;

  /// Whether a walk that has arrived by a half-edge would, with one that leaves its far vertex, take the same entity.
  bool AreSameEntity(const THalfEdge& aArriving, const THalfEdge& aLeaving) const;

  /// The linear tolerance that the graph was read under.
  double Tolerance() const { return fTolerance; }
  /// True when no two vertices are the same, every piece has its two ends on vertices to the bit, and at each of the
  /// two one half-edge, all of them exact.
  bool IsRegular() const { return fIsRegular; }

  /// Numbers the vertices anew, so that those near each other in the plane have their records near each other, for
  /// walks that wander about. The half-edges of a vertex keep their order. REQUIRES: a regular graph.
  void NumberByPlace();

 private:
  static std::size_t At(TIndex aIndex) { return static_cast<std::size_t>(aIndex); }
  void ReadTree(const TEntityTree& aTree);
  void ReadPendingGraph();
  bool JoinPendingTwins();
  void FindFarVertices();
  bool JoinTwins(TIndex aHalfEdge, TIndex aTwin);
  bool IsExact(const THalfEdge& aHalfEdge, const TEntityCoordinate& aFarEnd) const;
  bool JoinsVertices(const THalfEdge& aHalfEdge) const;

  std::span<const TDXFEntity> fEntities;
  double fTolerance;
  std::vector<TEntityCoordinate> fPoints;
  std::vector<TIndex> fFirst;  // one more than vertices
  std::vector<THalfEdge> fHalfEdges;
  std::vector<TIndex> fInOrder;        // the half-edges in the order of the tree, unless that is their own
  std::vector<TTreeNode*> fNodes;      // in the same order, or none when the tree's nodes are pending
  TPendingGraph* fPending;             // nil when they are there
  std::vector<TIndex> fPendingPlaces;  // by half-edge of the pending graph, its place in the order of the tree
  TDXFEntity fAnyLine;
  bool fIsRegular = true;
};

}  // namespace GeometryEngine::detail
