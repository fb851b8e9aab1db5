#pragma once

// What can be seen of the library's objects.

#include "GeometryEngine/GeometryEngine.h"
#include "tests/everything/Scenarios.h"

namespace everything {

void Observe(const GeometryEngine::TEntityCoordinate& aPoint, TFingerprint& aFingerprint);
void Observe(const GeometryEngine::TDXFEntity& aEntity, TFingerprint& aFingerprint);
void Observe(const GeometryEngine::TCoordinateArray& aPoints, TFingerprint& aFingerprint);
void Observe(const GeometryEngine::TEntityArray& aEntities, TFingerprint& aFingerprint);
void Observe(const GeometryEngine::TEntityStorage& aChain, TFingerprint& aFingerprint);
void Observe(const GeometryEngine::TEntityTree& aTree, TFingerprint& aFingerprint);
void Observe(const GeometryEngine::TTree_Geometry& aTree, TFingerprint& aFingerprint);
void Observe(const GeometryEngine::TMachineElementList& aElements, TFingerprint& aFingerprint);

/// An entity whose texts are too long to be kept within the record.
GeometryEngine::TDXFEntity Tagged(GeometryEngine::TDXFEntity aEntity);
/// An anticlockwise chain of lines with a half round side, stored in either direction.
GeometryEngine::TEntityArray RoundedChain(double aX, double aY, double aSize);
/// A drawing with crossing lines, circles within, an equal pair and a dangling line.
GeometryEngine::TEntityArray MixedDrawing();
/// Lines to and from points 0.9 starting tolerances apart, so that which of them meet depends on the order.
GeometryEngine::TEntityArray ToleranceChain();

}  // namespace everything
