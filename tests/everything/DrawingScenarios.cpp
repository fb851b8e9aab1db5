// Random drawings through the whole detection, to region nodes with their label points.

#include "tests/everything/Observations.h"
#include "tests/properties/RandomDrawings.h"

namespace everything {

using namespace GeometryEngine;

namespace {

constexpr std::uint32_t kSeeds = 4;

class TDrawing : public TSubject {
 public:
  TDrawing(const properties::Kind& aKind, std::uint32_t aSeed) {
    properties::Random random(aSeed);
    fEntities = aKind.draw(random);
    TDrawing::Prepare();
  }

  void Prepare() override {
    fDrawing.FreeEntities();
    fDrawing.AddEntities(fEntities);
    fTree.Clear();
  }

  void Operate() override {
    fDriver.DetermineInterceptions(&fDrawing);
    fDriver.DetermineRegions(fDriver.CoordinateTree(), 1);
    fDriver.IdentifySubRegions(fDriver.CoordinateTree());
    fDriver.RemoveDuplicatedSubRegions();
    for (TIndex i = 0; i < fDriver.RegionTree().RootNode()->Count(); ++i) {
      auto node = fTree.CreateTreeNode();
      TTreeNode_Geometry* region = TTreeNode_Geometry::TypeCast(fTree.AddNewTreeNode(node));
      fDriver.AddRegionEntities(region, i);
      region->UpdateGeometry_Outputs();
    }
  }

  void Observe(TFingerprint& aFingerprint) override {
    everything::Observe(fDriver.InterceptTree(), aFingerprint);
    everything::Observe(fDriver.CoordinateTree(), aFingerprint);
    everything::Observe(fDriver.RegionTree(), aFingerprint);
    everything::Observe(fTree, aFingerprint);
  }

 private:
  TEntityArray fEntities;
  TEntityStorage fDrawing;
  TEntityBaseClass fDriver;
  TTree_Geometry fTree;
};

}  // namespace

std::vector<TScenario> DrawingScenarios() {
  std::vector<TScenario> all;
  for (const properties::Kind& kind : properties::kKinds) {
    for (std::uint32_t seed = 1; seed <= kSeeds; ++seed) {
      all.push_back({std::string(kind.name) + "_" + std::to_string(seed), TGuarantee::Usable,
                     [&kind, seed] { return std::make_unique<TDrawing>(kind, seed); }});
    }
  }
  return all;
}

}  // namespace everything
