# The shared library. A host that brings its own settings store and base package sets GEOMETRYENGINE_HOST_ROOT to a
# folder that holds GeometryEngine/host/ with the same headers; what it leaves out is the library's own.

include(GenerateExportHeader)
include(GNUInstallDirs)

file(GLOB_RECURSE geometryengine_sources CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}
     ${PROJECT_SOURCE_DIR}/GeometryEngine/*.cpp)
list(FILTER geometryengine_sources EXCLUDE REGEX "^GeometryEngine/host/")

# Sets `result` to the given files of the library and all those that include them, directly or through others.
# (Found out when CMake configures, as ./check has it do each time.)
function(geometryengine_find_dependents result)
  file(GLOB_RECURSE files RELATIVE ${PROJECT_SOURCE_DIR}
       ${PROJECT_SOURCE_DIR}/GeometryEngine/*.h ${PROJECT_SOURCE_DIR}/GeometryEngine/*.cpp)
  set(dependents ${ARGN})
  set(before)
  while(NOT dependents STREQUAL before)
    set(before ${dependents})
    string(JOIN "|" any ${dependents})
    foreach(file IN LISTS files)
      if(NOT file IN_LIST dependents)
        file(STRINGS ${PROJECT_SOURCE_DIR}/${file} found REGEX "^#include \"(${any})\"" LIMIT_COUNT 1)
        if(found)
          list(APPEND dependents ${file})
        endif()
      endif()
    endforeach()
  endwhile()
  set(${result} ${dependents} PARENT_SCOPE)
endfunction()

# Makes a shared library of the sources with the host package found below `host_root`. In a second library, for another
# host, what sees nothing of the files that this host brings is what the first one is made of.
function(geometryengine_add_library target host_root)
  set(host_sources)
  set(host_names)
  foreach(root IN ITEMS ${host_root} ${PROJECT_SOURCE_DIR})
    file(GLOB names CONFIGURE_DEPENDS RELATIVE ${root}/GeometryEngine/host ${root}/GeometryEngine/host/*.cpp)
    list(REMOVE_ITEM names ${host_names})
    list(APPEND host_names ${names})
    list(TRANSFORM names PREPEND ${root}/GeometryEngine/host/)
    list(APPEND host_sources ${names})
  endforeach()
  list(TRANSFORM geometryengine_sources PREPEND ${PROJECT_SOURCE_DIR}/ OUTPUT_VARIABLE sources)
  list(APPEND sources ${host_sources})
  if(TARGET GeometryEngine AND GEOMETRYENGINE_HOST_ROOT STREQUAL PROJECT_SOURCE_DIR)
    file(GLOB own_files CONFIGURE_DEPENDS RELATIVE ${host_root} ${host_root}/GeometryEngine/host/*)
    geometryengine_find_dependents(dependents ${own_files})
    string(JOIN "|" any ${dependents})
    list(FILTER sources INCLUDE REGEX "/(${any})$")
    list(APPEND sources $<FILTER:$<TARGET_OBJECTS:GeometryEngine>,EXCLUDE,/\(${any}\)\\.o$>)
  endif()
  add_library(${target} SHARED ${sources})
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:geometryengine_flags>)
  target_compile_features(${target} PUBLIC cxx_std_20)
  set_target_properties(${target} PROPERTIES
    CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})  # below 1.0 a minor version may break the interface
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/generated>)
  if(NOT host_root STREQUAL PROJECT_SOURCE_DIR)
    target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${host_root}>)
  endif()
  target_include_directories(${target} PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  target_compile_definitions(${target} PRIVATE GeometryEngine_EXPORTS)
  # Up to half the time of building would go into reading these, once a file.
  target_precompile_headers(${target} PRIVATE <algorithm> <cmath> <cstdint> <memory> <span> <string> <vector>)
  # Calls inside the library are its own: nobody replaces a function of it, so they need no detour by the linker's tables.
  target_compile_options(${target} PRIVATE -fno-semantic-interposition)
  target_link_options(${target} PRIVATE LINKER:--version-script=${PROJECT_SOURCE_DIR}/cmake/exports.map
                      LINKER:-Bsymbolic-functions)
  if(NOT GEOMETRYENGINE_SANITIZE)  # whose runtime is in the program, not in the library
    target_link_options(${target} PRIVATE LINKER:--no-undefined)
  endif()
  set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/exports.map)
endfunction()

set(GEOMETRYENGINE_HOST_ROOT ${PROJECT_SOURCE_DIR} CACHE PATH "Folder that holds GeometryEngine/host/")
geometryengine_add_library(GeometryEngine ${GEOMETRYENGINE_HOST_ROOT})
add_library(GeometryEngine::GeometryEngine ALIAS GeometryEngine)
generate_export_header(GeometryEngine
  EXPORT_MACRO_NAME GEOMETRYENGINE_API
  EXPORT_FILE_NAME ${PROJECT_BINARY_DIR}/generated/GeometryEngine/Export.h)
