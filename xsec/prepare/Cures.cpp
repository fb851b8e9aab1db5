#include "xsec/prepare/Cures.h"

#include <fmt/format.h>

#include <array>

#include "xsec/SourceText.h"

namespace xsec {

namespace {

struct Wording {
  const char* name;
  const char* text;
};

// In the order of the kinds.
constexpr std::array<Wording, 11> kWordings = {{
    {"one-circle", "arcs of one circle: given one centre and radius"},
    {"seam", "circles: their two halves begin away from where others meet them"},
    {"overlap", "entities that lie on each other in part: cut where that begins and ends"},
    {"one-height", "arcs that cross with centres at one height: cut at their crossings"},
    {"direction", "pairs that meet otherwise when they are turned: cut where they meet"},
    {"one-point", "points closer together than the tolerance: made one where turning would not tell them apart"},
    {"steep-line",
     "lines whose points are closer in x than the tolerance: the drawing is turned meanwhile, or they are cut there"},
    {"turn-order", "points that arcs leave nearly side by side: given first pieces of equal chord"},
    {"duplicate", "pieces that lie on another all along: left out"},
    {"vertex", "vertices beside the points of the drawing: put back onto them"},
    {"sliver", "slivers: made part of a neighbour"},
}};

}  // namespace

std::string CureName(CureKind aKind) {
  return kWordings[static_cast<std::size_t>(aKind)].name;
}

std::string CurePlace(const Cure& aCure, const Drawing& aDrawing) {
  std::string place = fmt::format("({:.6g}, {:.6g})", aCure.place.x, aCure.place.y);
  if (aCure.entity != kNone) place += ", " + SourceText(aDrawing.entities[aCure.entity]);
  if (aCure.other != kNone) place += " and " + SourceText(aDrawing.entities[aCure.other]);
  return place;
}

std::string CureText(CureKind aKind) {
  return kWordings[static_cast<std::size_t>(aKind)].text;
}

}  // namespace xsec
