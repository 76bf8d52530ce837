# The Debian packages that `cpack` makes in a build of preset package: scripts/package runs it.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tarnmedialib)
set(CPACK_PACKAGE_VENDOR TarnMediaLib)
set(CPACK_PACKAGE_CONTACT "TarnMediaLib <dev@tarn.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGING_INSTALL_PREFIX "${CMAKE_INSTALL_PREFIX}")
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL library dev tools doc)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# The soname's number is part of the name, so that two majors can be installed side by side.
set(library_package libtarnmedialib${PROJECT_VERSION_MAJOR})
set(same_version "${library_package} (= ${PROJECT_VERSION})")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_RECOMMENDS frei0r-plugins)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION "The shared library.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME libtarnmedialib-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "${same_version}, libboost-dev (>= 1.74)")
set(CPACK_COMPONENT_DEV_DESCRIPTION "Headers, the CMake package and the pkg-config file.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME tarnmedialib-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION video)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${same_version}")
set(CPACK_DEBIAN_TOOLS_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}/src")
set(CPACK_COMPONENT_TOOLS_DESCRIPTION "The command tarn: probe media files, run and draw edit scripts.")

set(CPACK_DEBIAN_DOC_PACKAGE_NAME libtarnmedialib-doc)
set(CPACK_DEBIAN_DOC_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOC_PACKAGE_ARCHITECTURE all)
set(CPACK_COMPONENT_DOC_DESCRIPTION "Guide, reference and example programs.")

include(CPack)
