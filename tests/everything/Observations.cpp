#include "tests/everything/Observations.h"

namespace everything {

using namespace GeometryEngine;

namespace {

void Observe(const TTreeNode& aNode, TFingerprint& aFingerprint) {
  aFingerprint.Add(std::int64_t{aNode.AbsoluteIndex()});
  aFingerprint.Add(std::int64_t{aNode.RelativeIndex()});
  aFingerprint.Add(std::int64_t{aNode.Level()});
  aFingerprint.Add(std::int64_t{aNode.Count()});
  aFingerprint.Add(std::int64_t{aNode.EntityIndex()});
  aFingerprint.Add(std::int64_t{aNode.RegionIndex()});
  aFingerprint.Add(std::int64_t{aNode.Travelled()});
  aFingerprint.Add(aNode.GaussArea());
  everything::Observe(aNode.Coordinates(), aFingerprint);
  everything::Observe(aNode.RegionCentroid(), aFingerprint);
  for (const std::int32_t inner : aNode.SubRegions()) aFingerprint.Add(std::int64_t{inner});
}

void Observe(const TTreeNode_Geometry& aRegion, TFingerprint& aFingerprint) {
  aFingerprint.Add(std::int64_t{aRegion.GetParent() == nullptr ? -1 : aRegion.GetParent()->GetTreeIndex()});
  aFingerprint.Add(std::string_view(aRegion.RegionName()));
  aFingerprint.Add(std::string_view(aRegion.UniqueName()));
  aFingerprint.Add(std::int64_t{aRegion.Colour()});
  aFingerprint.Add(std::int64_t{aRegion.NumberDuplications()});
  aFingerprint.Add(aRegion.DuplicationAngle());
  aFingerprint.Add(aRegion.RegionArea_Base());
  everything::Observe(aRegion.Centroid(), aFingerprint);
  everything::Observe(aRegion.RegionCoordinates(), aFingerprint);
  everything::Observe(aRegion.Entities(), aFingerprint);
  everything::Observe(aRegion.Entities_Internal(), aFingerprint);
}

}  // namespace

void Observe(const TEntityCoordinate& aPoint, TFingerprint& aFingerprint) {
  aFingerprint.Add(aPoint.x);
  aFingerprint.Add(aPoint.y);
}

void Observe(const TDXFEntity& aEntity, TFingerprint& aFingerprint) {
  aFingerprint.Add(static_cast<std::int64_t>(aEntity.EntityType));
  Observe(aEntity.StartCoords, aFingerprint);
  Observe(aEntity.EndCoords, aFingerprint);
  Observe(aEntity.CentreCoords, aFingerprint);
  aFingerprint.Add(aEntity.radius);
  aFingerprint.Add(aEntity.startAngle);
  aFingerprint.Add(aEntity.endAngle);
  aFingerprint.Add(std::int64_t{aEntity.ConductorCol});
  aFingerprint.Add(std::string_view(aEntity.Colour));
  aFingerprint.Add(std::string_view(aEntity.RegionName));
}

void Observe(const TCoordinateArray& aPoints, TFingerprint& aFingerprint) {
  aFingerprint.Add(static_cast<std::int64_t>(aPoints.size()));
  for (const TEntityCoordinate& point : aPoints) Observe(point, aFingerprint);
}

void Observe(const TEntityArray& aEntities, TFingerprint& aFingerprint) {
  aFingerprint.Add(static_cast<std::int64_t>(aEntities.size()));
  for (const TDXFEntity& entity : aEntities) Observe(entity, aFingerprint);
}

void Observe(const TEntityStorage& aChain, TFingerprint& aFingerprint) {
  Observe(aChain.EntityArray(), aFingerprint);
  Observe(aChain.StartCoordinate(), aFingerprint);
  for (const double bound : {aChain.Min_X(), aChain.Max_X(), aChain.Min_Y(), aChain.Max_Y(), aChain.Min_R(),
                             aChain.Max_R(), aChain.Min_T(), aChain.Max_T()}) {
    aFingerprint.Add(bound);
  }
}

void Observe(const TEntityTree& aTree, TFingerprint& aFingerprint) {
  aFingerprint.Add(std::int64_t{aTree.Count()});
  for (const TTreeNode* top : aTree.RootNode()->Children()) {
    Observe(*top, aFingerprint);
    for (const TTreeNode* node : top->Children()) Observe(*node, aFingerprint);
  }
}

void Observe(const TTree_Geometry& aTree, TFingerprint& aFingerprint) {
  aFingerprint.Add(std::int64_t{aTree.GetCount()});
  for (TIndex i = 0; i < aTree.GetCount(); ++i) Observe(*aTree.GetNodeFromIndex(i), aFingerprint);
}

void Observe(const TMachineElementList& aElements, TFingerprint& aFingerprint) {
  aFingerprint.Add(std::int64_t{aElements.Count()});
  for (TIndex i = 0; i < aElements.Count(); ++i) {
    const TMachineElement& element = *aElements.Item(i);
    aFingerprint.Add(element.ElementArea());
    aFingerprint.Add(std::int64_t{element.innerBoundary().Enabled});
    Observe(element.innerBoundary().BoundaryEntity, aFingerprint);
    Observe(element.outerBoundary().BoundaryEntity, aFingerprint);
  }
}

TDXFEntity Tagged(TDXFEntity aEntity) {
  aEntity.Colour = "a colour whose name takes memory of its own";
  aEntity.RegionName = "a region whose name takes memory of its own";
  aEntity.ConductorCol = 3;
  return aEntity;
}

TEntityArray RoundedChain(double aX, double aY, double aSize) {
  const double far = aSize;
  return {Tagged(CreateEntity_Line(aX, aY, aX + far, aY)), CreateEntity_Line(aX + far, aY + far, aX + far, aY),
          Tagged(CreateEntity_Arc(aX + far / 2, aY + far, far / 2, 0, 180)), CreateEntity_Line(aX, aY + far, aX, aY)};
}

TEntityArray MixedDrawing() {
  TEntityArray drawing = RoundedChain(1, 1, 12);
  for (const double radius : {1.5, 3.0}) {
    drawing.push_back(Tagged(CreateEntity_Arc(7, 8, radius, 0, 180)));
    drawing.push_back(CreateEntity_Arc(7, 8, radius, 180, 360));
  }
  drawing.push_back(CreateEntity_Line(0, 3.25, 30, 3.75));
  drawing.push_back(CreateEntity_Line(0, 3.25, 30, 3.75));
  drawing.push_back(Tagged(CreateEntity_Line(3, 0, 5, 20)));
  drawing.push_back(CreateEntity_Line(40, 0, 41, 0));
  return drawing;
}

TEntityArray ToleranceChain() {
  TEntityArray drawing;
  for (int i = 0; i < 6; ++i) {
    const double x = 0.9e-4 * i;
    drawing.push_back(CreateEntity_Line(x, 0, 4, 1 + i));
    drawing.push_back(CreateEntity_Line(4, 1 + i, -4 + x, 1));
  }
  drawing.push_back(CreateEntity_Line(-4, 1, 0, 0));
  drawing.push_back(CreateEntity_Line(9, 0, 10, 0));
  return drawing;
}

}  // namespace everything
