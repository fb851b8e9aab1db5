#include "benchmarks/support/HostRun.h"

#include <algorithm>
#include <numeric>

namespace benchmarks {

using namespace GeometryEngine;

namespace {

constexpr std::int32_t kAnticlockwiseLoops = 1;

TEntityCoordinate ToCoordinate(const drawings::Point& aPoint) {
  return {aPoint.x, aPoint.y};
}

// Region by region the one that lists it, none for those at the top.
std::vector<TIndex> Parents(const TTreeNode& aRegions) {
  std::vector<TIndex> parents(aRegions.Children().size(), kNotFound);
  for (std::size_t i = 0; i < parents.size(); ++i) {
    for (const std::int32_t inner : aRegions.Children()[i]->SubRegions()) {
      parents[static_cast<std::size_t>(inner)] = ToIndex(i);
    }
  }
  return parents;
}

}  // namespace

TEntityArray ToEntities(const drawings::Drawing& aDrawing) {
  TEntityArray entities;
  entities.reserve(aDrawing.size());
  for (const auto& [isArc, start, end, centre, radius, startAngle, endAngle] : aDrawing) {
    entities.push_back(isArc ? TDXFEntity::Arc(ToCoordinate(start), ToCoordinate(end), ToCoordinate(centre), radius,
                                               startAngle, endAngle)
                             : TDXFEntity::Line(ToCoordinate(start), ToCoordinate(end)));
  }
  return entities;
}

THostRun::THostRun(const drawings::Drawing& aDrawing) {
  fDrawing.AddEntities(ToEntities(aDrawing));
}

void THostRun::DetermineInterceptions() {
  fDriver.DetermineInterceptions(&fDrawing);
}

void THostRun::DetermineRegions() {
  fDriver.DetermineRegions(fDriver.CoordinateTree(), kAnticlockwiseLoops);
}

void THostRun::DetectOrphanEntities() {
  fDriver.DetectOrphanEntities(fDriver.CoordinateTree());
}

void THostRun::IdentifySubRegions() {
  fDriver.IdentifySubRegions(fDriver.CoordinateTree());
}

void THostRun::RemoveDuplicatedSubRegions() {
  fDriver.RemoveDuplicatedSubRegions();
}

void THostRun::HandOver() {
  const std::vector<std::size_t> order = LargestFirst();
  PlaceNodes(order);
  // Children first: a label keeps clear of them.
  std::for_each(order.rbegin(), order.rend(), [this](std::size_t i) { fNodes[i]->UpdateGeometry_Outputs(); });
}

void THostRun::All() {
  DetermineInterceptions();
  DetermineRegions();
  IdentifySubRegions();
  RemoveDuplicatedSubRegions();
  HandOver();
}

std::size_t THostRun::FaceCount() const {
  return fDriver.RegionTree().RootNode()->Children().size();
}

// Containers before what they contain. A node moves below its container as soon as it is made: as long as few nodes
// hang below the root, taking one away from there costs little.
std::vector<std::size_t> THostRun::LargestFirst() const {
  const auto& regions = fDriver.RegionTree().RootNode()->Children();
  std::vector<std::size_t> order(regions.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::ranges::stable_sort(order, std::ranges::greater(), [&](std::size_t i) { return regions[i]->GaussArea(); });
  return order;
}

void THostRun::PlaceNodes(const std::vector<std::size_t>& aOrder) {
  const std::vector<TIndex> parents = Parents(*fDriver.RegionTree().RootNode());
  fNodes.assign(parents.size(), nullptr);
  for (const std::size_t i : aOrder) {
    auto node = fTree.CreateTreeNode();
    fNodes[i] = TTreeNode_Geometry::TypeCast(fTree.AddNewTreeNode(node));
    fDriver.AddRegionEntities(fNodes[i], ToIndex(i));
    if (parents[i] != kNotFound) fTree.MoveTreeNode_Recursive(fNodes[i], fNodes[static_cast<std::size_t>(parents[i])]);
  }
}

}  // namespace benchmarks
