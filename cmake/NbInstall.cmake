# SPDX-License-Identifier: MIT
# Headers, libraries and the CMake package: find_package(nbManipulator) gives nbm::nbManipulator.
include(CMakePackageConfigHelpers)

set(NBM_HEADERS ${CMAKE_INSTALL_INCLUDEDIR}/nbManipulator)
set(NBM_PACKAGE ${CMAKE_INSTALL_LIBDIR}/cmake/nbManipulator)

install(TARGETS nbManipulator nbplatform EXPORT nbManipulatorTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        INCLUDES DESTINATION ${NBM_HEADERS})
set_target_properties(nbManipulator nbplatform PROPERTIES
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
    INSTALL_RPATH "$ORIGIN")

install(DIRECTORY ${PROJECT_SOURCE_DIR}/manipulator DESTINATION ${NBM_HEADERS}
        FILES_MATCHING PATTERN "*.h" PATTERN "detail" EXCLUDE
        PATTERN "PlanarTextureManipulatorState.h" EXCLUDE
        PATTERN "UniversalTransformManipulator2Drag.h" EXCLUDE
        PATTERN "UniversalTransformManipulator2Handles.h" EXCLUDE)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/modules DESTINATION ${NBM_HEADERS}
        FILES_MATCHING PATTERN "*.h")
install(DIRECTORY ${PROJECT_SOURCE_DIR}/platform/ DESTINATION ${NBM_HEADERS}
        FILES_MATCHING PATTERN "*.h" PATTERN "detail" EXCLUDE)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/opensg/include/ ${PROJECT_SOURCE_DIR}/opensg/glue/
        DESTINATION ${NBM_HEADERS} FILES_MATCHING PATTERN "*.h")

install(EXPORT nbManipulatorTargets NAMESPACE nbm:: DESTINATION ${NBM_PACKAGE})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/nbManipulatorConfig.cmake.in
    ${PROJECT_BINARY_DIR}/nbManipulatorConfig.cmake INSTALL_DESTINATION ${NBM_PACKAGE})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/nbManipulatorConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/nbManipulatorConfig.cmake
              ${PROJECT_BINARY_DIR}/nbManipulatorConfigVersion.cmake
        DESTINATION ${NBM_PACKAGE})
