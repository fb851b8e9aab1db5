#pragma once

// Random small drawings of every kind, senseless ones among them, with the settings under which they are looked at: for
// holding two implementations against each other. Drawings that make sense are in RandomDrawings.h.

#include <cstdint>
#include <string>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "tests/properties/RandomDrawings.h"

namespace GeometryEngine::properties {

struct TwinSettings {
  double linearTolerance = 0;
  double angleTolerance = 0;
  double snappingMode = 0;
  double arcResolution = 0;
  double minimumLabelArea = 0;
  double tracingTolerance = 0;  ///< the linear tolerance from tracing on
};

struct TwinDrawing {
  std::uint32_t seed = 0;
  const char* kind = "";
  TwinSettings settings;
  TEntityArray entities;
};

/// The drawing of a seed: 5 to 60 entities.
TwinDrawing MakeTwinDrawing(std::uint32_t aSeed);

/// A chain: closed and sound, or spoilt, or no chain at all; the sector of a machine among them.
TwinDrawing MakeTwinChain(std::uint32_t aSeed);

/// All that it takes to make the drawing again, as text.
std::string ToText(const TwinDrawing& aDrawing);

void Apply(const TwinSettings& aSettings);
void ApplyForTracing(const TwinSettings& aSettings);

}  // namespace GeometryEngine::properties
