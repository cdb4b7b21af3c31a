# SPDX-License-Identifier: MIT
# What is installed, in three components: runtime (the libraries), development (headers, CMake package, pkg-config file) and viewer.
# find_package(nbManipulator) gives nbm::nbManipulator; pkg-config knows the name nbManipulator.
include(CMakePackageConfigHelpers)

set(NBM_HEADERS ${CMAKE_INSTALL_INCLUDEDIR}/nbManipulator)
set(NBM_PACKAGE ${CMAKE_INSTALL_LIBDIR}/cmake/nbManipulator)

# == Libraries
install(TARGETS nbManipulator nbplatform EXPORT nbManipulatorTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
        INCLUDES DESTINATION ${NBM_HEADERS})
set_target_properties(nbManipulator nbplatform PROPERTIES
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}
    INSTALL_RPATH "$ORIGIN")

# == Headers. Of the library: the classes, the modes of their handles, and what a manipulator of one's own is made of (course, handles,
# drag). What lies in a folder "detail" of the platform is not for users, nor are the parts of the renderer.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/manipulator DESTINATION ${NBM_HEADERS} COMPONENT development
        FILES_MATCHING REGEX "/manipulator/[^/]*\\.h$" REGEX "/manipulator/(course|drag|handles)/[^/]*\\.h$" REGEX "(Modes|MaterialComponent|PlanarSettings|TextureGizmo)\\.h$"
        PATTERN "scene" EXCLUDE PATTERN "match" EXCLUDE)
install(FILES ${PROJECT_BINARY_DIR}/generated/manipulator/nbManipulatorExport.h DESTINATION ${NBM_HEADERS}/manipulator
        COMPONENT development)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/modules DESTINATION ${NBM_HEADERS} COMPONENT development
        FILES_MATCHING PATTERN "*.h")
install(DIRECTORY ${PROJECT_SOURCE_DIR}/platform/ DESTINATION ${NBM_HEADERS} COMPONENT development
        FILES_MATCHING PATTERN "*.h" PATTERN "detail" EXCLUDE REGEX "/nbOpenSGRenderAction/[A-Z][^/]*$" EXCLUDE)
if(NBMANIPULATOR_OPENSG STREQUAL "bundled")
    set(NBM_OTHER_GLUE FieldContainerGlueSystem.h)
else()
    set(NBM_OTHER_GLUE FieldContainerGlueBundled.h)
endif()
install(DIRECTORY ${PROJECT_SOURCE_DIR}/opensg/include/ ${PROJECT_SOURCE_DIR}/opensg/glue/
        DESTINATION ${NBM_HEADERS} COMPONENT development FILES_MATCHING PATTERN "*.h" PATTERN ${NBM_OTHER_GLUE} EXCLUDE)

# == CMake package and pkg-config file
install(EXPORT nbManipulatorTargets NAMESPACE nbm:: DESTINATION ${NBM_PACKAGE} COMPONENT development)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/nbManipulatorConfig.cmake.in
    ${PROJECT_BINARY_DIR}/nbManipulatorConfig.cmake INSTALL_DESTINATION ${NBM_PACKAGE})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/nbManipulatorConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/nbManipulatorConfig.cmake
              ${PROJECT_BINARY_DIR}/nbManipulatorConfigVersion.cmake
        DESTINATION ${NBM_PACKAGE} COMPONENT development)
# Written while installing, so that a prefix chosen then is the one named in it.
install(CODE "set(CMAKE_INSTALL_LIBDIR \"${CMAKE_INSTALL_LIBDIR}\")
set(CMAKE_INSTALL_INCLUDEDIR \"${CMAKE_INSTALL_INCLUDEDIR}\")
set(PROJECT_DESCRIPTION \"${PROJECT_DESCRIPTION}\")
set(PROJECT_VERSION \"${PROJECT_VERSION}\")
configure_file(\"${CMAKE_CURRENT_LIST_DIR}/nbManipulator.pc.in\"
    \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}/pkgconfig/nbManipulator.pc\" @ONLY)"
    COMPONENT development)

# == Manual and licence
set(NBM_DOCUMENTS ${CMAKE_INSTALL_DATAROOTDIR}/doc)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/ DESTINATION ${NBM_DOCUMENTS}/libnbmanipulator-dev/docs COMPONENT development
        FILES_MATCHING PATTERN "*.md" PATTERN "*.png")
install(FILES ${PROJECT_SOURCE_DIR}/ARCHITECTURE.md ${PROJECT_SOURCE_DIR}/CHANGELOG.md ${PROJECT_SOURCE_DIR}/CONTRIBUTING.md
              ${PROJECT_SOURCE_DIR}/README.md
        DESTINATION ${NBM_DOCUMENTS}/libnbmanipulator-dev COMPONENT development)
install(FILES ${PROJECT_SOURCE_DIR}/benchmarks/README.md DESTINATION ${NBM_DOCUMENTS}/libnbmanipulator-dev/benchmarks
        COMPONENT development)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples DESTINATION ${NBM_DOCUMENTS}/libnbmanipulator-dev COMPONENT development)
# Debian packages have their licence under this name.
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE RENAME copyright
        DESTINATION ${NBM_DOCUMENTS}/libnbmanipulator COMPONENT runtime)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE RENAME copyright
        DESTINATION ${NBM_DOCUMENTS}/libnbmanipulator-dev COMPONENT development)

# == Viewer with its sessions and their models
if(NBMANIPULATOR_VIEWER)
    file(RELATIVE_PATH NBM_LIBRARIES_FROM_PROGRAM /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
    set_target_properties(nbviewer PROPERTIES INSTALL_RPATH "$ORIGIN/${NBM_LIBRARIES_FROM_PROGRAM}")
    install(TARGETS nbviewer RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT viewer)
    install(TARGETS nbmodelreader RUNTIME DESTINATION ${CMAKE_INSTALL_LIBEXECDIR}/nbviewer COMPONENT viewer)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/viewer/models ${PROJECT_SOURCE_DIR}/viewer/sessions
            DESTINATION ${CMAKE_INSTALL_DATADIR}/nbviewer COMPONENT viewer PATTERN "*.py" EXCLUDE)
    # What desktops know it by, and by which files it is started.
    set(NBM_DESKTOP ${PROJECT_SOURCE_DIR}/viewer/desktop)
    install(FILES ${NBM_DESKTOP}/nbviewer.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT viewer)
    install(FILES ${NBM_DESKTOP}/nbviewer.svg
            DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT viewer)
    install(FILES ${NBM_DESKTOP}/nbviewer.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages COMPONENT viewer)
    install(FILES ${PROJECT_SOURCE_DIR}/LICENSE RENAME copyright
            DESTINATION ${NBM_DOCUMENTS}/nbviewer COMPONENT viewer)
endif()

# == Packages: cpack in the build folder, or ./nb package
set(CPACK_PACKAGE_NAME nbmanipulator)
set(CPACK_PACKAGE_VENDOR "nbManipulator")
set(CPACK_PACKAGE_CONTACT "the nbManipulator developers <nbmanipulator@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${PROJECT_DESCRIPTION})
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_GENERATOR TGZ DEB)
set(CPACK_COMPONENTS_ALL runtime development)
if(NBMANIPULATOR_VIEWER)
    list(APPEND CPACK_COMPONENTS_ALL viewer)
endif()
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
# One archive with everything, one Debian package for each component.
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libnbmanipulator)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libnbmanipulator-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "qtbase5-dev, libboost-dev")
set(CPACK_DEBIAN_VIEWER_PACKAGE_NAME nbviewer)
set(CPACK_DEBIAN_VIEWER_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_VIEWER_PACKAGE_RECOMMENDS "qttranslations5-l10n")
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS runtime)
set(CPACK_COMPONENT_VIEWER_DEPENDS runtime)
include(CPack)
