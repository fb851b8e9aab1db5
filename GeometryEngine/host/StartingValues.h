#pragma once

// The values with which a settings store starts: sensible ones for drawings in millimetres. A field that is not listed
// starts at 0.

#include "GeometryEngine/host/TInputFields.h"

namespace Kelvaralinks {

struct TStartingValue {
  Maindataenum::TInputFields field;
  double value;
};

inline constexpr TStartingValue kStartingValues[] = {
    {Maindataenum::TInputFields::ifLinearTolerance, 1e-4},  // drawing length
    {Maindataenum::TInputFields::ifSnappingMode, 1},        // snap what is within the linear tolerance of 0
    {Maindataenum::TInputFields::ifAngleTolerance, 1e-4},   // degrees
    {Maindataenum::TInputFields::ifMinimumLabelArea, 0},    // every region has its label placed
    {Maindataenum::TInputFields::ifArcResolution, 5},       // chords per 10 degrees
    {Maindataenum::TInputFields::ifUniqueRegionNames, 1},   // on
    {Maindataenum::TInputFields::ifSlotDuplications, 1},    // each part occurs once
    {Maindataenum::TInputFields::ifPoleDuplications, 1},    // each part occurs once
    {Maindataenum::TInputFields::ifBarDuplications, 1},     // each part occurs once
};

}  // namespace Kelvaralinks
