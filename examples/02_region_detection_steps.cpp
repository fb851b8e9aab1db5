// Region detection step by step: takes one small drawing through the library, prints what each step leaves behind, and
// draws it. docs/region-detection.md is about these pictures.
//
// usage: 02_region_detection_steps [FOLDER]    the pictures go into FOLDER; without one there is only the text

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "GeometryEngine/GeometryEngine.h"
#include "pictures/Cells.h"
#include "pictures/Corner.h"
#include "pictures/SmallDrawing.h"
#include "pictures/Strands.h"
#include "pictures/SvgPage.h"

using namespace pictures;

namespace {

constexpr TWindow kWholeDrawing{-5, -5, 112, 92, 7.4};
std::string GetPointText(const TEntityCoordinate& aPoint) {
  return "(" + Fixed(aPoint.x, 3) + ", " + Fixed(aPoint.y, 3) + ")";
}

template <class TNumbers>
std::string GetListText(const TNumbers& aNumbers) {
  std::string text;
  for (const auto number : aNumbers) text += (text.empty() ? "" : ", ") + std::to_string(number);
  return text.empty() ? "none" : text;
}

std::span<TTreeNode* const> Nodes(const TEntityTree& aTree) {
  return aTree.RootNode()->Children();
}

void DrawEntity(TSvgPage& aPage, const TDXFEntity& aEntity, const std::string& aStyle) {
  aPage.Line(TStrand(aEntity, aEntity.StartCoords).GetPoints(0, 0), aStyle);
}

void DrawEntities(TSvgPage& aPage, const TEntityStorage& aStorage) {
  for (const TDXFEntity& entity : aStorage.EntityArray()) DrawEntity(aPage, entity, TSvgPage::Stroke(kPale, 1.5));
}

// 1 ---------------------------------------------------------------------------------------------------------------

// Where an entity's number stands: in its middle, and aside for one that was drawn before.
TEntityCoordinate GetTagPlace(const TEntityStorage& aDrawing, TIndex aIndex) {
  const TDXFEntity entity = aDrawing.Entities(aIndex);
  const bool drawnBefore = aDrawing.IndexOf(entity) != aIndex;
  return TStrand(entity, GetLeftMostCoordinate_Line(entity))
      .GetPoint((drawnBefore ? 0.54 : 0.5) * entity.EntityLength(), 0);
}

void ShowSort(TEntityStorage& aDrawing, TAlbum& aAlbum) {
  aDrawing.QuickSortArray(0, aDrawing.Count() - 1);
  TSvgPage page("1  Sort: entities by their left-most x", kWholeDrawing);
  std::printf("1 Sort: %d entities by left-most x\n", aDrawing.Count());
  DrawEntities(page, aDrawing);
  for (TIndex i = 0; i < aDrawing.Count(); ++i) {
    const TDXFEntity entity = aDrawing.Entities(i);
    const TEntityCoordinate left = GetLeftMostCoordinate(entity);
    const std::string kind = entity.EntityType == DXFArc ? "arc" : "line";
    DrawEntity(page, entity, TSvgPage::Stroke(kBlue, 2));
    page.Dot(left, 4.5, Fill(kOrange, 1));
    page.Note("", std::to_string(i) + "  " + kind + " from x = " + Fixed(left.x, 1));
    std::printf("  %2d  %-4s  left-most %s\n", i, kind.c_str(), GetPointText(left).c_str());
  }
  for (TIndex i = 0; i < aDrawing.Count(); ++i) page.Tag(GetTagPlace(aDrawing, i), static_cast<std::size_t>(i), kBlue);
  page.Gap();
  page.Note(kOrange, "left-most point of an entity");
  aAlbum.Add(page, "1_sort");
}

// 2 ---------------------------------------------------------------------------------------------------------------

// The ends of a drawn entity that the sweep has not recorded.
TCoordinateArray GetTrimmedEnds(const TEntityTree& aIntercepts, const TTreeNode& aNode) {
  const TDXFEntity& entity = aIntercepts.GetNodeEntity(aNode);
  TCoordinateArray ends;
  for (const TEntityCoordinate& end : {entity.StartCoords, entity.EndCoords}) {
    if (aIntercepts.Search_L2_Coordinates(end, &aNode) == nullptr) ends.push_back(end);
  }
  return ends;
}

// The sweep stopped where it reaches an entity: what it has passed, what is active, what is still to come.
void DrawSweep(TSvgPage& aPage, const TEntityStorage& aDrawing, TIndex aEntering) {
  const double x = GetLeftMostCoordinate(aDrawing.Entities(aEntering)).x;
  for (TIndex i = 0; i < aDrawing.Count(); ++i) {
    const TDXFEntity entity = aDrawing.Entities(i);
    const bool leftBehind = i < aEntering && GetRightMostCoordinate(entity).x < x;
    const std::string colour = i > aEntering ? kPale : leftBehind ? kGrey : kBlue;
    DrawEntity(aPage, entity, i == aEntering ? TSvgPage::Stroke(kOrange, 5) : TSvgPage::Stroke(colour, 2.5));
  }
  aPage.Line({{x, kWholeDrawing.fBottom + 1}, {x, kWholeDrawing.fTop - 1}},
             TSvgPage::Stroke(kOrange, 1.5) + " stroke-dasharray=\"7 6\"");
}

void ShowSweep(const TEntityStorage& aDrawing, const TEntityTree& aIntercepts, TAlbum& aAlbum) {
  constexpr TIndex kEntering = 14;  // an entity that others have retired before
  TSvgPage page("2  Sweep: who meets whom, and where", kWholeDrawing);
  std::printf("2 Sweep: interceptions in order along each entity\n");
  DrawSweep(page, aDrawing, kEntering);
  for (const TTreeNode* node : Nodes(aIntercepts)) {
    std::printf("  entity %2d:", node->EntityIndex());
    for (const TTreeNode* point : node->Children()) {
      page.Dot(point->Coordinates(), 4.5, Fill(kInk, 1));
      std::printf(" %s", GetPointText(point->Coordinates()).c_str());
    }
    for (const TEntityCoordinate& end : GetTrimmedEnds(aIntercepts, *node)) {
      page.Cross(end, 6, kRed);
      std::printf(" but not its end %s", GetPointText(end).c_str());
    }
    std::printf("\n");
  }
  page.Note(kOrange, "the entity that enters");
  page.Note(kBlue, "active: tested against it");
  page.Note(kGrey, "left behind, retired");
  page.Note(kPale, "still to come");
  page.Gap();
  page.Note(kInk, "a recorded point, at the end of the sweep");
  page.Note(kRed, "an end that the sweep trims");
  aAlbum.Add(page, "2_sweep");
}

// 3 ---------------------------------------------------------------------------------------------------------------

void ShowPieces(const TEntityStorage& aPieces, TAlbum& aAlbum) {
  TSvgPage page("3  Split: pieces that meet at their ends only", kWholeDrawing);
  std::printf("3 Split: %d pieces\n", aPieces.Count());
  for (TIndex i = 0; i < aPieces.Count(); ++i) {
    const TDXFEntity piece = aPieces.Entities(i);
    const TStrand strand(piece, piece.StartCoords);
    const std::string colour = ColourOf(static_cast<std::size_t>(i));
    page.Line(strand.GetPoints(0.9, 0), TSvgPage::Stroke(colour, 3));
    page.Tag(strand.GetMiddle(0), static_cast<std::size_t>(i), colour);
    std::printf("  %2d  %s to %s\n", i, GetPointText(piece.StartCoords).c_str(), GetPointText(piece.EndCoords).c_str());
  }
  page.Note("", std::to_string(aPieces.Count()) + " pieces, numbered as they come");
  page.Note("", "off the entities. The line that was drawn twice");
  page.Note("", "is one piece, the trimmed end is gone.");
  aAlbum.Add(page, "3_split");
}

// 4 ---------------------------------------------------------------------------------------------------------------

void DrawHalfEdge(TSvgPage& aPage, const TEntityTree& aGraph, const TTreeNode& aHalfEdge) {
  const TStrand strand(aGraph.GetNodeEntity(aHalfEdge), aHalfEdge.Parent()->Coordinates());
  aPage.Arrow(strand.GetBeginning(1.8, 5, 0.55), kOrange, 2);
}

void ShowGraph(const TEntityTree& aGraph, TAlbum& aAlbum) {
  TSvgPage page("4  Vertex graph: vertices and their half-edges", kWholeDrawing);
  std::printf("4 Vertex graph: %d vertices\n", aGraph.RootNode()->Count());
  DrawEntities(page, *aGraph.pEntityStorage());
  for (std::size_t i = 0; i < Nodes(aGraph).size(); ++i) {
    const TTreeNode& vertex = *Nodes(aGraph)[i];
    std::vector<TIndex> pieces;
    for (const TTreeNode* halfEdge : vertex.Children()) {
      DrawHalfEdge(page, aGraph, *halfEdge);
      pieces.push_back(halfEdge->EntityIndex());
    }
    page.Tag(vertex.Coordinates(), i, vertex.Count() < 2 ? kRed : kInk);
    std::printf("  vertex %2zu %s: pieces %s\n", i, GetPointText(vertex.Coordinates()).c_str(),
                GetListText(pieces).c_str());
  }
  page.Note(kInk, "a vertex");
  page.Note(kRed, "a vertex that one piece alone reaches");
  page.Note(kOrange, "a half-edge: a piece, seen from a vertex");
  aAlbum.Add(page, "4_graph");
}

// 5 ---------------------------------------------------------------------------------------------------------------

bool IsInSomeLoop(const TEntityTree& aRegions, TIndex aPiece) {
  return std::ranges::any_of(Nodes(aRegions), [&](const TTreeNode* loop) {
    return std::ranges::any_of(loop->Children(),
                               [&](const TTreeNode* child) { return child->EntityIndex() == aPiece; });
  });
}

bool IsClockwise(const TTreeNode* aLoop) {
  return aLoop->TravelDirection() == Travel_Clockwise;
}

// A face has its colour in every picture; loops round groups of entities are black.
std::string GetLoopColour(const TEntityTree& aRegions, std::size_t aNumber) {
  const std::span<TTreeNode* const> loops = Nodes(aRegions);
  if (IsClockwise(loops[aNumber])) return kInk;
  const auto end = loops.begin() + static_cast<std::ptrdiff_t>(aNumber);
  return ColourOf(aNumber - static_cast<std::size_t>(std::count_if(loops.begin(), end, IsClockwise)));
}

void DrawLoop(TSvgPage& aPage, const TEntityTree& aRegions, std::size_t aNumber) {
  const TTreeNode& loop = *Nodes(aRegions)[aNumber];
  const std::string colour = GetLoopColour(aRegions, aNumber);
  if (!IsClockwise(&loop)) aPage.Area(GetOutline(aRegions, loop), Fill(colour, 0.10));
  const std::vector<TStrand> strands = GetStrands(aRegions, loop);
  for (const TStrand& strand : strands) aPage.Arrow(strand.GetPoints(1.7, 0.8), colour, 2);
  aPage.Tag(strands.front().GetMiddle(0.8), aNumber, colour);
}

void ShowLoops(const TEntityTree& aRegions, TAlbum& aAlbum) {
  TSvgPage page("5  Tracing: every half-edge is in one loop at most", kWholeDrawing);
  std::printf("5 Tracing: %d loops\n", aRegions.RootNode()->Count());
  DrawEntities(page, *aRegions.pEntityStorage());
  for (std::size_t i = 0; i < Nodes(aRegions).size(); ++i) {
    const TTreeNode& loop = *Nodes(aRegions)[i];
    const std::string text =
        (IsClockwise(&loop) ? "clockwise, signed area " : "anticlockwise, signed area ") + Fixed(loop.GaussArea(), 3);
    DrawLoop(page, aRegions, i);
    page.Note(GetLoopColour(aRegions, i), std::to_string(i) + "  " + text);
    std::printf("  loop %zu: %d pieces, %s\n", i, loop.Count(), text.c_str());
  }
  page.Gap();
  for (TIndex i = 0; i < aRegions.pEntityStorage()->Count(); ++i) {
    if (IsInSomeLoop(aRegions, i)) continue;
    DrawEntity(page, aRegions.pEntityStorage()->Entities(i), TSvgPage::Stroke(kRed, 3) + " stroke-dasharray=\"2 6\"");
    page.Note(kRed, "piece " + std::to_string(i) + " is in no loop");
    std::printf("  piece %d is in no loop\n", i);
  }
  aAlbum.Add(page, "5_tracing");
}

// The vertex at which a loop has a choice, with the half-edges there and how far left each of them turns.
void ShowTurn(const TEntityTree& aGraph, const TEntityTree& aRegions, TIndex aLoop, const std::string& aName,
              TAlbum& aAlbum) {
  const TCorner corner = FindCorner(aGraph, aRegions, *aRegions.RootNode()->GetNode(aLoop));
  const TEntityCoordinate at = corner.fVertex;
  TSvgPage page("5  Tracing: " + aName, {at.x - 13, at.y - 10, at.x + 13, at.y + 10, 24});
  std::printf("  loop %d arrives at %s by piece %d\n", aLoop, GetPointText(at).c_str(), corner.fArriving);
  DrawArrival(page, aGraph, corner);
  double radius = 2;
  for (const TTreeNode* leaving : corner.fNode->Children()) {
    if (leaving->EntityIndex() == corner.fArriving) continue;
    const double turn = GetTurn(aGraph, corner, leaving->EntityIndex());
    const TLeaving fate = GetFate(aGraph, corner, leaving->EntityIndex());
    const std::string piece = std::to_string(leaving->EntityIndex());
    const std::string text = "piece " + piece + ": " + Fixed(turn, 2) + " degrees" + fate.fText;
    DrawDeparture(page, aGraph, corner, *leaving, radius += 1.4, fate.fColour);
    page.Note(fate.fColour, text);
    std::printf("    %s\n", text.c_str());
  }
  page.Dot(at, 7, Fill(kInk, 1));
  aAlbum.Add(page, aLoop == 0 ? "5_dead_end" : "5_turn");
}

// 6 ---------------------------------------------------------------------------------------------------------------

void ShowNesting(TEntityBaseClass& aDriver, TAlbum& aAlbum) {
  const TEntityTree& regions = aDriver.RegionTree();
  TSvgPage page("6  Nesting: which regions lie in which", kWholeDrawing);
  std::printf("6 Nesting: %d regions\n", regions.RootNode()->Count());
  aDriver.IdentifySubRegions(aDriver.CoordinateTree());
  std::vector<std::string> all;
  for (const TTreeNode* region : Nodes(regions)) all.push_back(GetListText(region->SubRegions()));
  aDriver.RemoveDuplicatedSubRegions();
  const TEntityCoordinate probe = Nodes(regions).back()->Coordinates();
  for (std::size_t i = 0; i < Nodes(regions).size(); ++i) {
    const TTreeNode& region = *Nodes(regions)[i];
    const std::string lists = "lists " + all[i] + ", keeps " + GetListText(region.SubRegions());
    const int winding = CalculateWindingNumber(aDriver.CoordinateTree(), &region, probe);
    DrawLoop(page, regions, i);
    page.Note(ColourOf(i), std::to_string(i) + "  winding " + std::to_string(winding) + "; " + lists);
    std::printf("  region %zu: winding number %d about %s, %s\n", i, winding, GetPointText(probe).c_str(),
                lists.c_str());
  }
  page.Gap();
  page.Dot(probe, 7, Fill(kRed, 1));
  page.Note(kRed, "the point of those winding numbers");
  aAlbum.Add(page, "6_nesting");
}

// 7 ---------------------------------------------------------------------------------------------------------------

TTreeNodeArray_Geometry HandOver(TEntityBaseClass& aDriver, TTree_Geometry& aTree) {
  TTreeNodeArray_Geometry regions;
  for (TIndex i = 0; i < aDriver.RegionTree().RootNode()->Count(); ++i) {
    auto node = aTree.CreateTreeNode();
    regions.push_back(TTreeNode_Geometry::TypeCast(aTree.AddNewTreeNode(node)));
    aDriver.AddRegionEntities(regions.back(), i);
  }
  return regions;
}

void DrawRegion(TSvgPage& aPage, const TTreeNode_Geometry& aRegion, const std::string& aColour, double aOpacity) {
  aPage.Area(aRegion.Entities().GetVertices_Surf(false), Fill(aColour, aOpacity) + " " + TSvgPage::Stroke(aColour, 2));
}

void DrawStart(TSvgPage& aPage, const TEntityStorage& aOutline, const std::string& aColour) {
  aPage.Dot(aOutline.StartCoordinate(), 6, Fill(aColour, 1));
  aPage.Arrow(TStrand(aOutline.EntityArray()[0], aOutline.StartCoordinate()).GetBeginning(1.8, 6, 0.8), aColour, 2.5);
}

void ShowHandOver(const TTreeNodeArray_Geometry& aRegions, TAlbum& aAlbum) {
  TSvgPage page("7  Hand-over: outline, base area, centroid", kWholeDrawing);
  std::printf("7 Hand-over: base areas and centroids\n");
  for (std::size_t i = 0; i < aRegions.size(); ++i) {
    const TTreeNode_Geometry& region = *aRegions[i];
    const std::string area = Fixed(region.RegionArea_Base(), 3);
    DrawRegion(page, region, ColourOf(i), 0.12);
    page.Note(ColourOf(i), std::to_string(i) + "  base area " + area);
    std::printf("  region %zu: %d entities from %s, base area %s, centroid %s\n", i, region.NumberEntities(),
                GetPointText(region.Entities().StartCoordinate()).c_str(), area.c_str(),
                GetPointText(region.Centroid()).c_str());
  }
  for (std::size_t i = 0; i < aRegions.size(); ++i) {
    page.Cross(aRegions[i]->Centroid(), 7, ColourOf(i));
    DrawStart(page, aRegions[i]->Entities(), ColourOf(i));
  }
  page.Gap();
  page.Note("", "disc and arrow: where the outline starts,");
  page.Note("", "always anticlockwise");
  page.Note("", "cross: the outline's centroid");
  aAlbum.Add(page, "7_hand_over");
}

// 8 ---------------------------------------------------------------------------------------------------------------

void NameRegions(TEntityBaseClass& aDriver, const TTreeNodeArray_Geometry& aRegions) {
  for (const TKnownRegion& known : kKnownRegions) {
    TIndex index = kNotFound;
    IdentifyRegionFromCoordinate(aDriver.RegionTree(), aDriver.CoordinateTree(), known.fPoint, index);
    if (index == kNotFound) continue;
    aRegions[static_cast<std::size_t>(index)]->SetRegionName(known.fName);
    aRegions[static_cast<std::size_t>(index)]->SetRegionName_Unique();
  }
}

void AttachChildren(const TEntityTree& aDetected, TTree_Geometry& aTree, const TTreeNodeArray_Geometry& aRegions) {
  for (std::size_t i = 0; i < aRegions.size(); ++i) {
    for (const std::int32_t inner : Nodes(aDetected)[i]->SubRegions()) {
      aTree.MoveTreeNode_Recursive(aRegions[static_cast<std::size_t>(inner)], aRegions[i]);
    }
  }
}

void DrawLabel(TSvgPage& aPage, TTreeNode_Geometry& aRegion, const std::string& aColour) {
  const TEntityCoordinate label = aRegion.RegionCoordinate();
  aPage.Dot(label, 5, Fill(aColour, 1));
  aPage.Text({label.x, label.y + 1.5}, aRegion.GetRegionName_Unique(),
             "font-weight=\"bold\" paint-order=\"stroke\" stroke=\"#ffffff\" stroke-width=\"4\" " + Fill(aColour, 1));
}

void ShowLabels(const TTreeNodeArray_Geometry& aRegions, TAlbum& aAlbum) {
  TSvgPage page("8  Labelling: net area and label point", kWholeDrawing);
  std::printf("8 Labelling: net areas and label points\n");
  for (std::size_t i = 0; i < aRegions.size(); ++i) DrawRegion(page, *aRegions[i], ColourOf(i), 0.15);
  for (std::size_t i = 0; i < aRegions.size(); ++i) {
    TTreeNode_Geometry& region = *aRegions[i];
    const TEntityCoordinate label = region.RegionCoordinate();
    const double distance = GetSignedDistance(region.PoleRegion(), label);
    const std::string name = region.GetRegionName_Unique();
    std::printf("  %-8s net area %s, label point %s, %s from the nearest boundary\n", name.c_str(),
                Fixed(region.GetRegionArea(), 3).c_str(), GetPointText(label).c_str(), Fixed(distance, 3).c_str());
    page.Note(ColourOf(i), name + ": net area " + Fixed(region.GetRegionArea(), 3));
    if (label != region.Centroid()) DrawCells(page, region, ColourOf(i));
    DrawLabel(page, region, ColourOf(i));
  }
  page.Gap();
  page.Note("", "dashed: squares of the pole search, each");
  page.Note("", "with its centre's distance to a boundary,");
  page.Note("", "negative outside the material");
  aAlbum.Add(page, "8_labels");
}

}  // namespace

int main(int argc, char** argv) {
  TAlbum album(argc > 1 ? argv[1] : "");
  TEntityStorage drawing;
  FillDrawing(drawing);
  ShowSort(drawing, album);

  TEntityBaseClass driver;
  driver.DetermineInterceptions(&drawing);
  ShowSweep(drawing, driver.InterceptTree(), album);
  ShowPieces(*driver.CoordinateTree().pEntityStorage(), album);
  ShowGraph(driver.CoordinateTree(), album);
  driver.DetermineRegions(driver.CoordinateTree(), 0);  // every loop, for the picture
  ShowLoops(driver.RegionTree(), album);
  ShowTurn(driver.CoordinateTree(), driver.RegionTree(), 2, "the sharpest left turn", album);
  ShowTurn(driver.CoordinateTree(), driver.RegionTree(), 0, "back from a dead end", album);

  driver.DetermineInterceptions(&drawing);  // tracing left its marks in the graph: a new one for the next
  driver.DetermineRegions(driver.CoordinateTree(), 1);
  ShowNesting(driver, album);

  TTree_Geometry tree;
  const TTreeNodeArray_Geometry regions = HandOver(driver, tree);
  ShowHandOver(regions, album);
  NameRegions(driver, regions);
  AttachChildren(driver.RegionTree(), tree, regions);
  for (TTreeNode_Geometry* region : regions) region->UpdateGeometry_Outputs();
  ShowLabels(regions, album);
  if (!album.IsComplete()) std::fprintf(stderr, "can't write all pictures\n");
  return album.IsComplete() ? 0 : 1;
}
