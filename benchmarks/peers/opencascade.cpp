// Over Open CASCADE: the general fuse of all edges, wires of what has been split, faces of the wires.

#include <BOPAlgo_Builder.hxx>
#include <BOPAlgo_Tools.hxx>
#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRep_Builder.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_ListOfShape.hxx>
#include <TopoDS_Compound.hxx>
#include <gp_Ax2.hxx>
#include <gp_Circ.hxx>
#include <gp_Pnt.hxx>

#include "benchmarks/support/Program.h"

namespace {

gp_Pnt ToPoint(const drawings::Point& aPoint) {
  return {aPoint.x, aPoint.y, 0};
}

TopoDS_Shape ToEdge(const drawings::Entity& aEntity) {
  const gp_Pnt start = ToPoint(aEntity.start);
  const gp_Pnt end = ToPoint(aEntity.end);
  if (!aEntity.isArc) return BRepBuilderAPI_MakeEdge(start, end).Shape();
  const gp_Circ circle(gp_Ax2(ToPoint(aEntity.centre), gp_Dir(0, 0, 1)), aEntity.radius);
  return BRepBuilderAPI_MakeEdge(circle, start, end).Shape();
}

class TGeneralFuse {
 public:
  explicit TGeneralFuse(const drawings::Drawing& aDrawing) {
    for (const drawings::Entity& entity : aDrawing) fEdges.Append(ToEdge(entity));
  }

  std::size_t operator()() {
    BOPAlgo_Builder builder;
    builder.SetArguments(fEdges);
    builder.SetRunParallel(false);
    builder.Perform();
    if (builder.HasErrors()) return 0;
    TopoDS_Shape wires;
    BOPAlgo_Tools::EdgesToWires(builder.Shape(), wires, true);
    TopoDS_Shape faces;
    if (!BOPAlgo_Tools::WiresToFaces(wires, faces)) return 0;
    std::size_t count = 0;
    for (TopExp_Explorer explorer(faces, TopAbs_FACE); explorer.More(); explorer.Next()) ++count;
    return count;
  }

 private:
  TopTools_ListOfShape fEdges;
};

}  // namespace

int main(int aCount, char** aArguments) {
  return benchmarks::RunProgram<TGeneralFuse>(aCount, aArguments);
}
