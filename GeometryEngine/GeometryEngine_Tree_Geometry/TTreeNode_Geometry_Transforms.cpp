// Moving a region: its chains, label points and centroid together.

#include "GeometryEngine/GeometryEngine_Arrays/CoordinateArrays.h"
#include "GeometryEngine/GeometryEngine_Entity_Operations/EntityTransforms.h"
#include "GeometryEngine/GeometryEngine_Tree_Geometry/TTreeNode_Geometry.h"
#include "GeometryEngine/GeometryFuncts/Rotation.h"

namespace GeometryEngine {

namespace {

// A storage turns its entities only; the region keeps the start vertex on the chain.
void RotateChain_AboutPoint(TEntityStorage& aChain, const TRotationMatrix& aMatrix, const TEntityCoordinate& aPoint) {
  aChain.RotateEntities_AroundPoint(aMatrix, aPoint);
  aChain.StartCoordinate(RotateByAngle_AboutPoint_Matrix(aMatrix, aPoint, aChain.StartCoordinate()));
}

}  // namespace

void TTreeNode_Geometry::Rotate(double aAngle) {
  const TRotationMatrix matrix = GetRotationMatrix(aAngle);
  // KEPT: the internal chain stays where it is; a caller that wants it turned as well uses Rotate_AboutPoint.
  fEntities.RotateEntities(matrix);
  fEntities.StartCoordinate(RotateByAngle_Matrix(matrix, fEntities.StartCoordinate()));
  TCoordinateArray_Helper::Rotate(fRegionCoordinates, matrix);
  fCentroid = RotateByAngle_Matrix(matrix, fCentroid);
}

void TTreeNode_Geometry::Rotate_AboutPoint(double aAngle, const TEntityCoordinate& aPoint) {
  const TRotationMatrix matrix = GetRotationMatrix(aAngle);
  const TEntityCoordinate pivot = aPoint;  // the caller may hand in one of the points that are turned
  RotateChain_AboutPoint(fEntities, matrix, pivot);
  RotateChain_AboutPoint(fEntities_Internal, matrix, pivot);
  TCoordinateArray_Helper::Rotate_AboutPoint(fRegionCoordinates, matrix, pivot);
  fCentroid = RotateByAngle_AboutPoint_Matrix(matrix, pivot, fCentroid);
}

void TTreeNode_Geometry::Translate(double xDistance, double yDistance) {
  fEntities.Translate(xDistance, yDistance);
  fEntities_Internal.Translate(xDistance, yDistance);
  TCoordinateArray_Helper::Translate(fRegionCoordinates, xDistance, yDistance);
  fCentroid = fCentroid + TEntityCoordinate::New(xDistance, yDistance);
}

void TTreeNode_Geometry::Mirror(const TDXFEntity& aMirrorLine) {
  const TDXFEntity line = aMirrorLine;  // the caller may hand in an entity of the chain that is mirrored
  fEntities.Mirror(line);
  fEntities_Internal.Mirror(line);
  TCoordinateArray_Helper::Mirror(fRegionCoordinates, line);
  fCentroid = MirrorPoint_AboutLine(fCentroid, line);
  // KEPT: the first label point is mirrored a second time and so ends where it was; a region too small for a label
  // of its own keeps the point that the host gave it.
  SetRegionCoordinate_Single(MirrorPoint_AboutLine(GetRegionCoordinate_Single(), line));
  UpdateGeometry_Outputs();
}

void TTreeNode_Geometry::Offset(double aDistance) {
  fEntities.Offset(aDistance);
}

}  // namespace GeometryEngine
