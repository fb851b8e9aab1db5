#include "xsec/PieceGraph.h"

#include <algorithm>

#include "xsec/TravelledPiece.h"

namespace xsec {

namespace {

/// A vertex on the way of the depth-first walk.
struct Step {
  std::size_t vertex;
  std::size_t arrivedBy;  ///< piece
  std::size_t next = 0;   ///< position among the vertex's pieces
};

/// Finds bridges by a depth-first walk: a piece is one when nothing beyond it leads back to its near side or before.
class BridgeWalk {
 public:
  explicit BridgeWalk(const PieceGraph& graph)
      : fGraph(graph),
        fOrder(graph.vertices.size(), kNone),
        fEarliest(graph.vertices.size(), kNone),
        fIsBridge(graph.pieces.size(), false) {}

  std::vector<bool> Run() {
    for (std::size_t vertex = 0; vertex < fGraph.vertices.size(); ++vertex) {
      if (fOrder[vertex] == kNone) WalkFrom(vertex);
    }
    return fIsBridge;
  }

 private:
  void WalkFrom(std::size_t root) {
    Enter(root, kNone);
    while (!fPath.empty()) {
      Step& step = fPath.back();
      const auto& pieces = fGraph.vertices[step.vertex];
      if (step.next == pieces.size()) {
        Leave();
      } else {
        Look(pieces[step.next++], step.vertex, step.arrivedBy);
      }
    }
  }

  void Enter(std::size_t vertex, std::size_t arrivedBy) {
    fOrder[vertex] = fEarliest[vertex] = fCount++;
    fPath.push_back({vertex, arrivedBy});
  }

  void Look(std::size_t piece, std::size_t vertex, std::size_t arrivedBy) {
    if (piece == arrivedBy) return;
    const auto& [a, b] = fGraph.pieces[piece];
    const std::size_t other = a == vertex ? b : a;
    if (fOrder[other] == kNone) return Enter(other, piece);
    fEarliest[vertex] = std::min(fEarliest[vertex], fOrder[other]);
  }

  void Leave() {
    const Step step = fPath.back();
    fPath.pop_back();
    if (fPath.empty()) return;
    const std::size_t before = fPath.back().vertex;
    fEarliest[before] = std::min(fEarliest[before], fEarliest[step.vertex]);
    fIsBridge[step.arrivedBy] = fEarliest[step.vertex] > fOrder[before];
  }

  const PieceGraph& fGraph;
  std::vector<std::size_t> fOrder;     ///< when the walk first came to each vertex
  std::vector<std::size_t> fEarliest;  ///< the earliest vertex that what lies beyond each vertex leads back to
  std::vector<bool> fIsBridge;
  std::vector<Step> fPath;
  std::size_t fCount = 0;
};

/// Exact: the ends of a piece are the very points of its vertices.
bool StandsAt(const GeometryEngine::TTreeNode& vertex, const Point& point) {
  return vertex.coordinate_X() == point.x && vertex.coordinate_Y() == point.y;
}

}  // namespace

PieceGraph ReadPieceGraph(const GeometryEngine::TEntityTree& aCoordinateTree) {
  const GeometryEngine::TEntityStorage* storage = aCoordinateTree.pEntityStorage();
  PieceGraph graph;
  if (storage == nullptr) return graph;
  graph.pieces.assign(storage->EntityArray().size(), {kNone, kNone});
  for (const GeometryEngine::TTreeNode* vertex : aCoordinateTree.RootNode()->Children()) {
    auto& pieces = graph.vertices.emplace_back();
    for (const GeometryEngine::TTreeNode* end : vertex->Children()) {
      const auto piece = static_cast<std::size_t>(end->EntityIndex());
      auto& [start, finish] = graph.pieces[piece];
      const bool isStart = start == kNone && StandsAt(*vertex, storage->EntityArray()[piece].StartCoords);
      (isStart ? start : finish) = graph.vertices.size() - 1;
      pieces.push_back(piece);
    }
  }
  return graph;
}

std::vector<bool> FindBridges(const PieceGraph& aGraph) {
  return BridgeWalk(aGraph).Run();
}

}  // namespace xsec
