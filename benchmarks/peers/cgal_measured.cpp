// Over CGAL: the faces, and of each its area less what lies in it and its centroid, as doubles. CGAL has no label
// points for outlines with arcs.

#include "benchmarks/peers/CgalFaces.h"
#include "benchmarks/support/Program.h"

namespace {

using TFace = peers::TArrangement::Face_const_iterator;
using THalfEdge = peers::TArrangement::Halfedge_const_handle;
using TLoop = peers::TArrangement::Ccb_halfedge_const_circulator;

/// Area and first moments, which add up over the boundary of a face.
struct TMoments {
  double fArea = 0;
  drawings::Point fMoments{};
};

struct TFaceRecord {
  double fArea = 0;
  drawings::Point fCentroid{};
};

template <typename TExactPoint>
drawings::Point ToDoubles(const TExactPoint& aPoint) {
  return {CGAL::to_double(aPoint.x()), CGAL::to_double(aPoint.y())};
}

double AngleAbout(const drawings::Point& aCentre, const drawings::Point& aPoint) {
  return std::atan2(aPoint.y - aCentre.y, aPoint.x - aCentre.x);
}

void AddTriangle(const drawings::Point& aFrom, const drawings::Point& aTo, TMoments& aSum) {
  const double cross = aFrom.x * aTo.y - aTo.x * aFrom.y;
  aSum.fArea += cross / 2;
  aSum.fMoments.x += cross * (aFrom.x + aTo.x) / 6;
  aSum.fMoments.y += cross * (aFrom.y + aTo.y) / 6;
}

/// What lies between the chord and the arc, which is no longer than half a circle.
void AddSegment(const peers::TTraits::X_monotone_curve_2& aArc, bool aIsAnticlockwise, const drawings::Point& aFrom,
                const drawings::Point& aTo, TMoments& aSum) {
  const drawings::Point centre = ToDoubles(aArc.supporting_circle().center());
  const double radius = std::sqrt(CGAL::to_double(aArc.supporting_circle().squared_radius()));
  const double from = AngleAbout(centre, aFrom);
  double sweep = AngleAbout(centre, aTo) - from;
  if (aIsAnticlockwise && sweep < 0) sweep += 2 * std::numbers::pi;
  if (!aIsAnticlockwise && sweep > 0) sweep -= 2 * std::numbers::pi;
  const double area = radius * radius / 2 * (sweep - std::sin(sweep));
  const double moment = 2 * std::pow(radius * std::sin(sweep / 2), 3) / 3;
  aSum.fArea += area;
  aSum.fMoments.x += centre.x * area + moment * std::cos(from + sweep / 2);
  aSum.fMoments.y += centre.y * area + moment * std::sin(from + sweep / 2);
}

void AddEdge(THalfEdge aEdge, TMoments& aSum) {
  const drawings::Point from = ToDoubles(aEdge->source()->point());
  const drawings::Point to = ToDoubles(aEdge->target()->point());
  AddTriangle(from, to, aSum);
  const auto& curve = aEdge->curve();
  if (curve.is_linear()) return;
  const bool isAlong = curve.is_directed_right() == (aEdge->direction() == CGAL::ARR_LEFT_TO_RIGHT);
  AddSegment(curve, (curve.orientation() == CGAL::COUNTERCLOCKWISE) == isAlong, from, to, aSum);
}

void AddLoop(TLoop aFirst, TMoments& aSum) {
  TLoop edge = aFirst;
  do AddEdge(edge, aSum);
  while (++edge != aFirst);
}

TFaceRecord Measure(TFace aFace) {
  TMoments sum;
  AddLoop(aFace->outer_ccb(), sum);
  for (auto hole = aFace->inner_ccbs_begin(); hole != aFace->inner_ccbs_end(); ++hole) AddLoop(*hole, sum);
  return {sum.fArea, {sum.fMoments.x / sum.fArea, sum.fMoments.y / sum.fArea}};
}

class TFindAndMeasureFaces {
 public:
  explicit TFindAndMeasureFaces(const drawings::Drawing& aDrawing) : fFaces(aDrawing) {}

  std::size_t operator()() {
    const peers::TArrangement& found = fFaces.Find();
    for (TFace face = found.faces_begin(); face != found.faces_end(); ++face) {
      if (!face->is_unbounded()) fRecords.push_back(Measure(face));
    }
    return fRecords.size();
  }

 private:
  peers::TCgalFaces fFaces;
  std::vector<TFaceRecord> fRecords;
};

}  // namespace

int main(int aCount, char** aArguments) {
  return benchmarks::RunProgram<TFindAndMeasureFaces>(aCount, aArguments);
}
