#include <cstddef>
#include <memory>
#include <span>
#include <utility>

#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"
#include "GeometryEngine/DXF_Regions_BaseClasses/detail/TDriverPass.h"
#include "GeometryEngine/DXF_Regions_BaseClasses/detail/TVertexGraphBuilder.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/TRecordedPoints.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/TSweep.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TInterceptRows.h"
#include "GeometryEngine/DXF_Regions_Utilities/detail/EntityPieces.h"

namespace GeometryEngine {

namespace {

std::unique_ptr<detail::TInterceptRows> FindInterceptions(const TEntityStorage& aDrawing) {
  detail::TRecordedPoints records(aDrawing.EntityArray());
  // KEPT: entities still active at the end are not retired. Their own ends are recorded only where a pair test found
  // them, which trims dangling ends: an end that meets nothing bounds no closed region.
  detail::TSweep(aDrawing.EntityArray(), records).Run();
  return records.GetRows();
}

constexpr std::size_t kRowsAhead = 8;  // some hundred nanoseconds, in which memory answers

/// Calls `aVisit(entity index, points)` for each entity of an intercept tree, whose nodes need not be there for it;
/// and, where they are not, `aForesee(points)` some entities earlier.
template <class TVisit, class TForesee>
void ForEachMetEntity(const TEntityTree& aTree, const detail::TInterceptRows* aRows, const TVisit& aVisit,
                      const TForesee& aForesee) {
  if (aRows == nullptr) {
    for (const TTreeNode* node : aTree.RootNode()->Children()) aVisit(node->EntityIndex(), node->Children());
    return;
  }
  for (std::size_t row = 0; row < aRows->Count(); ++row) {
    if (row + kRowsAhead < aRows->Count()) aForesee(aRows->PointsAt(row + kRowsAhead));
    aVisit(aRows->EntityAt(row), aRows->PointsAt(row));
  }
}

/// At least as many pieces as an entity is cut into at so many points.
std::size_t GetMostPieces(std::size_t aPoints) {
  return aPoints < 2 ? aPoints + 1 : aPoints - 1;
}

}  // namespace

void TEntityBaseClass::DetermineInterceptions(TEntityStorage* apEntityStorage) {
  detail::TDriverPass pass(fInterceptTree);
  fCoordinateTree.Clear();
  fInterceptTree.Clear();
  fInterceptTree.pEntityStorage(apEntityStorage);
  if (apEntityStorage != nullptr) {
    apEntityStorage->QuickSortArray(0, apEntityStorage->Count() - 1);
    fInterceptTree.PendingNodes(FindInterceptions(*apEntityStorage));
  }
  CreateCoordinateTreeFromIntercepts();
  pass.Done();
}

void TEntityBaseClass::CreateCoordinateTreeFromIntercepts() {
  detail::TDriverPass pass(fCoordinateTree, &fEntityStorage_Regions);
  fEntityStorage_Regions.FreeEntities();
  fCoordinateTree.pEntityStorage(&fEntityStorage_Regions);
  if (fCoordinateTree.RootNode()->Children().empty()) {
    BuildCoordinateTree();
  } else {
    AddPiecesToCoordinateTree();
  }
  pass.Done();
}

void TEntityBaseClass::AddPiecesToCoordinateTree() {
  const auto add = [&](const TDXFEntity& piece) { AddEntityToCoordinateTree(fCoordinateTree, piece); };
  const auto addPieces = [&](TIndex index, auto points) {
    detail::ForEachPiece(fInterceptTree.GetEntity(index), points, add);
  };
  ForEachMetEntity(fInterceptTree, nullptr, addPieces, [](auto) {});
}

// All pieces at once, the nodes when somebody looks at them.
void TEntityBaseClass::BuildCoordinateTree() {
  const auto* rows = dynamic_cast<const detail::TInterceptRows*>(fInterceptTree.PendingNodes());
  std::size_t mostPieces = 0;
  const auto count = [&](TIndex, auto points) { mostPieces += GetMostPieces(points.size()); };
  ForEachMetEntity(fInterceptTree, rows, count, [](auto) {});
  detail::TVertexGraphBuilder graph(fEntityStorage_Regions.EntityArray(), mostPieces);
  const auto add = [&](TDXFEntity&& piece) { graph.Add(std::move(piece)); };
  const auto addPieces = [&](TIndex index, auto points) {
    detail::ForEachPiece(fInterceptTree.GetEntity(index), points, add);
  };
  const auto fetchAhead = [&](std::span<const detail::TInterceptRows::TPoint> points) {
    for (const auto& point : points) graph.FetchAhead(point.fPoint);
  };
  ForEachMetEntity(fInterceptTree, rows, addPieces, fetchAhead);
  fCoordinateTree.PendingNodes(graph.TakeGraph());
}

void TEntityBaseClass::AddEntityToCoordinateTree(TEntityTree& aTree, const TDXFEntity& aEntity) {
  TEntityStorage* storage = aTree.pEntityStorage();
  const TFloatEnvironment environment;
  if (storage == nullptr || storage->CheckEntityExists(aEntity)) return;
  if (aEntity.EntityType != DXFLine && aEntity.EntityType != DXFArc) return;
  const TIndex index = storage->Count();
  TDXFEntity piece = aEntity;
  piece.StartCoords = AddCoordinateNode(aTree, aEntity.StartCoords, index);
  piece.EndCoords = AddCoordinateNode(aTree, aEntity.EndCoords, index);
  storage->AddEntity(piece);
}

TEntityCoordinate TEntityBaseClass::AddCoordinateNode(TEntityTree& aTree, const TEntityCoordinate& aCoordinate,
                                                      TIndex aEntityIndex) {
  TTreeNode* vertex = aTree.Search_L1_Coords(aCoordinate);
  if (vertex == nullptr) {
    vertex = aTree.AddTreeNode_ToRoot();
    vertex->Coordinates(aCoordinate);
  }
  aTree.AddTreeNode(vertex)->EntityIndex(aEntityIndex);
  return vertex->Coordinates();
}

}  // namespace GeometryEngine
