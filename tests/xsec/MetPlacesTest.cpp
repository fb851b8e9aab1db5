#include "xsec/prepare/MetPlaces.h"

#include <random>

#include <gmock/gmock.h>

#include "tests/xsec/Drawings.h"
#include "xsec/prepare/Curves.h"

namespace xsec {
namespace {

using GeometryEngine::TDXFEntity;

/// The same question answered by looking at all meetings in their order.
std::size_t NextOfAll(const Part& part, double position, const Point& point, bool forward, double most) {
  std::size_t next = kNone;
  for (std::size_t i = 0; i < part.meetings.size(); ++i) {
    const double way = (PositionOf(part.geometry, part.meetings[i]) - position) * (forward ? 1 : -1);
    if (part.meetings[i] == point || !(way > 0) || way >= most) continue;
    most = way;
    next = i;
  }
  return next;
}

Part PartWithMeetings(const TDXFEntity& geometry, std::mt19937& random) {
  Part part{geometry, 0, {}, {}};
  // Few places along the part, many of them beside each other: ways of one length.
  for (int i = 0; i < 30; ++i) part.meetings.push_back({double(random() % 9), double(random() % 3) / 8});
  return part;
}

TEST(MetPlaces, NextIsThatOfASearchThroughAllMeetings) {
  std::mt19937 random(7);
  const Drawing drawing = DrawingOf("L 0,0 8,0; L 8,0.25 0,0; A c 4,-9 r 10 60..120");
  std::size_t found = 0;
  for (int round = 0; round < 300; ++round) {
    Part part = PartWithMeetings(drawing.entities[static_cast<std::size_t>(round) % 3].geometry, random);
    MetPlaces places(part);
    for (int later = 0; later < 3; ++later) {
      part.meetings.push_back({double(random() % 9) / 2, 0.125});
      places.AddLatest(part);
    }
    for (const Point& point : part.meetings) {
      for (const bool forward : {true, false}) {
        const double position = PositionOf(part.geometry, point);
        const double most = double(random() % 5);
        const MetPlace* next = places.NextFrom(position, point, forward, most);
        ASSERT_EQ(next ? next->number : kNone, NextOfAll(part, position, point, forward, most)) << "round " << round;
        found += next ? 1 : 0;
      }
    }
  }
  EXPECT_GT(found, 1000U);
}

}  // namespace
}  // namespace xsec
