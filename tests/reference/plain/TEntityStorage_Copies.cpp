// Copies of a chain about and along the axis, and the parallel chain.

#include <cmath>
#include <utility>

#include "GeometryEngine/DXF_EntityStorage/AngularDuplication.h"
#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"
#include "GeometryEngine/GeometryEngine_Entity_Operations/EntityTransforms.h"
#include "GeometryEngine/GeometryFuncts/Rotation.h"
#include "tests/reference/plain/OneEntity.h"
#include "tests/reference/plain/TEntityStorage.h"

namespace GeometryEngine::Plain {

namespace {

TVector_Single RightNormal(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo) {
  const TVector_Single edge{static_cast<float>(aTo.x - aFrom.x), static_cast<float>(aTo.y - aFrom.y), 0};
  const TVector_Single direction = edge.Normalised();
  return {direction.y, -direction.x, 0};
}

/// The neighbour of the first point that is the same; (0, 0) when none is.
TEntityCoordinate Neighbour(const TCoordinateArray& aPoints, const TEntityCoordinate& aPoint, std::size_t aSteps) {
  const TIndex index = Plain::IndexOf(aPoints, aPoint);
  if (index == kNotFound) return {};
  return aPoints[(static_cast<std::size_t>(index) + aSteps) % aPoints.size()];
}

TEntityCoordinate OffsetPoint(const TCoordinateArray& aPolyline, const TEntityCoordinate& aPoint, double aDistance) {
  const TVector_Single arriving = RightNormal(Neighbour(aPolyline, aPoint, aPolyline.size() - 1), aPoint);
  const TVector_Single leaving = RightNormal(aPoint, Neighbour(aPolyline, aPoint, 1));
  const TVector_Single bisector = ((leaving + arriving) * (aDistance > 0 ? 1.0F : -1.0F)).Normalised();
  const double mitre = std::abs(aDistance) / std::sqrt((static_cast<double>(leaving.Dot(arriving)) + 1) / 2);
  return {aPoint.x + mitre * static_cast<double>(bisector.x), aPoint.y + mitre * static_cast<double>(bisector.y)};
}

TIndex PointCount(const TDXFEntity& aEntity) {
  if (aEntity.EntityType == DXFArc) return Plain::WalkArc_Surf(aEntity, aEntity.StartCoords).Limited().fCount;
  return aEntity.EntityType == DXFLine ? 1 : 0;
}

TDXFEntity OffsetArc(const TDXFEntity& aArc, const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo,
                     double aDistance) {
  if (!(aArc.radius > std::abs(aDistance))) return CreateEntity_Line(aFrom, aTo);
  return CreateEntity_Arc_StartEnd(aArc.CentreCoords.x, aArc.CentreCoords.y, aFrom.x, aFrom.y, aTo.x, aTo.y);
}

}  // namespace

void TEntityStorage::DuplicateAroundAxis(std::int32_t aDuplications, std::int32_t aDuplications_Full, double aAngle,
                                         bool aSingular) {
  const TEntityArray original = std::exchange(fEntities, {});
  for (std::int32_t k = 0; k < aDuplications && !original.empty(); ++k) {
    for (const TDXFEntity& entity : original) {
      const TDXFEntity copy = RotateEntity_AroundAxis(entity, GetRotationMatrix(aAngle * k));
      if (aSingular || IncludeDuplicatedEntity(aDuplications, aDuplications_Full, k, aAngle * k, aAngle, copy))
        AddEntity(copy);
    }
  }
}

void TEntityStorage::DuplicateAlongAxis(std::int32_t aDuplications, double aDuplicationDistance) {
  const TEntityArray original = fEntities;
  TEntityArray previous = original;
  for (std::int32_t k = 1; k < aDuplications; ++k) {
    TEntityArray current;
    for (const TDXFEntity& entity : original) {
      const TDXFEntity copy = TranslateEntity(entity, k * aDuplicationDistance, 0);
      if (Plain::IndexOf(previous, copy) == kNotFound) {
        current.push_back(copy);
      } else {
        RemoveEntityFromArray(copy);
      }
    }
    AddEntities(current);
    previous = current;
  }
}

void TEntityStorage::Offset(double aDistance) {
  if (aDistance == 0) return;
  const TCoordinateArray polyline = GetVertices_Surf(false);
  const TCoordinateArray vertices = GetVertices();
  TCoordinateArray points;
  for (const TEntityCoordinate& point : polyline) points.push_back(OffsetPoint(polyline, point, aDistance));
  const auto pointAt = [&](TIndex aPosition) {
    return IsIndexWithin(aPosition, points.size()) ? points[static_cast<std::size_t>(aPosition)] : TEntityCoordinate{};
  };

  TEntityArray rebuilt;
  TIndex position = 0;
  TIndex begunBefore = 0;  // points of the entities up to this one
  for (std::size_t i = 0; i < vertices.size(); ++i) {
    const TDXFEntity entity = GetEntity_Next(vertices[i]);
    const TEntityCoordinate from = pointAt(position);
    const bool isLast = i + 1 == vertices.size();
    begunBefore += PointCount(fEntities[i]);
    if (entity.EntityType == DXFArc) {
      position = Plain::IndexOf(polyline, vertices[isLast ? 0 : i + 1]);
      if (position == kNotFound) position = isLast ? 0 : begunBefore;
      rebuilt.push_back(OffsetArc(entity, from, pointAt(position), aDistance));
    } else {
      const bool isLastPoint = position == ToIndex(points.size()) - 1;
      rebuilt.push_back(CreateEntity_Line(from, pointAt(isLastPoint ? 0 : position + 1)));
      ++position;
    }
  }
  fEntities = rebuilt;
}

}  // namespace GeometryEngine::Plain
