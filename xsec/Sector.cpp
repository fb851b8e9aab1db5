#include "xsec/Sector.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "GeometryEngine/host/Numerics.h"
#include "xsec/TravelledPiece.h"

namespace xsec {

namespace {

using GeometryEngine::kFullTurn;

constexpr double kSectorSlack = 1e-3;   // degrees that a sector may exceed its share of the circle
constexpr double kOnTheAxis = 1e-3;     // UNITS: mm; what is closer to the origin has no direction from it
constexpr double kMostSectors = 10000;  // more than that are no sectors

}  // namespace

double AngleAcross(const Drawing& aDrawing) {
  std::vector<double> angles;
  for (const DrawingEntity& entity : aDrawing.entities) {
    const TravelledPiece piece = Travel(entity.geometry, true);
    for (const Point& point : {piece.from, MidPoint(piece), piece.to}) {
      if (std::hypot(point.x, point.y) > kOnTheAxis) {
        angles.push_back(std::atan2(point.y, point.x) * GeometryEngine::kDegreesPerRadian);
      }
    }
  }
  if (angles.empty()) return 0;
  std::sort(angles.begin(), angles.end());
  double gap = angles.front() + kFullTurn - angles.back();
  for (std::size_t i = 0; i + 1 < angles.size(); ++i) gap = std::max(gap, angles[i + 1] - angles[i]);
  return kFullTurn - gap;
}

std::size_t CopiesOfSector(double aAngle) {
  const double copies = std::round(kFullTurn / aAngle);
  if (!(2 <= copies && copies <= kMostSectors) || std::abs(kFullTurn / copies - aAngle) > kSectorSlack) return 0;
  return static_cast<std::size_t>(copies);
}

std::string WarnOfCopies(const Drawing& aDrawing, std::size_t aCopies) {
  if (aCopies < 2) return "";
  const double share = kFullTurn / static_cast<double>(aCopies);
  const double across = AngleAcross(aDrawing);
  if (across > share + kSectorSlack) {
    return fmt::format(
        "the drawing spans {:.5g} degrees about the origin, but {} copies leave {:.5g} for each; give the axis "
        "with --origin X,Y, or fewer --copies",
        across, aCopies, share);
  }
  const std::size_t whole = CopiesOfSector(across);
  if (whole <= aCopies) return "";
  return fmt::format(
      "the drawing spans {:.5g} degrees about the origin, so that {} copies make a whole; {} copies leave gaps of "
      "{:.5g} degrees",
      across, whole, aCopies, share - across);
}

}  // namespace xsec
