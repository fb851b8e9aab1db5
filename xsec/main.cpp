#include "xsec/Run.h"

int main(int aCount, char** aArguments) {
  return static_cast<int>(xsec::Run(aCount, aArguments));
}
