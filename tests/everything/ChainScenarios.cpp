// Arrays, chains and what is made of one or two entities.

#include "tests/everything/Observations.h"

namespace everything {

using namespace GeometryEngine;
using enum TGuarantee;

namespace {

struct TChain {
  TEntityStorage chain;
  TEntityStorage other;
  TEntityArray answer;
  TCoordinateArray points;
  TAxialBlockArray blocks;
  double number = 0;

  void Prepare() {
    chain.FreeEntities();
    other.FreeEntities();
    chain.AddEntities(RoundedChain(2, 1, 4));
    other.AddEntities(RoundedChain(-3, 1, 2));
    chain.StartCoordinate(chain.GetStartCoordinate());
    answer.clear();
    points.clear();
    blocks.clear();
    number = 0;
  }

  void Observe(TFingerprint& aFingerprint) const {
    everything::Observe(chain, aFingerprint);
    everything::Observe(other, aFingerprint);
    everything::Observe(answer, aFingerprint);
    everything::Observe(points, aFingerprint);
    for (const TAxialBlock& block : blocks) aFingerprint.Add(block.AxPos_Start + block.AngleShift);
    aFingerprint.Add(number);
  }

  static bool IsEmpty() { return false; }
};

std::vector<TScenario> ContainerScenarios() {
  return {
      On<TChain>("AddEntity", Unchanged, [](TChain& s) { s.chain.AddEntity(Tagged(CreateEntity_Line(0, 0, 1, 1))); }),
      On<TChain>("AddEntity_Own", Unchanged, [](TChain& s) { s.chain.AddEntity(*s.chain.Entities_P(0)); }),
      On<TChain>("AddEntity_AtIndex", Unchanged,
                 [](TChain& s) { s.chain.AddEntity_AtIndex(Tagged(CreateEntity_Line(0, 0, 1, 1)), 1); }),
      On<TChain>("AddEntities", Unchanged, [](TChain& s) { s.chain.AddEntities(s.other.EntityArray()); }),
      On<TChain>("AddEntities_Own", Unchanged, [](TChain& s) { s.chain.AddEntities(s.chain.EntityArray()); }),
      On<TChain>("RemoveEntityFromArray", Unchanged, [](TChain& s) { s.chain.RemoveEntityFromArray(1); }),
      On<TChain>("RemoveEntities", Unchanged, [](TChain& s) { s.chain.RemoveEntities(s.chain.EntityArray()); }),
      On<TChain>("SetEntityFromIndex", Unchanged,
                 [](TChain& s) { s.chain.SetEntityFromIndex(1, Tagged(CreateEntity_Line(0, 0, 1, 1))); }),
      On<TChain>("SetEntityColour", Unchanged,
                 [](TChain& s) { s.chain.SetEntityColour(1, "another colour that takes memory of its own"); }),
      On<TChain>("CopyGeometry", Unchanged, [](TChain& s) { s.chain.CopyGeometry(s.other); }),
      On<TChain>("CopyNewGeometry", Unchanged, [](TChain& s) { s.chain.CopyNewGeometry(s.other); }),
      On<TChain>("QuickSortArray", Unchanged, [](TChain& s) { s.chain.QuickSortArray(0, s.chain.Count() - 1); }),
      On<TChain>("ReOrderEntities", Unchanged, [](TChain& s) { s.chain.ReOrderEntities(s.chain.GetVertices().at(2)); }),
      On<TChain>("ReverseEntities", Unchanged, [](TChain& s) { s.chain.ReverseEntities(); }),
      On<TChain>("InsertEntity", Unchanged,
                 [](TChain& s) {
                   TEntityArray_Helper::InsertEntity(s.chain.EntityArray(), Tagged(CreateEntity_Line(0, 0, 1, 1)), 0);
                 }),
      On<TChain>("AddEntities_CheckDuplicate", Unchanged,
                 [](TChain& s) {
                   TEntityArray_Helper::AddEntities_CheckDuplicate(s.chain.EntityArray(), s.other.EntityArray());
                 }),
      On<TChain>("CopyArray", Unchanged,
                 [](TChain& s) {
                   TCoordinateArray_Helper::CopyArray(s.points, TCoordinateArray(5, {1, 2}));
                 }),
      On<TChain>("AddCoordinate", Unchanged,
                 [](TChain& s) {
                   TCoordinateArray_Helper::AddCoordinate(s.points, {1, 2});
                 }),
  };
}

std::vector<TScenario> TransformScenarios() {
  return {
      On<TChain>("RotateEntities", Unchanged, [](TChain& s) { s.chain.RotateEntities(GetRotationMatrix(33)); }),
      On<TChain>("RotateEntities_AroundPoint", Unchanged,
                 [](TChain& s) {
                   s.chain.RotateEntities_AroundPoint(GetRotationMatrix(33), {1, 2});
                 }),
      On<TChain>("Translate", Unchanged, [](TChain& s) { s.chain.Translate(0.1, 0.7); }),
      On<TChain>("Mirror", Unchanged, [](TChain& s) { s.chain.Mirror(CreateEntity_Line(0, 0, 3, 1)); }),
      On<TChain>("DuplicateAroundAxis", Unchanged, [](TChain& s) { s.chain.DuplicateAroundAxis(5, 8, 45, false); }),
      On<TChain>("DuplicateAlongAxis", Unchanged, [](TChain& s) { s.chain.DuplicateAlongAxis(4, 4); }),
      On<TChain>("Offset", Unchanged, [](TChain& s) { s.chain.Offset(0.3); }),
      On<TChain>("OffsetInwards", Unchanged, [](TChain& s) { s.chain.Offset(-0.2); }),
  };
}

double Measure(const TEntityStorage& aChain) {
  const TEntityCoordinate centroid = aChain.GetCentroid();
  return aChain.GetClosedArea() + centroid.x * 3 + centroid.y + aChain.GetRadius_Maximum() +
         aChain.GetRadius_MaximumSurf() + aChain.GetRadius_Minimum() + aChain.MinPointToEntitiesDistance({3, 2});
}

std::vector<TScenario> MeasureScenarios() {
  return {
      On<TChain>("GetVertices", Unchanged, [](TChain& s) { s.points = s.chain.GetVertices(); }),
      On<TChain>("GetVertices_Surf", Unchanged, [](TChain& s) { s.points = s.chain.GetVertices_Surf(true); }),
      On<TChain>("CalculateMinMaxValues", Unchanged, [](TChain& s) { s.chain.CalculateMinMaxValues(); }),
      On<TChain>("CalculateMinMaxValues_RT", Unchanged, [](TChain& s) { s.chain.CalculateMinMaxValues_RT(); }),
      On<TChain>("ClosedChainMeasures", Unchanged, [](TChain& s) { s.number = Measure(s.chain); }),
      On<TChain>("PointInsideEntities", Unchanged,
                 [](TChain& s) {
                   s.number = s.chain.PointInsideEntities({3, 2}, true) + 2 * s.chain.PointOnEntities({3, 2});
                 }),
      On<TChain>("GetEntity_Next", Unchanged,
                 [](TChain& s) { s.answer = {s.chain.GetEntity_Next(s.chain.GetStartCoordinate()).aEntity}; }),
      On<TChain>("GetAxialBlocks", Unchanged, [](TChain& s) { s.blocks = GetAxialBlocks(0, 100, 7, 2); }),
      On<TChain>("GetDXFDivisionBoundaries", Unchanged,
                 [](TChain& s) { s.answer = GetDXFDivisionBoundaries(10, 20, 5, 50); }),
      On<TChain>("GenerateDXFClosureEntities", Unchanged,
                 [](TChain& s) { s.answer = GenerateDXFClosureEntities(10, 2, 5, 50); }),
      On<TChain>("CheckIntercepts", Unchanged,
                 [](TChain& s) {
                   TInterceptionPoints points;
                   CheckIntercepts(s.chain.Entities(2), CreateEntity_Line(2, 4, 7, 6.5), points);
                   s.points = points.Points();
                 }),
  };
}

}  // namespace

std::vector<TScenario> ChainScenarios() {
  std::vector<TScenario> all = ContainerScenarios();
  for (const auto& list : {TransformScenarios(), MeasureScenarios()}) all.insert(all.end(), list.begin(), list.end());
  return all;
}

}  // namespace everything
