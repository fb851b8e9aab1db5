#include "xsec/check/Findings.h"

namespace xsec {

namespace {

/// Whether the drawing is to blame, or the way in which the library reckons.
bool IsFault(CureKind kind) {
  return kind == CureKind::OneCircle || kind == CureKind::Overlap || kind == CureKind::Duplicate;
}

}  // namespace

std::vector<OpenEnd> OpenEndsOf(const Diagnostics& aDiagnostics) {
  std::vector<OpenEnd> ends;
  for (const OpenPiece& open : aDiagnostics.openPieces) {
    if (open.fromDangles) ends.push_back({open.piece.from, open.piece.source, open.touches});
    if (open.toDangles) ends.push_back({open.piece.to, open.piece.source, open.touches});
  }
  return ends;
}

Findings FindFaults(const Drawing& aDrawing, const Settings& aSettings, const Detection& aDetection) {
  Findings findings;
  findings.openEnds = OpenEndsOf(aDetection.diagnostics);
  findings.nearMisses = FindNearMisses(aDrawing, findings.openEnds, aSettings.tolerance);
  for (const Cure& cure : aDetection.diagnostics.cures) {
    (IsFault(cure.kind) ? findings.faults : findings.notes).push_back(cure);
  }
  for (std::size_t i = 0; i < aDetection.regions.size(); ++i) {
    if (aDetection.regions[i].sliver) findings.slivers.push_back(i);
  }
  findings.limits = FindLimits(aDrawing, aSettings);
  return findings;
}

}  // namespace xsec
