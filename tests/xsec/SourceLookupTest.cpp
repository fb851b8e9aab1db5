#include "xsec/SourceLookup.h"

#include <random>

#include <gmock/gmock.h>

#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"
#include "tests/xsec/Drawings.h"

namespace xsec {
namespace {

constexpr double kTolerance = 1e-6;

TravelledPiece PieceOf(std::string_view text) {
  return Travel(GeometryEngine::support::ParseEntity(text), true);
}

std::vector<TravelledPiece> Travelled(const Drawing& drawing) {
  std::vector<TravelledPiece> pieces;
  for (const DrawingEntity& entity : drawing.entities) pieces.push_back(Travel(entity.geometry, true));
  return pieces;
}

std::vector<TravelledPiece> TravelledOf(std::string_view entities) {
  return Travelled(DrawingOf(entities));
}

TEST(SourceLookup, FindsTheEntityAPartLiesOn) {
  const SourceLookup lookup(TravelledOf(Rectangle(0, 0, 10, 10) + Circle(5, 5, 3) + "L 0,0 10,10"));
  EXPECT_EQ(lookup.Find(PieceOf("L 2,0 4,0"), kTolerance), 0U);
  EXPECT_EQ(lookup.Find(PieceOf("L 0,7 0,9"), kTolerance), 3U);
  EXPECT_EQ(lookup.Find(PieceOf("A c 5,5 r 3 10..20"), kTolerance), 4U);
  EXPECT_EQ(lookup.Find(PieceOf("A c 5,5 r 3 185..200"), kTolerance), 5U);
  EXPECT_EQ(lookup.Find(PieceOf("L 5,5 1,1"), kTolerance), 6U);
}

TEST(SourceLookup, LineThatTouchesAnArcInTheMiddleOfAPieceIsNotItsSource) {
  const SourceLookup lookup(TravelledOf("L -5,2 5,2; A c 0,0 r 2 45..135"));
  EXPECT_EQ(lookup.Find(PieceOf("A c 0,0 r 2 80..100"), kTolerance), 1U);
  EXPECT_EQ(lookup.Find(PieceOf("L -1,2 1,2"), kTolerance), 0U);
}

TEST(SourceLookup, FirstOfTwoEqualEntitiesWins) {
  const SourceLookup lookup(TravelledOf("L 9,9 8,8; L 0,0 4,0; L 4,0 0,0"));
  EXPECT_EQ(lookup.Find(PieceOf("L 1,0 3,0"), kTolerance), 1U);
}

TEST(SourceLookup, NothingNearMeansNone) {
  const SourceLookup lookup(TravelledOf("L 0,0 4,0"));
  EXPECT_EQ(lookup.Find(PieceOf("L 1,1 3,1"), kTolerance), kNone);
  EXPECT_EQ(lookup.Find(PieceOf("L 100,100 300,100"), kTolerance), kNone);
  EXPECT_EQ(SourceLookup({}).Find(PieceOf("L 1,1 3,1"), kTolerance), kNone);
}

TEST(SourceLookup, DrawingOnOneLineWorksToo) {
  const SourceLookup lookup(TravelledOf("L 0,5 4,5; L 6,5 9,5"));
  EXPECT_EQ(lookup.Find(PieceOf("L 7,5 8,5"), kTolerance), 1U);
}

TEST(SourceLookup, AgreesWithAPlainSearch) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> coordinate(-50, 50);
  std::uniform_real_distribution<double> angle(0, 360);
  Drawing drawing;
  for (int i = 0; i < 400; ++i) {
    const double x = coordinate(random), y = coordinate(random), a = angle(random);
    drawing.entities.emplace_back().geometry =
        i % 3 == 0 ? GeometryEngine::CreateEntity_Arc(x, y, 1 + a / 30, a, a + 100)
                   : GeometryEngine::CreateEntity_Line(x, y, coordinate(random), coordinate(random));
  }
  const SourceLookup lookup(Travelled(drawing));
  for (std::size_t i = 0; i < drawing.entities.size(); ++i) {
    const TravelledPiece piece = Travel(drawing.entities[i].geometry, i % 2 == 0);
    EXPECT_EQ(lookup.Find(piece, kTolerance), i);
  }
}

}  // namespace
}  // namespace xsec
