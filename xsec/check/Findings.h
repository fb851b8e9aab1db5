#pragma once

// What is wrong with a drawing, or will surprise whoever expects regions of it: open ends and what would close them,
// entities that lie on each other, slivers, and everything that had to be prepared.

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "xsec/Drawing.h"
#include "xsec/Regions.h"
#include "xsec/Settings.h"

namespace xsec {

/// An end where nothing goes on.
struct OpenEnd {
  Point place;
  std::size_t entity = kNone;  ///< of the drawing
  bool touches = false;        ///< the chain that ends here leads to a vertex that others share
};

/// An open end that something comes close to.
struct NearMiss {
  Point end;
  Point other;  ///< an open end, or where the entity that ends would meet another if it went on, or the closest point
  std::size_t entity = kNone;
  std::size_t otherEntity = kNone;
  bool isEnd = false;    ///< the other is an open end as well
  double gap = 0;        ///< UNITS: mm
  double tolerance = 0;  ///< UNITS: mm; above this they meet: the larger of |dx| and |dy|
  std::optional<bool>
      closes{};  ///< whether the end is open no more at the first rung above; unknown until one is tried
};

/// What detection gives at a tolerance.
struct Rung {
  double tolerance = 0;
  std::size_t regions = 0;
  std::size_t openEnds = 0;
  double area = 0;               ///< UNITS: mm2, net, of all regions
  std::vector<double> newAreas;  ///< UNITS: mm2, of regions that the drawing does not have at its own tolerance
};

/// A limit that the drawing comes up against, with what helps.
struct Limit {
  Point place;
  std::size_t entity = kNone;
  std::string text;
  std::string cure;
};

struct Findings {
  std::vector<OpenEnd> openEnds;
  std::vector<NearMiss> nearMisses;  ///< by the tolerance that closes them
  std::vector<Cure> faults;          ///< what had to be cured because of how it is drawn
  std::vector<Cure> notes;           ///< what had to be cured because of how the library reckons
  std::vector<std::size_t> slivers;  ///< regions
  std::vector<Limit> limits;
  std::vector<Rung> ladder;  ///< by tolerance, that of the run among them

  bool AreNone() const {
    return openEnds.empty() && nearMisses.empty() && faults.empty() && slivers.empty() && limits.empty();
  }
};

/// The ends where nothing goes on.
std::vector<OpenEnd> OpenEndsOf(const Diagnostics& aDiagnostics);

/// What can be seen from one detection; the ladder is left empty.
Findings FindFaults(const Drawing& aDrawing, const Settings& aSettings, const Detection& aDetection);

/// Detects at a ladder of tolerances, those that should close near misses among them, and notes whether they do.
/// COST: a detection for each of at most a dozen tolerances. The library's settings are back as they were afterwards.
void ClimbLadder(const Drawing& aDrawing, const SettingsRequest& aRequest, const Detection& aDetection,
                 Findings& aFindings);

/// The open ends that something comes close to, by the tolerance that would close them.
/// COST: near-linear in the entities.
std::vector<NearMiss> FindNearMisses(const Drawing& aDrawing, const std::vector<OpenEnd>& aEnds, double aTolerance);

/// Features that the library's fixed lengths are coarse for, and units that were taken on trust.
std::vector<Limit> FindLimits(const Drawing& aDrawing, const Settings& aSettings);

}  // namespace xsec
