#pragma once

// How high an entity reaches, as far as the pair checks of the sweep can tell. Private.

#include <optional>
#include <span>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"

namespace GeometryEngine::detail {

/// A range of y, both ends counted in.
struct THeights {
  double fLow = 0;
  double fHigh = 0;
  bool Meets(const THeights& aOther) const { return fLow <= aOther.fHigh && aOther.fLow <= fHigh; }
};

/// Ranges of y for the entities of one drawing, such that a pair that the sweep tests reports no point unless the
/// ranges of the two meet. For two arcs that is only so as long as their circles don't touch (AreCirclesTouching in
/// CircleTouching.h); the ranges of circles that touch meet in any case. docs/numerics.md says why.
///
/// REQUIRES: a tolerance above 0 (under any other one no pair reports a point), and the settings as they were when the
/// object was made.
class TSweepHeights {
 public:
  explicit TSweepHeights(std::span<const TDXFEntity> aEntities);

  /// Of a line or an arc. None for what may meet anything: numbers that are not finite or out of all proportion.
  std::optional<THeights> GetHeights(const TDXFEntity& aEntity) const;
  /// Of the whole circle of an arc that has heights.
  THeights GetHeights_Circle(const TDXFEntity& aArc) const;

 private:
  std::optional<THeights> GetHeights_Line(const TDXFEntity& aLine) const;
  THeights GetHeights_Arc(const TDXFEntity& aArc) const;

  double fTolerance;
  double fAngleMargin;    ///< degrees
  double fMagnitude = 0;  ///< no coordinate of the drawing lies farther from 0, circles included
};

}  // namespace GeometryEngine::detail
