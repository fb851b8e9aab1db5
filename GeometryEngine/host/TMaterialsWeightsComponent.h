#pragma once

namespace GeometryEngine {

/// Material and weight data of a machine component. The geometry copies it as a whole and reads nothing inside.
struct TMaterialsWeightsComponent {
  double Density = 0;         ///< kg/m3
  double Multiplier = 0;      ///< share of the component's weight that counts
  double WeightInternal = 0;  ///< kg
  double WeightTotal = 0;     ///< kg
};

}  // namespace GeometryEngine
