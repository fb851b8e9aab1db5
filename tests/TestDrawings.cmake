# Drawings by chance, geometry written as text, and answers as records: for tests and fuzzers alike.
include_guard(GLOBAL)
find_package(GTest REQUIRED)

set(test_drawings_sources
  properties/RandomDrawings.cpp properties/TwinDrawings.cpp properties/TwinKinds.cpp properties/TwinRecord.cpp
  support/Geometry.cpp support/GeometryText.cpp)
list(TRANSFORM test_drawings_sources PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
add_library(test_drawings STATIC ${test_drawings_sources})
target_include_directories(test_drawings PUBLIC ${PROJECT_SOURCE_DIR})
target_link_libraries(test_drawings PUBLIC plain_twin GTest::gmock)
# The comparison with the plain twin runs millions of drawings at times.
target_compile_options(test_drawings PRIVATE $<$<CONFIG:Release>:-O2>)
