// That the random drawings of PlainTwinTest.cpp would catch a search under the tolerance that looks one cell too few:
// the very index of the library, built here over cells whose windows may lack one, on the points and pieces of the
// drawings.

#include <gtest/gtest.h>

#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/DXF_Entity_Types/detail/TCellChains.h"
#include "GeometryEngine/DXF_Entity_Types/detail/TToleranceCells.h"
#include "tests/properties/TwinDrawings.h"
#include "tests/reference/plain/TEntityBaseClass.h"
#include "tests/support/Settings.h"

namespace GeometryEngine::detail {

enum class TWindow { Whole, LacksFirstCell, LacksLastCell };

static TWindow windowUnderTest = TWindow::Whole;

/// A window of a single cell stays whole: it is the others that a mistake would cut.
class TCutCells : public TToleranceCells {
 public:
  using TToleranceCells::TToleranceCells;
  TCellRange GetCellsAround(double aValue) const {
    TCellRange cells = TToleranceCells::GetCellsAround(aValue);
    if (cells.fFirst == cells.fLast) return cells;
    if (windowUnderTest == TWindow::LacksFirstCell) ++cells.fFirst;
    if (windowUnderTest == TWindow::LacksLastCell) --cells.fLast;
    return cells;
  }
};

}  // namespace GeometryEngine::detail

// From here on the two indexes are classes of this file's own.
#define TToleranceCells TCutCells
#define TPointIndex TCutPointIndex
#define TEntityIndex TCutEntityIndex
#include "GeometryEngine/DXF_Entity_Types/detail/TEntityIndex.h"
#include "GeometryEngine/DXF_Entity_Types/detail/TPointIndex.h"
#undef TToleranceCells
#undef TPointIndex
#undef TEntityIndex

namespace GeometryEngine::properties {
namespace {

using detail::TWindow;

constexpr std::uint32_t kDrawings = 1'000;

/// The pieces of a drawing before their ends snap to vertices.
TEntityArray Pieces(const TwinDrawing& aDrawing) {
  Plain::TEntityStorage storage;
  storage.AddEntities(aDrawing.entities);
  Plain::TEntityBaseClass driver;
  driver.DetermineInterceptions(&storage);
  TEntityArray pieces;
  for (const Plain::TTreeNode* node : driver.InterceptTree().RootNode()->Children()) {
    const TEntityArray own = Plain::SplitEntity_FromIntercepts(driver.InterceptTree().GetNodeEntity(*node), *node);
    pieces.insert(pieces.end(), own.begin(), own.end());
  }
  return pieces;
}

/// Collects the vertices of the pieces; true when the index answers once what the twin doesn't.
bool DiffersOnVertices(const TEntityArray& aPieces) {
  detail::TCutPointIndex index;
  TCoordinateArray vertices;
  bool differs = false;
  for (const TDXFEntity& piece : aPieces) {
    for (const TEntityCoordinate& end : {piece.StartCoords, piece.EndCoords}) {
      const TIndex found = Plain::IndexOf(vertices, end);
      if (index.FindFirst(end) != found) differs = true;
      if (found != kNotFound) continue;
      vertices.push_back(end);
      index.Add(end);
    }
  }
  return differs;
}

bool DiffersOnPieces(const TEntityArray& aPieces) {
  detail::TCutEntityIndex index;
  TEntityArray kept;
  bool differs = false;
  for (const TDXFEntity& piece : aPieces) {
    const auto keptAt = [&](TIndex i) -> const TDXFEntity& { return kept[static_cast<std::size_t>(i)]; };
    const TIndex found = Plain::IndexOf(kept, piece);
    if (index.FindFirst(piece, keptAt) != found) differs = true;
    if (found != kNotFound) continue;
    kept.push_back(piece);
    index.Add(piece);
  }
  return differs;
}

struct TCaught {
  int fByVertices = 0;
  int fByPieces = 0;
};

/// How many of the drawings tell such a window from the twin's search.
TCaught CountDrawingsThatDiffer(TWindow aWindow) {
  const support::TSettingsGuard settings;
  detail::windowUnderTest = aWindow;
  TCaught caught;
  for (std::uint32_t seed = 1; seed <= kDrawings; ++seed) {
    const TwinDrawing drawing = MakeTwinDrawing(seed);
    Apply(drawing.settings);
    const TEntityArray pieces = Pieces(drawing);
    caught.fByVertices += DiffersOnVertices(pieces) ? 1 : 0;
    caught.fByPieces += DiffersOnPieces(pieces) ? 1 : 0;
  }
  detail::windowUnderTest = TWindow::Whole;
  return caught;
}

}  // namespace

TEST(NarrowWindow, WholeWindowsAgreeWithThePlainTwin) {
  const auto [byVertices, byPieces] = CountDrawingsThatDiffer(TWindow::Whole);
  EXPECT_EQ(byVertices, 0);
  EXPECT_EQ(byPieces, 0);
}

TEST(NarrowWindow, WindowsWithoutTheirFirstCellAreCaughtByTheDrawings) {
  const auto [byVertices, byPieces] = CountDrawingsThatDiffer(TWindow::LacksFirstCell);
  EXPECT_GT(byVertices, 0);
  EXPECT_GT(byPieces, 0);
  RecordProperty("byVertices", byVertices);
  RecordProperty("byPieces", byPieces);
}

TEST(NarrowWindow, WindowsWithoutTheirLastCellAreCaughtByTheDrawings) {
  const auto [byVertices, byPieces] = CountDrawingsThatDiffer(TWindow::LacksLastCell);
  EXPECT_GT(byVertices, 0);
  EXPECT_GT(byPieces, 0);
  RecordProperty("byVertices", byVertices);
  RecordProperty("byPieces", byPieces);
}

}  // namespace GeometryEngine::properties
