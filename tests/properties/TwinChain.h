#pragma once

// One chain through everything that storages and region nodes do, by either engine; what it answers is recorded. What
// is asked follows from the chain's seed alone.

#include <string>
#include <vector>

#include "tests/properties/TwinDrawings.h"
#include "tests/properties/TwinEngines.h"
#include "tests/properties/TwinRecord.h"

namespace GeometryEngine::properties {

template <class TEngine>
class TwinChain {
 public:
  explicit TwinChain(const TwinDrawing& aChain) : fChain(aChain), fRandom(~aChain.seed) {
    Apply(aChain.settings);
    fStorage.AddEntities(aChain.entities);
  }

  TwinRecord Run() {
    Measure();
    Search();
    Copy();
    Offset();
    Regions();
    Names();
    return std::move(fRecord);
  }

  /// Offsets that were not asked for.
  unsigned long OffsetsLeftOut() const { return fOffsetsLeftOut; }

 private:
  using Storage = typename TEngine::Storage;
  using Region = typename TEngine::Region;

  int Whole(int aLow, int aHigh) { return static_cast<int>(std::floor(fRandom.Between(aLow, aHigh + 1))); }

  /// A vertex of the chain, a point on it, near it, or anywhere.
  TEntityCoordinate AnyPoint() {
    if (fChain.entities.empty() || fRandom.Chance(0.3)) return {fRandom.Between(-60, 120), fRandom.Between(-60, 120)};
    const TDXFEntity& entity = AnyEntity();
    const double share = 0.25 * Whole(0, 4);
    const TEntityCoordinate point = entity.StartCoords + share * (entity.EndCoords - entity.StartCoords);
    return fRandom.Chance(0.8) ? point : point + TEntityCoordinate{0.9 * fChain.settings.linearTolerance, 0};
  }

  const TDXFEntity& AnyEntity() {
    return fChain.entities[static_cast<std::size_t>(Whole(0, static_cast<int>(fChain.entities.size()) - 1))];
  }

  void Measure() {
    fRecord.Section("measures");
    fRecord.Add("start", fStorage.GetStartCoordinate());
    fRecord.Add("end", fStorage.GetEndCoordinate());
    fRecord.Add("vertex", fStorage.GetVertices());
    fRecord.Add("point", fStorage.GetVertices_Surf(false));
    fRecord.Add("point with middles", fStorage.GetVertices_Surf(true));
    fRecord.Add("area", fStorage.GetClosedArea());
    fRecord.Add("centroid", fStorage.GetCentroid());
    fRecord.Add("largest radius", fStorage.GetRadius_Maximum());
    fRecord.Add("largest radius of the surface", fStorage.GetRadius_MaximumSurf());
    fRecord.Add("smallest radius", fStorage.GetRadius_Minimum());
    fStorage.CalculateMinMaxValues();
    fStorage.CalculateMinMaxValues_RT();
    for (const double bound : {fStorage.Min_X(), fStorage.Max_X(), fStorage.Min_Y(), fStorage.Max_Y(), fStorage.Min_R(),
                               fStorage.Max_R(), fStorage.Min_T(), fStorage.Max_T()}) {
      fRecord.Add("bound", bound);
    }
  }

  void Search() {
    fRecord.Section("searches");
    if (fRandom.Chance(0.8)) fStorage.StartCoordinate(fStorage.GetStartCoordinate());
    for (int i = 0; i < 8; ++i) {
      const TEntityCoordinate point = AnyPoint();
      fRecord.Add("is on", fStorage.PointOnEntities(point));
      fRecord.Add("is inside", fStorage.PointInsideEntities(point, false));
      fRecord.Add("is inside or on", fStorage.PointInsideEntities(point, true));
      fRecord.Add("distance", fStorage.MinPointToEntitiesDistance(point));
      fRecord.Add("next", TEngine::GetEntity_Next(fStorage, point));
      fRecord.Add("previous", TEngine::GetEntity_Previous(fStorage, point));
      if (!fChain.entities.empty()) fRecord.Add("index", fStorage.IndexOf(AnyEntity()));
    }
    Storage reordered;
    reordered.AddEntities(fChain.entities);
    reordered.ReOrderEntities(AnyPoint());
    fRecord.Add("reordered", reordered.EntityArray());
  }

  void Copy() {
    fRecord.Section("copies");
    TEntityArray united = fChain.entities;
    TEntityArray moved = fChain.entities;
    for (TDXFEntity& entity : moved) entity.StartCoords = AnyPoint();
    TEngine::AddWithoutDuplicates(united, moved);
    TEngine::AddWithoutDuplicates(united, fChain.entities);
    fRecord.Add("united", united);

    Storage storage;
    storage.AddEntities(united);
    storage.RemoveEntities(fRandom.Chance(0.5) ? fChain.entities : moved);
    fRecord.Add("left", storage.EntityArray());
    storage.AddEntities(fChain.entities);
    storage.DuplicateAlongAxis(Whole(0, 4), fRandom.Chance(0.5) ? 25.0 : fRandom.Between(-50, 50));
    fRecord.Add("along the axis", storage.EntityArray());

    Storage ring;
    ring.AddEntities(fChain.entities);
    const int all = Whole(1, 12);
    ring.DuplicateAroundAxis(Whole(0, all), all, 360.0 / all, fRandom.Chance(0.2));
    fRecord.Add("about the axis", ring.EntityArray());
  }

  void Offset() {
    Storage storage;
    storage.AddEntities(fChain.entities);
    constexpr double kDistances[] = {0.5, -0.5, 3, -3, 0.001, 60, 0};
    for (int i = 0; i < 2; ++i) {
      OffsetIfAffordable(storage, kDistances[Whole(0, static_cast<int>(std::size(kDistances)) - 1)]);
      fRecord.Section("offset", i);
      fRecord.Add("entity", storage.EntityArray());
    }
  }

  /// A plain offset looks for each point of an outline among all of them, and a huge arc has a million.
  void OffsetIfAffordable(Storage& aStorage, double aDistance) {
    constexpr std::size_t kMostPoints = 10'000;
    if (aStorage.GetVertices_Surf(false).size() <= kMostPoints) {
      aStorage.Offset(aDistance);
    } else {
      ++fOffsetsLeftOut;
    }
  }

  void Record(const char* aName, Region& aRegion) {
    fRecord.Section(aName);
    fRecord.Add("entity", aRegion.Entities().EntityArray());
    fRecord.Add("internal entity", aRegion.Entities_Internal().EntityArray());
    fRecord.Add("start", aRegion.Entities().StartCoordinate());
    fRecord.Add("internal start", aRegion.Entities_Internal().StartCoordinate());
    fRecord.Add("area", aRegion.RegionArea_Base());
    fRecord.Add("net area", aRegion.RegionArea());
    fRecord.Add("centroid", aRegion.Centroid());
    fRecord.Add("label", aRegion.RegionCoordinates());
    fRecord.Add("duplications", aRegion.NumberDuplications());
    fRecord.Add("duplication angle", aRegion.DuplicationAngle());
  }

  void Regions() {
    typename TEngine::RegionTree tree;
    Region& region = *TEngine::AddRegion(tree);
    region.Entities().AddEntities(fChain.entities);
    if (fRandom.Chance(0.15)) {
      Storage& internal = region.Entities_Internal();
      internal.AddEntities(fChain.entities);
      OffsetIfAffordable(internal, -5);
      internal.StartCoordinate(internal.GetStartCoordinate());
    }
    for (int i = fRandom.Chance(0.3) ? Whole(1, 2) : 0; i > 0; --i) AddChild(tree, region);
    region.UpdateGeometry_Outputs();
    Record("region", region);
    for (int i = 0; i < 4; ++i) fRecord.Add("point inside", TEngine::PointInsideRegion(region, AnyPoint()));
    if (fRandom.Chance(0.1)) region.UpdateRegionCoordinate();
    Record("region with its pole", region);
    fRecord.Add("without duplicates", tree.GetEntities_NoDuplicates());

    const int all = Whole(1, 12);
    region.NumberDuplications(all);
    region.Singular(fRandom.Chance(0.2));
    if (fRandom.Chance(0.3)) {
      region.Duplicate();
    } else {
      region.DuplicateAndUnite(Whole(2, 12), fRandom.Chance(0.6) ? gpRadial : gpAxial);
    }
    Record("region with its copies", region);
  }

  void AddChild(typename TEngine::RegionTree& aTree, Region& aParent) {
    Region& child = *TEngine::AddRegion(aTree);
    child.Entities().AddEntities(fChain.entities);
    OffsetIfAffordable(child.Entities(), -3.0 * Whole(1, 5));
    child.Entities().StartCoordinate(child.Entities().GetStartCoordinate());
    TEngine::Attach(aTree, &child, &aParent);
  }

  void Names() {
    constexpr const char* kNames[] = {"Magnet", "magnet",  "MAGNET", "Magnet_1", "magnet_2",
                                      "Bar",    "Bar_1_1", "Bar_1",  ""};
    typename TEngine::RegionTree tree;
    std::vector<Region*> regions;
    for (int i = 0; i < 24; ++i) {
      const int place = Whole(0, 2 * static_cast<int>(regions.size()));
      const char* const name = kNames[Whole(0, static_cast<int>(std::size(kNames)) - 1)];
      if (place >= static_cast<int>(regions.size())) regions.push_back(TEngine::AddRegion(tree));
      const auto chosen = std::min(static_cast<std::size_t>(place), regions.size() - 1);
      if (fRandom.Chance(0.15)) {
        TEngine::RemoveRegion(tree, regions[chosen]);
        regions.erase(regions.begin() + static_cast<std::ptrdiff_t>(chosen));
      } else if (fRandom.Chance(0.2)) {
        regions[chosen]->SetRegionName_Unique();
      } else {
        regions[chosen]->SetRegionName(name);
      }
      fRecord.Section("names", i);
      for (const Region* region : regions) fRecord.Add("name", std::string_view(region->GetRegionName_Unique()));
    }
  }

  const TwinDrawing& fChain;
  Random fRandom;
  Storage fStorage;
  TwinRecord fRecord;
  unsigned long fOffsetsLeftOut = 0;
};

}  // namespace GeometryEngine::properties
