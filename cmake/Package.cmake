# What `cpack` makes: a Debian package with the library, its headers and xsec. The binary of xsec is under the GPL, as it
# links dxflib; the sources are under the MIT licence.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME geometryengine)
set(CPACK_PACKAGE_VENDOR "GeometryEngine developers")
set(CPACK_PACKAGE_CONTACT "GeometryEngine developers <geometryengine@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${PROJECT_DESCRIPTION})
set(CPACK_PACKAGE_DESCRIPTION
    "The library turns the loose lines and arcs of a drawing into closed regions,\nnests, measures, labels and names them. xsec reads a DXF drawing and writes\nits regions as table, picture, JSON, CSV, DXF and input for meshers.")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR})
include(CPack)
