#include <utility>

#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"
#include "GeometryEngine/DXF_Regions_BaseClasses/detail/TDriverPass.h"
#include "GeometryEngine/DXF_Regions_BaseClasses/detail/TVertexGraphBuilder.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/TRecordedPoints.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/TSweep.h"
#include "GeometryEngine/DXF_Regions_Utilities/detail/EntityPieces.h"

namespace GeometryEngine {

namespace {

void FillInterceptTree(const TEntityStorage& aDrawing, TEntityTree& aTree) {
  detail::TRecordedPoints records(aDrawing.EntityArray());
  // KEPT: entities still active at the end are not retired. Their own ends are recorded only where a pair test found
  // them, which trims dangling ends: an end that meets nothing bounds no closed region.
  detail::TSweep(aDrawing.EntityArray(), records).Run();
  records.FillTree(aTree);
}

/// At least as many pieces as the entities of an intercept tree are cut into.
std::size_t GetMostPieces(const TEntityTree& aInterceptTree) {
  std::size_t pieces = 0;
  for (const TTreeNode* node : aInterceptTree.RootNode()->Children()) {
    const std::size_t points = node->Children().size();
    pieces += points < 2 ? points + 1 : points - 1;
  }
  return pieces;
}

}  // namespace

void TEntityBaseClass::DetermineInterceptions(TEntityStorage* apEntityStorage) {
  detail::TDriverPass pass(fInterceptTree);
  fCoordinateTree.Clear();
  fInterceptTree.Clear();
  fInterceptTree.pEntityStorage(apEntityStorage);
  if (apEntityStorage != nullptr) {
    apEntityStorage->QuickSortArray(0, apEntityStorage->Count() - 1);
    FillInterceptTree(*apEntityStorage, fInterceptTree);
  }
  CreateCoordinateTreeFromIntercepts();
  pass.Done();
}

void TEntityBaseClass::CreateCoordinateTreeFromIntercepts() {
  detail::TDriverPass pass(fCoordinateTree, &fEntityStorage_Regions);
  fEntityStorage_Regions.FreeEntities();
  fCoordinateTree.pEntityStorage(&fEntityStorage_Regions);
  TEntityArray& pieces = fEntityStorage_Regions.EntityArray();
  detail::TVertexGraphBuilder graph(fCoordinateTree, pieces, GetMostPieces(fInterceptTree));
  for (const TTreeNode* node : fInterceptTree.RootNode()->Children()) {
    detail::ForEachPiece(fInterceptTree.GetNodeEntity(*node), *node,
                         [&](TDXFEntity&& piece) { graph.Add(std::move(piece)); });
  }
  graph.Finish();
  pass.Done();
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
