#pragma once

// The drawing that region detection is shown on, and what its host knows about it.

#include "GeometryEngine/GeometryEngine.h"

namespace pictures {

using namespace GeometryEngine;

/// A piece of a motor's stator: a yoke with a pocket for a magnet, two teeth, the slot between them, the bore above.
inline void FillDrawing(TEntityStorage& aDrawing) {
  aDrawing.AddEntity(CreateEntity_Line(100, 0, 100, 72));
  aDrawing.AddEntity(CreateEntity_Line(0, 0, 100, 0));
  aDrawing.AddEntity(CreateEntity_Line(100, 0, 0, 0));  // the same line, drawn twice
  aDrawing.AddEntity(CreateEntity_Line(0, 0, 0, 72));
  aDrawing.AddEntity(CreateEntity_Arc_StartEnd(50, -48, 100, 72, 0, 72));     // the bore, across the slot
  aDrawing.AddEntity(CreateEntity_Line(64.4, 40, 64.4, 81.2));                // the slot's right side
  aDrawing.AddEntity(CreateEntity_Arc_StartEnd(50, 40, 35.6, 40, 64.4, 40));  // the slot's round bottom
  aDrawing.AddEntity(CreateEntity_Line(35.6, 40, 35.6, 88));                  // its left side, drawn too long
  aDrawing.AddEntity(CreateEntity_Line(0, 30, 107, 30));                      // the yoke's edge, drawn too long
  aDrawing.AddEntity(CreateEntity_Line(32, 4, 68, 4));                        // the pocket
  aDrawing.AddEntity(CreateEntity_Arc(68, 13, 9, -90, 90));
  aDrawing.AddEntity(CreateEntity_Line(68, 22, 32, 22));
  aDrawing.AddEntity(CreateEntity_Arc(32, 13, 9, 90, 270));
  aDrawing.AddEntity(CreateEntity_Line(38, 8, 64, 8));  // the magnet in it
  aDrawing.AddEntity(CreateEntity_Line(64, 8, 64, 18));
  aDrawing.AddEntity(CreateEntity_Line(64, 18, 38, 18));
  aDrawing.AddEntity(CreateEntity_Line(38, 18, 38, 8));
}

/// What a host knows of its drawing: a name for the region at a point.
struct TKnownRegion {
  TEntityCoordinate fPoint;
  const char* fName;
};
inline const TKnownRegion kKnownRegions[] = {{{5, 5}, "Yoke"},    {{5, 60}, "Tooth"}, {{95, 60}, "Tooth"},
                                             {{50, 60}, "Slot"},  {{50, 28}, "Slot"}, {{50, 6}, "Pocket"},
                                             {{50, 10}, "Magnet"}};

}  // namespace pictures
