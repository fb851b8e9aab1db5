#include "benchmarks/support/HostRun.h"

#include <algorithm>
#include <span>

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
  const std::vector<TIndex> parents = Parents(*fDriver.RegionTree().RootNode());
  const std::vector<std::size_t> order = ContainersFirst(parents);
  PlaceNodes(order, parents);
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

// Containers before what they contain, level after level and else in the regions' order, in which their entities stand
// in memory. A node moves below its container as soon as it is made, before anything hangs below itself.
std::vector<std::size_t> THostRun::ContainersFirst(const std::vector<TIndex>& aParents) const {
  const std::span<TTreeNode* const> regions = fDriver.RegionTree().RootNode()->Children();
  std::vector<std::size_t> order;
  order.reserve(regions.size());
  for (std::size_t i = 0; i < regions.size(); ++i) {
    if (aParents[i] == kNotFound) order.push_back(i);
  }
  for (std::size_t k = 0; k < order.size(); ++k) {
    for (const std::int32_t inner : regions[order[k]]->SubRegions()) {
      const auto region = static_cast<std::size_t>(inner);
      if (aParents[region] == ToIndex(order[k])) order.push_back(region);
    }
  }
  return order;
}

void THostRun::PlaceNodes(const std::vector<std::size_t>& aOrder, const std::vector<TIndex>& aParents) {
  fNodes.assign(aParents.size(), nullptr);
  for (const std::size_t i : aOrder) {
    auto node = fTree.CreateTreeNode();
    fNodes[i] = TTreeNode_Geometry::TypeCast(fTree.AddNewTreeNode(node));
    fDriver.AddRegionEntities(fNodes[i], ToIndex(i));
    if (aParents[i] == kNotFound) continue;
    fTree.MoveTreeNode_Recursive(fNodes[i], fNodes[static_cast<std::size_t>(aParents[i])]);
  }
}

}  // namespace benchmarks
