#pragma once

// One run of the library over prepared pieces, and what it found, as the drawing lies.

#include <cstddef>
#include <utility>
#include <vector>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"
#include "xsec/Nesting.h"
#include "xsec/RegionTree.h"
#include "xsec/Regions.h"
#include "xsec/Settings.h"
#include "xsec/prepare/Motion.h"
#include "xsec/prepare/PreparedGroup.h"

namespace xsec {

class LibraryRun {
 public:
  /// REQUIRES: the settings have been applied to the library.
  LibraryRun(const PreparedGroup& aPrepared, const Settings& aSettings);

  /// The faces, nested, with loops of the library's pieces. Until a region tree has measured them, areas are those of
  /// the loops, and labels inside the outlines.
  const std::vector<Region>& Regions() const { return fRegions; }
  std::vector<Region> TakeRegions() && { return std::move(fRegions); }
  /// Cures of vertices, corrections of nesting, open pieces and lost sides.
  const Diagnostics& Notes() const { return fNotes; }
  std::size_t CountPieces() const { return fSources.size(); }

  /// What is left for another run without the pieces of these indexes.
  std::vector<PreparedPiece> PiecesWithout(const std::vector<std::size_t>& aDropped) const;

  /// Takes the faces into the tree, in the order of the regions.
  void AddTo(RegionTree& aTree);

 private:
  const GeometryEngine::TEntityStorage& Pieces() const { return *fDriver.CoordinateTree().pEntityStorage(); }
  void FindSources(const std::vector<PreparedPiece>& aPrepared, double aTolerance);
  std::vector<TracedLoop> ReadLoops();

  Motion fBack;  ///< from how the library has the drawing to how it was drawn
  GeometryEngine::TEntityStorage fStorage;
  GeometryEngine::TEntityBaseClass fDriver;
  std::vector<std::size_t> fSources;  ///< for each piece of the library the entity of the drawing that it was cut from
  std::vector<TracedLoop> fFaces;
  std::vector<Region> fRegions;
  Diagnostics fNotes;
};

}  // namespace xsec
