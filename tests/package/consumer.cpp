// A host in small: it includes the one header, changes a setting and asks for something that only the library knows.

#include <GeometryEngine/GeometryEngine.h>

#include <cstdio>

int main() {
  using namespace GeometryEngine;
  const bool sameBefore = ValuesSame_DXFTolerance(1.0, 1.01);
  Kelvaralinks::dataStore.SetValue(Maindataenum::TInputFields{6525}, 0.1);
  const bool sameAfter = ValuesSame_DXFTolerance(1.0, 1.01);

  TEntityStorage square;
  square.AddEntity(CreateEntity_Line(0, 0, 2, 0));
  square.AddEntity(CreateEntity_Line(2, 0, 2, 2));
  square.AddEntity(CreateEntity_Line(2, 2, 0, 2));
  square.AddEntity(CreateEntity_Line(0, 2, 0, 0));
  const double area = square.GetClosedArea();

  std::printf("same before %d, after %d, area %g\n", sameBefore, sameAfter, area);
  return !sameBefore && sameAfter && area == 4.0 ? 0 : 1;
}
