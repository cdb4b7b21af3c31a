# SPDX-License-Identifier: MIT
# What is installed, in three components: runtime (the libraries), development (headers, CMake package, pkg-config file) and viewer.
# find_package(nbManipulator) gives nbm::nbManipulator; pkg-config knows the name nbManipulator. With Qt 6 both names end with -qt6.
include(CMakePackageConfigHelpers)

set(NBM_NAME nbManipulator${NB_SUFFIX})
set(NBM_HEADERS ${CMAKE_INSTALL_INCLUDEDIR}/${NBM_NAME})
set(NBM_PACKAGE ${CMAKE_INSTALL_LIBDIR}/cmake/${NBM_NAME})
set(NBM_SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
# Debian names packages of libraries after their SONAME.
set(NBM_RUNTIME_PACKAGE libnbmanipulator${NBM_SOVERSION})
if(NB_SUFFIX)
    set(NBM_RUNTIME_PACKAGE libnbmanipulator${NB_SUFFIX}-${NBM_SOVERSION})
endif()
set(NBM_DEVELOPMENT_PACKAGE libnbmanipulator${NB_SUFFIX}-dev)

# Compresses a file, the same whenever it is done.
find_program(NBM_GZIP gzip REQUIRED)
function(nb_compress source target)
    execute_process(COMMAND ${NBM_GZIP} -9nc ${source} OUTPUT_FILE ${target} COMMAND_ERROR_IS_FATAL ANY)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
endfunction()

# == Libraries
install(TARGETS nbManipulator nbplatform EXPORT nbManipulatorTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
        INCLUDES DESTINATION ${NBM_HEADERS})
set_target_properties(nbManipulator PROPERTIES OUTPUT_NAME nbManipulator${NB_SUFFIX})
set_target_properties(nbplatform PROPERTIES OUTPUT_NAME nbplatform${NB_SUFFIX})
set_target_properties(nbManipulator nbplatform PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${NBM_SOVERSION})
# A system OpenSG may lie where the loader does not look.
set_target_properties(nbManipulator nbplatform PROPERTIES INSTALL_RPATH_USE_LINK_PATH ON)
# In /usr the loader finds the libraries, and packages may name no path.
if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    set_target_properties(nbManipulator nbplatform PROPERTIES INSTALL_RPATH "$ORIGIN")
endif()

# == Headers. Of the library: the classes, the modes of their handles, and what a manipulator of one's own is made of (course, handles,
# drag). What lies in a folder "detail" of the platform is not for users, nor are the parts of the renderer.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/manipulator DESTINATION ${NBM_HEADERS} COMPONENT development
        FILES_MATCHING REGEX "/manipulator/[^/]*\\.h$" REGEX "/manipulator/(course|drag|handles)/[^/]*\\.h$" REGEX "(Modes|MaterialComponent|PictureSurface|TextureGizmo|AnchoredGizmo)\\.h$"
        PATTERN "scene" EXCLUDE PATTERN "match" EXCLUDE)
install(FILES ${PROJECT_BINARY_DIR}/generated/manipulator/nbManipulatorExport.h DESTINATION ${NBM_HEADERS}/manipulator
        COMPONENT development)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/modules DESTINATION ${NBM_HEADERS} COMPONENT development
        FILES_MATCHING PATTERN "*.h")
install(DIRECTORY ${PROJECT_SOURCE_DIR}/platform/ DESTINATION ${NBM_HEADERS} COMPONENT development
        FILES_MATCHING PATTERN "*.h" PATTERN "detail" EXCLUDE REGEX "/nbOpenSGRenderAction/[A-Z][^/]*$" EXCLUDE)
# The scene graph's own headers with the bundled one alone, and of the glue what compiles with this one.
if(NBMANIPULATOR_OPENSG STREQUAL "system")
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/opensg/glue/ DESTINATION ${NBM_HEADERS} COMPONENT development
            FILES_MATCHING PATTERN "*.h" PATTERN "*Bundled.h" EXCLUDE)
    install(FILES ${PROJECT_SOURCE_DIR}/opensg/SystemOpenSG.cmake DESTINATION ${NBM_PACKAGE} COMPONENT development)
    get_filename_component(NBM_OPENSG_LIBRARIES ${OPENSG_SYSTEM_LIBRARY} DIRECTORY)
    set(NBM_PC_LIBS " -L${NBM_OPENSG_LIBRARIES} -Wl,-rpath,${NBM_OPENSG_LIBRARIES} -lOSGSystem -lOSGBase")
    set(NBM_PC_CFLAGS " -DNBMANIPULATOR_SYSTEM_OPENSG -isystem ${OPENSG_INCLUDE_DIR} -isystem ${OPENSG_INCLUDE_DIR}/OpenSG -Wno-narrowing -Wno-deprecated")
else()
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/opensg/include/ ${PROJECT_SOURCE_DIR}/opensg/glue/
            DESTINATION ${NBM_HEADERS} COMPONENT development FILES_MATCHING PATTERN "*.h" PATTERN "*System.h" EXCLUDE)
endif()

# == CMake package and pkg-config file
install(EXPORT nbManipulatorTargets NAMESPACE nbm:: DESTINATION ${NBM_PACKAGE} COMPONENT development)
list(JOIN NB_QT_COMPONENTS " " NBM_QT_COMPONENTS)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/nbManipulatorConfig.cmake.in
    ${PROJECT_BINARY_DIR}/${NBM_NAME}Config.cmake INSTALL_DESTINATION ${NBM_PACKAGE})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/${NBM_NAME}ConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/${NBM_NAME}Config.cmake
              ${PROJECT_BINARY_DIR}/${NBM_NAME}ConfigVersion.cmake
        DESTINATION ${NBM_PACKAGE} COMPONENT development)
list(TRANSFORM NB_QT_COMPONENTS REPLACE "(.+)" "${NB_QT}\\1 >= ${NB_QT_VERSION}" OUTPUT_VARIABLE NBM_QT_MODULES)
list(JOIN NBM_QT_MODULES ", " NBM_QT_MODULES)
# Written while installing, so that a prefix chosen then is the one named in it.
install(CODE "set(CMAKE_INSTALL_LIBDIR \"${CMAKE_INSTALL_LIBDIR}\")
set(CMAKE_INSTALL_INCLUDEDIR \"${CMAKE_INSTALL_INCLUDEDIR}\")
set(NBM_PC_LIBS \"${NBM_PC_LIBS}\")
set(NBM_PC_CFLAGS \"${NBM_PC_CFLAGS}\")
set(PROJECT_DESCRIPTION \"${PROJECT_DESCRIPTION}\")
set(PROJECT_VERSION \"${PROJECT_VERSION}\")
set(NB_SUFFIX \"${NB_SUFFIX}\")
set(NBM_QT_MODULES \"${NBM_QT_MODULES}\")
configure_file(\"${CMAKE_CURRENT_LIST_DIR}/nbManipulator.pc.in\"
    \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}/pkgconfig/${NBM_NAME}.pc\" @ONLY)"
    COMPONENT development)

# == Manual
set(NBM_DOCUMENTS ${CMAKE_INSTALL_DATAROOTDIR}/doc)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/ DESTINATION ${NBM_DOCUMENTS}/${NBM_DEVELOPMENT_PACKAGE}/docs COMPONENT development
        FILES_MATCHING PATTERN "*.md" PATTERN "*.png")
install(FILES ${PROJECT_SOURCE_DIR}/ARCHITECTURE.md ${PROJECT_SOURCE_DIR}/CHANGELOG.md ${PROJECT_SOURCE_DIR}/CONTRIBUTING.md
              ${PROJECT_SOURCE_DIR}/README.md
        DESTINATION ${NBM_DOCUMENTS}/${NBM_DEVELOPMENT_PACKAGE} COMPONENT development)
install(FILES ${PROJECT_SOURCE_DIR}/benchmarks/README.md DESTINATION ${NBM_DOCUMENTS}/${NBM_DEVELOPMENT_PACKAGE}/benchmarks
        COMPONENT development)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples DESTINATION ${NBM_DOCUMENTS}/${NBM_DEVELOPMENT_PACKAGE} COMPONENT development)
# == Viewer with its sessions and their models
if(NBMANIPULATOR_VIEWER)
    if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
        file(RELATIVE_PATH NBM_LIBRARIES_FROM_PROGRAM /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
        set_target_properties(nbviewer PROPERTIES INSTALL_RPATH "$ORIGIN/${NBM_LIBRARIES_FROM_PROGRAM}")
    endif()
    set_target_properties(nbviewer PROPERTIES INSTALL_RPATH_USE_LINK_PATH ON)
    install(TARGETS nbviewer RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT viewer)
    install(TARGETS nbmodelreader RUNTIME DESTINATION ${CMAKE_INSTALL_LIBEXECDIR}/nbviewer COMPONENT viewer)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/viewer/models ${PROJECT_SOURCE_DIR}/viewer/sessions
            DESTINATION ${CMAKE_INSTALL_DATADIR}/nbviewer COMPONENT viewer PATTERN "*.py" EXCLUDE)
    install(DIRECTORY $<TARGET_FILE_DIR:nbviewer>/../viewer/manual/ DESTINATION ${NBM_DOCUMENTS}/nbviewer/html
            COMPONENT viewer)
    # What desktops know it by, and by which files it is started.
    set(NBM_DESKTOP ${PROJECT_SOURCE_DIR}/viewer/desktop)
    install(FILES ${NBM_DESKTOP}/nbviewer.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT viewer)
    install(FILES ${NBM_DESKTOP}/nbviewer.svg
            DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT viewer)
    install(FILES ${NBM_DESKTOP}/nbviewer.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages COMPONENT viewer)
    nb_compress(${NBM_DESKTOP}/nbviewer.1 ${PROJECT_BINARY_DIR}/nbviewer.1.gz)
    install(FILES ${PROJECT_BINARY_DIR}/nbviewer.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT viewer)
endif()

include(NbPackage)
