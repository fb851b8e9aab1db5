#pragma once

// What the machine can do at all: the faces of a clean drawing by a bare pipeline in flat arrays, without tolerance,
// overlaps, nesting, labels or trees. Entities meet at ends that agree to the last bit, or cross in their insides;
// anything else it gets wrong. It is a measure of time, not a way to find regions.

#include <cstdint>
#include <vector>

#include "benchmarks/drawings/Drawing.h"

namespace benchmarks {

class TBarePipeline {
 public:
  explicit TBarePipeline(const drawings::Drawing& aDrawing) : fDrawing(aDrawing) {}

  /// The number of anticlockwise loops.
  std::size_t operator()();
  double TotalArea() const { return fTotalArea; }

 private:
  struct Box {
    double left, right, low, high;
    std::uint32_t strip;  ///< the one in which it begins
  };
  struct Cut {
    std::uint32_t entity;
    double place;  ///< along the entity; 0 at its start, growing to its end
    drawings::Point point;
  };
  struct HalfEdge {
    std::uint32_t origin;
    double direction;  ///< in which it leaves its vertex; a full turn is 4
    double curvature;  ///< to the left, to tell tangent ones apart
    double term;       ///< to twice the area of the loop that it is in
  };

  void MakeBoxes();
  void FindCuts();
  void SweepStrip(std::uint32_t aStrip, const std::vector<std::uint32_t>& aEntities);
  void CutPair(std::uint32_t aFirst, std::uint32_t aSecond);
  void Split();
  void AddPiece(const drawings::Entity& aEntity, const drawings::Point& aStart, const drawings::Point& aEnd);
  std::uint32_t VertexAt(const drawings::Point& aPoint);
  void LinkHalfEdges();
  std::size_t TraceLoops();

  const drawings::Drawing& fDrawing;
  std::vector<Box> fBoxes;
  std::vector<Cut> fCuts;
  std::vector<drawings::Point> fVertices;
  std::vector<std::uint32_t> fTable;  ///< of vertices by their bits, open addressing
  std::vector<HalfEdge> fHalfEdges;   ///< of piece k: 2k forwards, 2k + 1 backwards
  std::vector<std::uint32_t> fNext;   ///< the half-edge that follows in the loop on the left
  double fTotalArea = 0;
};

}  // namespace benchmarks
