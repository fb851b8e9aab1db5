#include "GeometryEngine/FloatingPoint/TFloatEnvironment.h"

#if defined(__x86_64__) && defined(__GNUC__)
#define GEOMETRYENGINE_READS_CONTROL_WORDS
#endif

namespace GeometryEngine {

namespace {

#ifdef GEOMETRYENGINE_READS_CONTROL_WORDS

// To save an environment and to set it costs some hundred cycles, since it includes that of the older unit, which
// nothing but parts of the mathematical library may use. To see that all is at its default takes few.

constexpr std::uint32_t kDefaultVectorWord = 0x1f80;  // traps, rounding, the two modes of flushing; no flags
constexpr std::uint32_t kVectorFlags = 0x3f;
constexpr std::uint16_t kDefaultOldControl = 0x037f;  // traps, rounding, precision
constexpr std::uint16_t kOldFlags = 0x7f;

std::uint32_t ReadVectorWord() {
  return __builtin_ia32_stmxcsr();
}

void SetVectorWord(std::uint32_t aWord) {
  if (aWord != ReadVectorWord()) __builtin_ia32_ldmxcsr(aWord);
}

bool IsOldUnitAtDefault() {
  std::uint16_t control = 0;
  std::uint16_t status = 0;
  __asm__ volatile("fnstcw %0\n\tfnstsw %1" : "=m"(control), "=m"(status));
  return control == kDefaultOldControl && (status & kOldFlags) == 0;
}

bool IsDefaultBesideVectorFlags() {
  return (ReadVectorWord() & ~kVectorFlags) == kDefaultVectorWord && IsOldUnitAtDefault();
}

#else

constexpr std::uint32_t kDefaultVectorWord = 0;

std::uint32_t ReadVectorWord() {
  return 0;
}

void SetVectorWord(std::uint32_t) {}

bool IsOldUnitAtDefault() {
  return false;
}

bool IsDefaultBesideVectorFlags() {
  return false;
}

#endif

}  // namespace

// The environment holds the control word of the vector unit too, with its traps, its rounding and its two modes of
// flushing denormals.
TFloatEnvironment::TFloatEnvironment()
    : fHostHasDefault(IsDefaultBesideVectorFlags()), fHostVectorWord(ReadVectorWord()) {
  if (fHostHasDefault) {
    SetVectorWord(kDefaultVectorWord);
  } else {
    std::fegetenv(&fHostEnvironment);
    std::fesetenv(FE_DFL_ENV);
  }
}

TFloatEnvironment::~TFloatEnvironment() {
  if (fHostHasDefault) {
    if (!IsOldUnitAtDefault()) std::fesetenv(FE_DFL_ENV);
    SetVectorWord(fHostVectorWord);
  } else {
    std::fesetenv(&fHostEnvironment);
  }
}

}  // namespace GeometryEngine
