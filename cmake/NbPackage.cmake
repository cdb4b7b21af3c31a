# SPDX-License-Identifier: MIT
# Packages: cpack in the build folder, or ./nb package. What is configured for /usr becomes Debian packages, one for each component;
# anything else one archive, which runs wherever it is unpacked.
set(CPACK_PACKAGE_NAME nbmanipulator${NB_SUFFIX})
set(CPACK_PACKAGE_VENDOR "nbManipulator")
set(CPACK_PACKAGE_CONTACT "nbManipulator developers <developers@nbmanipulator.invalid>")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_COMPONENTS_ALL runtime development)
if(NBMANIPULATOR_VIEWER)
    list(APPEND CPACK_COMPONENTS_ALL viewer)
endif()
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${NBM_DOCUMENTS}/${NBM_NAME} COMPONENT runtime)
    set(CPACK_GENERATOR TGZ)
    include(CPack)
    return()
endif()

# == What Debian wants in every package: licence, changes
set(NBM_DEBIAN ${CMAKE_CURRENT_LIST_DIR}/debian)
set(NBM_VIEWER_PACKAGE nbviewer${NB_SUFFIX})
# Older than any that Debian makes of this version itself.
set(CPACK_DEBIAN_PACKAGE_RELEASE 0local1)
string(TIMESTAMP NBM_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(${NBM_DEBIAN}/changelog.in ${PROJECT_BINARY_DIR}/debian/changelog @ONLY)
nb_compress(${PROJECT_BINARY_DIR}/debian/changelog ${PROJECT_BINARY_DIR}/debian/changelog.Debian.gz)
# In a field of Debian lines are indented, and empty ones a full stop.
file(READ ${PROJECT_SOURCE_DIR}/LICENSE NBM_LICENSE)
string(REGEX REPLACE "([^\n]+)" " \\1" NBM_LICENSE "${NBM_LICENSE}")
string(REPLACE "\n\n" "\n .\n" NBM_LICENSE "${NBM_LICENSE}")
string(REGEX REPLACE "\n$" "" NBM_LICENSE "${NBM_LICENSE}")
configure_file(${NBM_DEBIAN}/copyright.in ${PROJECT_BINARY_DIR}/debian/copyright @ONLY)
foreach(component ${CPACK_COMPONENTS_ALL})
    string(TOUPPER ${component} upper)
    install(FILES ${PROJECT_BINARY_DIR}/debian/copyright ${PROJECT_BINARY_DIR}/debian/changelog.Debian.gz
            DESTINATION ${NBM_DOCUMENTS}/${NBM_${upper}_PACKAGE} COMPONENT ${component})
    set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${NBM_${upper}_PACKAGE})
endforeach()

# == The packages
set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS runtime)
set(CPACK_COMPONENT_VIEWER_DEPENDS runtime)
# The first line of each description is the summary.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(NBM_ABOUT "Handles are drawn over the scene of a desktop program; dragging them moves,
turns and scales objects, and places textures, cameras, pivots, clip planes
and plates on the screen. The scene graph has the interface of OpenSG 1.8.")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${NBM_DEBIAN}/triggers)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "interactive 3D manipulators for Qt ${NBMANIPULATOR_QT} (libraries)
${NBM_ABOUT}
.
This package has the libraries that programs need.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "qtbase5-dev, libboost-dev")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "interactive 3D manipulators for Qt ${NBMANIPULATOR_QT} (development)
${NBM_ABOUT}
.
This package has headers, CMake package, manual and examples.")

set(CPACK_DEBIAN_VIEWER_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_VIEWER_PACKAGE_RECOMMENDS "qttranslations5-l10n")
set(CPACK_DEBIAN_VIEWER_DESCRIPTION "viewer that arranges, projects and places things in a 3D scene
It opens models (OBJ, PLY, STL, glTF, 3DS), edits them with handles that are
dragged in the view, places pictures on them, matches the perspective of
photographs, and plays sessions that are written as text.")

if(NBMANIPULATOR_QT STREQUAL "6")
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "qt6-base-dev, libqt6opengl6-dev, libboost-dev")
    set(CPACK_DEBIAN_VIEWER_PACKAGE_RECOMMENDS "qt6-translations-l10n")
    # Both have the program nbviewer.
    set(CPACK_DEBIAN_VIEWER_PACKAGE_CONFLICTS nbviewer)
    set(CPACK_DEBIAN_VIEWER_PACKAGE_PROVIDES nbviewer)
endif()

set(CPACK_POST_BUILD_SCRIPTS ${NBM_DEBIAN}/DropScripts.cmake)
include(CPack)
