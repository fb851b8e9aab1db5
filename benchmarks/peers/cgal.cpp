// Over CGAL: the faces, and nothing about them.

#include "benchmarks/peers/CgalFaces.h"
#include "benchmarks/support/Program.h"

namespace {

class TFindFaces {
 public:
  explicit TFindFaces(const drawings::Drawing& aDrawing) : fFaces(aDrawing) {}

  std::size_t operator()() {
    const peers::TArrangement& found = fFaces.Find();
    return found.number_of_faces() - found.number_of_unbounded_faces();
  }

 private:
  peers::TCgalFaces fFaces;
};

}  // namespace

int main(int aCount, char** aArguments) {
  return benchmarks::RunProgram<TFindFaces>(aCount, aArguments);
}
