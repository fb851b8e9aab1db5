// Over GEOS: the faces, and of each what a request asks for: its area less what lies in it, its centroid, and a label
// point, which is the centroid or, where that lies outside, the middle of the largest circle inside.

#include "benchmarks/peers/GeosFaces.h"
#include "benchmarks/support/Program.h"

namespace {

constexpr double kLabelPrecision = 1;  // millimetres, which is this library's too

struct TFaceRecord {
  double fArea = 0;
  drawings::Point fCentroid;
  drawings::Point fLabel;
};

drawings::Point Coordinates(const GEOSGeometry* aPoint) {
  drawings::Point point{};
  GEOSGeomGetX(aPoint, &point.x);
  GEOSGeomGetY(aPoint, &point.y);
  return point;
}

/// The circle is given as the line from its middle to where it touches.
drawings::Point MiddleOfLargestCircle(const GEOSGeometry* aPolygon) {
  GEOSGeometry* radius = GEOSMaximumInscribedCircle(aPolygon, kLabelPrecision);
  if (radius == nullptr) return {};
  GEOSGeometry* middle = GEOSGeomGetStartPoint(radius);
  const drawings::Point point = Coordinates(middle);
  GEOSGeom_destroy(middle);
  GEOSGeom_destroy(radius);
  return point;
}

TFaceRecord Measure(const GEOSGeometry* aPolygon) {
  TFaceRecord face;
  GEOSArea(aPolygon, &face.fArea);
  GEOSGeometry* centroid = GEOSGetCentroid(aPolygon);
  face.fCentroid = Coordinates(centroid);
  const GEOSPreparedGeometry* prepared = GEOSPrepare(aPolygon);
  face.fLabel = GEOSPreparedContains(prepared, centroid) == 1 ? face.fCentroid : MiddleOfLargestCircle(aPolygon);
  GEOSPreparedGeom_destroy(prepared);
  GEOSGeom_destroy(centroid);
  return face;
}

class TFindAndMeasureFaces {
 public:
  explicit TFindAndMeasureFaces(const drawings::Drawing& aDrawing) : fFaces(aDrawing) {}

  std::size_t operator()() {
    const GEOSGeometry* polygons = fFaces.Find();
    const int count = peers::TGeosFaces::Count(polygons);
    for (int k = 0; k < count; ++k) fRecords.push_back(Measure(GEOSGetGeometryN(polygons, k)));
    return fRecords.size();
  }

 private:
  peers::TGeosFaces fFaces;
  std::vector<TFaceRecord> fRecords;
};

}  // namespace

int main(int aCount, char** aArguments) {
  return benchmarks::RunProgram<TFindAndMeasureFaces>(aCount, aArguments);
}
