#include "xsec/RegionDetection.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "xsec/LibraryRun.h"
#include "xsec/RegionChecks.h"
#include "xsec/RegionTree.h"
#include "xsec/prepare/MergedLoops.h"
#include "xsec/prepare/Prepare.h"
#include "xsec/prepare/Slivers.h"

namespace xsec {

namespace {

constexpr std::size_t kMostRounds = 16;  // of dropping slivers; each takes at least one of those that lie side by side

template <typename Value>
void Append(std::vector<Value>& values, const std::vector<Value>& more) {
  values.insert(values.end(), more.begin(), more.end());
}

/// Runs the library, and as long as slivers are to be dropped and there are some, again without what parts them from
/// neighbours.
std::unique_ptr<LibraryRun> RunAmong(PreparedGroup& prepared, const Settings& settings) {
  for (std::size_t round = 0;; ++round) {
    auto run = std::make_unique<LibraryRun>(prepared, settings);
    if (!settings.dropsSlivers || round == kMostRounds) return run;
    const std::vector<std::size_t> dropped = PiecesRoundSlivers(run->Regions(), prepared.cures);
    if (dropped.empty()) return run;
    prepared.pieces = run->PiecesWithout(dropped);
  }
}

/// What the runs over the groups of a drawing found, together.
class Findings {
 public:
  explicit Findings(double tolerance) : fTolerance(tolerance) {}

  void Take(PreparedGroup prepared, const Settings& settings) {
    const auto run = RunAmong(prepared, settings);
    fTolerance = std::min(fTolerance, prepared.tolerance);
    run->AddTo(fTree);
    AddNotes(run->Notes());
    Append(fAll.diagnostics.cures, prepared.cures);
    AddRegions(std::move(*run).TakeRegions());
    fPieces += run->CountPieces();
  }

  Detection Finish(const Drawing& drawing, const Settings& settings, const NamingRequest& naming) && {
    NameRegions(fAll.regions, drawing, naming, fAll.diagnostics.warnings);
    FillTree();
    CheckRegions(fAll, settings);
    CountCollapsed(drawing, fAll.diagnostics);
    MergePieces(fAll);
    return std::move(fAll);
  }

 private:
  /// Pieces are counted on from those of the runs before.
  void Renumber(Loop& loop) const {
    for (TravelledPiece& piece : loop) piece.index += fPieces;
  }

  void AddRegions(std::vector<Region> regions) {
    const std::size_t before = fAll.regions.size();
    for (Region& region : regions) {
      Renumber(region.outline);
      for (Loop& hole : region.holes) Renumber(hole);
      if (region.parent != kNone) region.parent += before;
      for (std::size_t& child : region.children) child += before;
      fAll.regions.push_back(std::move(region));
    }
  }

  void AddNotes(Diagnostics notes) {
    const std::size_t before = fAll.regions.size();
    Renumber(notes.lostSides);
    for (OpenPiece& open : notes.openPieces) open.piece.index += fPieces;
    for (Correction& correction : notes.corrections) {
      correction.region += before;
      if (correction.listedIn != kNone) correction.listedIn += before;
    }
    Append(fAll.diagnostics.cures, notes.cures);
    Append(fAll.diagnostics.corrections, notes.corrections);
    Append(fAll.diagnostics.openPieces, notes.openPieces);
    Append(fAll.diagnostics.lostSides, notes.lostSides);
  }

  /// Under the finest tolerance of all: each chain has its ends apart there.
  void FillTree() {
    const ToleranceScope scope(fTolerance);
    fTree.Fill(fAll.regions);
  }

  Detection fAll;
  RegionTree fTree;
  double fTolerance;
  std::size_t fPieces = 0;  ///< of all runs so far
};

std::vector<PreparedGroup> GroupsOf(const Drawing& drawing, const Settings& settings) {
  return settings.prepares ? Prepare(drawing, settings.tolerance) : std::vector{AsDrawn(drawing, settings.tolerance)};
}

}  // namespace

Detection DetectRegions(const Drawing& aDrawing, const Settings& aSettings, const NamingRequest& aNaming) {
  Findings findings(aSettings.tolerance);
  for (PreparedGroup& group : GroupsOf(aDrawing, aSettings)) findings.Take(std::move(group), aSettings);
  return std::move(findings).Finish(aDrawing, aSettings, aNaming);
}

}  // namespace xsec
