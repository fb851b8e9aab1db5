#include "GeometryEngine/DXF_Regions_Detection/detail/TWalkSums.h"

#include <algorithm>
#include <cmath>

#include "GeometryEngine/DXF_Regions_Utilities/EntityTerms.h"
#include "GeometryEngine/host/detail/FetchAhead.h"

namespace GeometryEngine::detail {

void TWalkSums::KeepTerms() {
  if (fTerms.empty()) fTerms.resize(At(fGraph.HalfEdgeCount()), kUnknown);
}

double TWalkSums::ComputeArea(TIndex aHalfEdge) const {
  const THalfEdge& halfEdge = fGraph.HalfEdge(aHalfEdge);
  return GetSignedArea_Entity(fGraph.From(halfEdge), fGraph.FarEnd(halfEdge), fGraph.Curve(halfEdge));
}

TEntityCoordinate TWalkSums::ComputeCentroid(TIndex aHalfEdge) const {
  const THalfEdge& halfEdge = fGraph.HalfEdge(aHalfEdge);
  return GetCentroidComponent_Entity(fGraph.From(halfEdge), fGraph.FarEnd(halfEdge), fGraph.Curve(halfEdge));
}

double TWalkSums::GetAreaTerm(TIndex aHalfEdge) {
  if (fTerms.empty()) return ComputeArea(aHalfEdge);
  double& term = fTerms[At(aHalfEdge)].fArea;
  if (std::isnan(term)) term = ComputeArea(aHalfEdge);
  return term;
}

TWalkSums::TSums TWalkSums::GetTerms(TIndex aHalfEdge) {
  if (fTerms.empty()) return {ComputeArea(aHalfEdge), ComputeCentroid(aHalfEdge)};
  TSums& terms = fTerms[At(aHalfEdge)];
  if (std::isnan(terms.fArea)) terms.fArea = ComputeArea(aHalfEdge);
  if (std::isnan(terms.fCentroid.x)) terms.fCentroid = ComputeCentroid(aHalfEdge);
  return terms;
}

// Terms lie scattered in memory.
[[gnu::always_inline]] inline void TWalkSums::FetchTermsAhead(TIndex aStep) const {
  if (IsIndexWithin(aStep, fTerms.size())) FetchAhead(&fTerms[At(aStep)]);
}

double TWalkSums::GetArea(std::span<const TIndex> aPath) {
  double area = 0;
  for (const TIndex h : aPath) area += GetAreaTerm(h);
  return area;
}

TEntityCoordinate TWalkSums::GetCentroid(std::span<const TIndex> aPath) {
  TEntityCoordinate sum;
  for (const TIndex h : aPath) sum = sum + (fTerms.empty() ? ComputeCentroid(h) : GetTerms(h).fCentroid);
  return sum;
}

TWalkSums::TSums TWalkSums::GetSums(std::span<const TIndex> aSteps) {
  constexpr std::size_t kFewSteps = 16;    // half-edges for one step
  constexpr std::size_t kStepsAhead = 16;  // in which memory answers
  fStepsSummed += aSteps.size();
  if (kFewSteps * fStepsSummed > At(fGraph.HalfEdgeCount())) KeepTerms();
  // Two numbers by themselves are kept in registers; a record that is answered would not be.
  double area = 0;
  TEntityCoordinate centroid;
  const auto add = [&](const TSums& aTerms) {
    area += aTerms.fArea;
    centroid = centroid + aTerms.fCentroid;
  };
  const auto takeOut = [&](const TSums& aTerms) {
    area -= aTerms.fArea;
    centroid = centroid - aTerms.fCentroid;
  };
  fPath.clear();
  for (std::size_t i = 0; i < aSteps.size(); ++i) {
    if (i + kStepsAhead < aSteps.size()) FetchTermsAhead(aSteps[i + kStepsAhead]);
    const TIndex step = aSteps[i];
    if (step != kStepBack) {
      const TSums terms = GetTerms(step);
      fPath.push_back(terms);
      add(terms);
    } else {
      takeOut(fPath.back());
      fPath.pop_back();
      takeOut(fPath.back());
      add(fPath.back());
    }
  }
  return {area, centroid};
}

}  // namespace GeometryEngine::detail
