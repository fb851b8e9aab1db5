# Flags of every target of the project: the language, the warnings, and the arithmetic that gives the same bits everywhere.

# A product and a sum are never one step, whose rounding is another. What is computed in vain, for one side of a choice
# that is not taken, may raise flags, which is what lets loops take several numbers at once: who runs with traps holds a
# guard that masks them (TFloatEnvironment).
add_library(geometryengine_flags INTERFACE)
target_compile_features(geometryengine_flags INTERFACE cxx_std_20)
target_compile_options(geometryengine_flags INTERFACE
  -ffp-contract=off -fno-trapping-math
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wdouble-promotion -Wold-style-cast
  -Wcast-align -Wcast-qual -Wnon-virtual-dtor -Woverloaded-virtual -Wformat=2 -Wundef -Wswitch-enum
  -Wimplicit-fallthrough -Wmissing-declarations
  $<$<CXX_COMPILER_ID:GNU>:-Wuseless-cast -Wlogical-op -Wduplicated-cond -Wduplicated-branches>
  # g++ 12 warns of overlapping copies inside its own std::string once that is inlined.
  $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>)
if(GEOMETRYENGINE_WARNINGS_AS_ERRORS)
  target_compile_options(geometryengine_flags INTERFACE -Werror)
endif()
if(GEOMETRYENGINE_SANITIZE)
  target_compile_options(geometryengine_flags INTERFACE
    -D_GLIBCXX_ASSERTIONS -fsanitize=${GEOMETRYENGINE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(geometryengine_flags INTERFACE -fsanitize=${GEOMETRYENGINE_SANITIZE})
endif()
if(GEOMETRYENGINE_FUZZ)
  target_compile_options(geometryengine_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
