# What `cmake --install` lays down: the public headers, the library, and the files by which CMake's find_package and
# pkg-config find them. The tree can be moved as a whole afterwards.

include(CMakePackageConfigHelpers)

install(TARGETS GeometryEngine EXPORT GeometryEngineTargets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
if(TARGET xsec)
  file(RELATIVE_PATH library_from_program ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
  set_target_properties(xsec PROPERTIES INSTALL_RPATH "$ORIGIN/${library_from_program}")
  install(TARGETS xsec RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(FILES ${PROJECT_SOURCE_DIR}/xsec/man/xsec.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES ${PROJECT_SOURCE_DIR}/xsec/completion/xsec.bash
          DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME xsec)
  install(FILES ${PROJECT_SOURCE_DIR}/xsec/completion/_xsec DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions)
  install(FILES ${PROJECT_SOURCE_DIR}/xsec/schema/regions.schema.json DESTINATION ${CMAKE_INSTALL_DATADIR}/xsec)
endif()

install(DIRECTORY ${PROJECT_SOURCE_DIR}/GeometryEngine DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
        FILES_MATCHING PATTERN "*.h" PATTERN detail EXCLUDE)
if(NOT GEOMETRYENGINE_HOST_ROOT STREQUAL PROJECT_SOURCE_DIR)  # what the host brings stands in the place of ours
  install(DIRECTORY ${GEOMETRYENGINE_HOST_ROOT}/GeometryEngine/host
          DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/GeometryEngine FILES_MATCHING PATTERN "*.h")
endif()
install(FILES ${PROJECT_BINARY_DIR}/generated/GeometryEngine/Export.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/GeometryEngine)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/GeometryEngine)
install(EXPORT GeometryEngineTargets NAMESPACE GeometryEngine:: DESTINATION ${package_dir})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/GeometryEngineConfig.cmake.in
  ${PROJECT_BINARY_DIR}/package/GeometryEngineConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/package/GeometryEngineConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/package/GeometryEngineConfig.cmake
              ${PROJECT_BINARY_DIR}/package/GeometryEngineConfigVersion.cmake
        DESTINATION ${package_dir})

# The .pc file names its prefix by its own place, so that it follows a tree that is installed below another prefix or
# moved. Folders given as absolute paths do not move, and are written as they are.
if(IS_ABSOLUTE ${CMAKE_INSTALL_LIBDIR})
  set(pc_prefix ${CMAKE_INSTALL_PREFIX})
  set(pc_libdir ${CMAKE_INSTALL_LIBDIR})
else()
  file(RELATIVE_PATH prefix_from_pc ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
  string(REGEX REPLACE "/$" "" prefix_from_pc ${prefix_from_pc})
  set(pc_prefix "\${pcfiledir}/${prefix_from_pc}")
  set(pc_libdir "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
endif()
if(IS_ABSOLUTE ${CMAKE_INSTALL_INCLUDEDIR})
  set(pc_includedir ${CMAKE_INSTALL_INCLUDEDIR})
else()
  set(pc_includedir "\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}")
endif()
configure_file(${PROJECT_SOURCE_DIR}/cmake/geometryengine.pc.in ${PROJECT_BINARY_DIR}/package/geometryengine.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/package/geometryengine.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
