#pragma once

// A vertex at which tracing has a choice, and the picture of it.

#include <algorithm>
#include <string>
#include <vector>

#include "GeometryEngine/GeometryEngine.h"
#include "Strands.h"
#include "SvgPage.h"

namespace pictures {

/// A corner of a traced loop at which there is a choice: the pieces that arrive and leave, and the vertex between them.
struct TCorner {
  TEntityCoordinate fVertex;
  TIndex fArriving = kNotFound;
  TIndex fTaken = kNotFound;
  const TTreeNode* fNode = nullptr;  ///< the vertex in the graph
};

/// The first vertex of a traced loop at which four half-edges meet.
inline TCorner FindCorner(const TEntityTree& aGraph, const TEntityTree& aRegions, const TTreeNode& aLoop) {
  constexpr TIndex kCrossing = 4;  // half-edges
  TEntityCoordinate from = aLoop.Coordinates();
  const std::span<TTreeNode* const> walked = aLoop.Children();
  for (std::size_t i = 0; i + 1 < walked.size(); ++i) {
    from = GetEntityEndCoordinate(from, aRegions.GetNodeEntity(*walked[i]));
    const TTreeNode* vertex = aGraph.Search_L1_Coords(from);
    if (vertex->Count() == kCrossing) return {from, walked[i]->EntityIndex(), walked[i + 1]->EntityIndex(), vertex};
  }
  return {};
}

/// Degrees from the piece that arrives, looked at backwards, anticlockwise to one that leaves.
inline double GetTurn(const TEntityTree& aGraph, const TCorner& aCorner, TIndex aLeaving) {
  const TDXFEntity arriving = aGraph.pEntityStorage()->Entities(aCorner.fArriving);
  const TDXFEntity leaving = aGraph.pEntityStorage()->Entities(aLeaving);
  const TEntityCoordinate start = GetEntityEndCoordinate(aCorner.fVertex, arriving);
  const TEntityCoordinate end = GetEntityEndCoordinate(aCorner.fVertex, leaving);
  return GetAngleBetweenVectors(GetEntityVector(start, aCorner.fVertex, arriving, 0),
                                GetEntityVector(aCorner.fVertex, end, leaving, 1)) *
         kDegreesPerRadian;
}

/// What became of a half-edge at a corner, in words and as a colour. One that turns sharper than the one taken was
/// stepped back from, as long as no other walk had been there before.
struct TLeaving {
  std::string fText;
  std::string fColour;
};

inline TLeaving GetFate(const TEntityTree& aGraph, const TCorner& aCorner, TIndex aLeaving) {
  if (aLeaving == aCorner.fTaken) return {", taken", kGreen};
  const bool sharper = GetTurn(aGraph, aCorner, aLeaving) > GetTurn(aGraph, aCorner, aCorner.fTaken);
  return sharper ? TLeaving{", a dead end", kRed} : TLeaving{"", kGrey};
}

inline void DrawArrival(TSvgPage& aPage, const TEntityTree& aGraph, const TCorner& aCorner) {
  const TDXFEntity arriving = aGraph.pEntityStorage()->Entities(aCorner.fArriving);
  const TStrand strand(arriving, aCorner.fVertex);
  aPage.Arrow({strand.GetPoint(10, 0), strand.GetPoint(0.6, 0)}, kBlue, 5);
  aPage.Tag(strand.GetPoint(8, 0), static_cast<std::size_t>(aCorner.fArriving), kBlue);
  aPage.Note(kBlue, "the walk arrives by piece " + std::to_string(aCorner.fArriving));
}

/// A half-edge, and how far it turns left, from the piece that arrives anticlockwise.
inline void DrawDeparture(TSvgPage& aPage, const TEntityTree& aGraph, const TCorner& aCorner,
                          const TTreeNode& aHalfEdge, double aRadius, const std::string& aColour) {
  const TDXFEntity arriving = aGraph.pEntityStorage()->Entities(aCorner.fArriving);
  const TDXFEntity leaving = aGraph.GetNodeEntity(aHalfEdge);
  const TStrand strand(leaving, aCorner.fVertex);
  const double length = std::min(9.0, leaving.EntityLength());
  aPage.Arrow(strand.GetPart(0, length, 0), aColour, 4);
  aPage.Tag(strand.GetPoint(0.8 * length, 0), static_cast<std::size_t>(aHalfEdge.EntityIndex()), aColour);
  const double begin =
      GetCoordinateAngle_AboutPoint(TStrand(arriving, aCorner.fVertex).GetPoint(0.1, 0), aCorner.fVertex);
  const double turn = GetTurn(aGraph, aCorner, aHalfEdge.EntityIndex());
  TCoordinateArray arc;
  for (int i = 0; i <= 40; ++i) {
    arc.push_back(aCorner.fVertex + RT_To_XY_Coordinate(aRadius, begin + (turn - 2) * i / 40));
  }
  aPage.Arrow(arc, aColour, 2);
}

}  // namespace pictures
