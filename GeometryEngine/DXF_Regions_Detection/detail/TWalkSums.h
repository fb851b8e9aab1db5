#pragma once

// Area and centroid along walks through a vertex graph. Private.

#include <cstddef>
#include <limits>
#include <span>
#include <vector>

#include "GeometryEngine/DXF_Regions_Detection/detail/TVertexGraph.h"

namespace GeometryEngine::detail {

/// What half-edges add to signed area and centroid sum, and the sums along walks.
///
/// The steps of a walk are the half-edges that it entered, in order, and `kStepBack` where it took the last one out of
/// the sums, the one before it as well, and entered that one again. All of that is summed up in its order, as the bits
/// depend on it.
///
/// REQUIRES: a graph that outlives the sums.
class TWalkSums {
 public:
  static constexpr TIndex kStepBack = kNotFound;

  /// Signed area and centroid sum.
  struct TSums {
    double fArea = 0;
    TEntityCoordinate fCentroid;
  };

  explicit TWalkSums(const TVertexGraph& aGraph) : fGraph(aGraph) {}

  /// From now on the terms of each half-edge are computed once.
  void KeepTerms();
  /// Forgets the terms kept so far: the graph has been numbered anew.
  void ForgetTerms() { fTerms.clear(); }

  double GetAreaTerm(TIndex aHalfEdge);
  double GetArea(std::span<const TIndex> aPath);
  TEntityCoordinate GetCentroid(std::span<const TIndex> aPath);
  /// Both, along steps to and fro.
  TSums GetSums(std::span<const TIndex> aSteps);

 private:
  static constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
  static constexpr TSums kUnknown{kNotANumber, {kNotANumber, kNotANumber}};

  static std::size_t At(TIndex aIndex) { return static_cast<std::size_t>(aIndex); }
  double ComputeArea(TIndex aHalfEdge) const;
  TEntityCoordinate ComputeCentroid(TIndex aHalfEdge) const;
  TSums GetTerms(TIndex aHalfEdge);
  void FetchTermsAhead(TIndex aStep) const;

  const TVertexGraph& fGraph;
  std::size_t fStepsSummed = 0;  // to and fro
  std::vector<TSums> fTerms;     // by half-edge, not numbers until they are asked for; none unless terms are kept
  std::vector<TSums> fPath;      // the terms of the path of the walk in hand
};

}  // namespace GeometryEngine::detail
