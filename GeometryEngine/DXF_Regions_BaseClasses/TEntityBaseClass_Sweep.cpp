#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"
#include "GeometryEngine/DXF_Regions_Detection/InterceptionRecording.h"
#include "GeometryEngine/DXF_Regions_Utilities/EntitySplitting.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/ExtremeCoordinates.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/PairInterceptions.h"

namespace GeometryEngine {

namespace {

// A sweep from left to right over a storage that is sorted by left-most x.
class TSweep {
 public:
  TSweep(const TEntityStorage& aStorage, TEntityTree& aInterceptTree)
      : fStorage(aStorage), fInterceptTree(aInterceptTree) {}

  void Run() {
    for (TIndex i = 0; i < fStorage.Count(); ++i) Enter(i);
  }

 private:
  void Enter(TIndex aIndex) {
    const double left = GetLeftMostCoordinate(EntityAt(aIndex)).x;
    for (std::size_t j = fActive.size(); j-- > 0;) {
      if (IsLeftBehind(fActive[j], left)) {
        Retire(j);
      } else {
        RecordPair(aIndex, fActive[j]);
      }
    }
    fActive.push_back(aIndex);
  }

  bool IsLeftBehind(TIndex aIndex, double aLeft) const {
    const double right = GetRightMostCoordinate(EntityAt(aIndex)).x;
    return aLeft > right && !ValuesSame_DXFTolerance(right, aLeft);
  }

  void Retire(std::size_t aPosition) {
    const TIndex index = fActive[aPosition];
    AddInterception(fInterceptTree, EntityAt(index), index, EntityAt(index).StartCoords);
    AddInterception(fInterceptTree, EntityAt(index), index, EntityAt(index).EndCoords);
    fActive.erase(fActive.begin() + static_cast<std::ptrdiff_t>(aPosition));
  }

  void RecordPair(TIndex aEntering, TIndex aActive) {
    const TDXFEntity& entering = EntityAt(aEntering);
    const TDXFEntity& active = EntityAt(aActive);
    TInterceptionPoints points;
    if (!CheckIntercepts(entering, active, points)) return;
    AddInterceptions(fInterceptTree, points, entering, active, aEntering, aActive);
  }

  const TDXFEntity& EntityAt(TIndex aIndex) const { return *fStorage.GetEntityFromIndex_Pointer(aIndex); }

  const TEntityStorage& fStorage;
  TEntityTree& fInterceptTree;
  std::vector<TIndex> fActive;  // entities that the sweep has reached and not yet left behind, in order of entry
};

}  // namespace

void TEntityBaseClass::DetermineInterceptions(TEntityStorage* apEntityStorage) {
  fCoordinateTree.Clear();
  fInterceptTree.Clear();
  fInterceptTree.pEntityStorage(apEntityStorage);
  if (apEntityStorage != nullptr) {
    apEntityStorage->QuickSortArray(0, apEntityStorage->Count() - 1);
    // KEPT: entities still active at the end are not retired. Their own ends are recorded only where a pair test found
    // them, which trims dangling ends: an end that meets nothing bounds no closed region.
    TSweep(*apEntityStorage, fInterceptTree).Run();
  }
  CreateCoordinateTreeFromIntercepts();
}

void TEntityBaseClass::CreateCoordinateTreeFromIntercepts() {
  fEntityStorage_Regions.FreeEntities();
  fCoordinateTree.pEntityStorage(&fEntityStorage_Regions);
  for (const TTreeNode* node : fInterceptTree.RootNode()->Children()) {
    const TEntityArray pieces = SplitEntity_FromIntercepts(fInterceptTree.GetNodeEntity(*node), node);
    for (const TDXFEntity& piece : pieces) AddEntityToCoordinateTree(fCoordinateTree, piece);
  }
}

void TEntityBaseClass::AddEntityToCoordinateTree(TEntityTree& aTree, const TDXFEntity& aEntity) {
  TEntityStorage* storage = aTree.pEntityStorage();
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
