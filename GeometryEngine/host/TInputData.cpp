#include "GeometryEngine/host/TInputData.h"

namespace Kelvaralinks {

TInputData InputData;

}  // namespace Kelvaralinks
