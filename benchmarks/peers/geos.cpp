// Over GEOS: the faces, and nothing about them.

#include "benchmarks/peers/GeosFaces.h"
#include "benchmarks/support/Program.h"

namespace {

class TFindFaces {
 public:
  explicit TFindFaces(const drawings::Drawing& aDrawing) : fFaces(aDrawing) {}

  std::size_t operator()() { return static_cast<std::size_t>(peers::TGeosFaces::Count(fFaces.Find())); }

 private:
  peers::TGeosFaces fFaces;
};

}  // namespace

int main(int aCount, char** aArguments) {
  return benchmarks::RunProgram<TFindFaces>(aCount, aArguments);
}
