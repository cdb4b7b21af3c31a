# SPDX-License-Identifier: MIT
# The target nbm::opensg for an OpenSG 1.8 that is installed: CMAKE_PREFIX_PATH or OpenSG_ROOT says where. The installed CMake package
# reads this file too.

find_path(OPENSG_INCLUDE_DIR OpenSG/OSGFieldContainerPtr.h PATHS ${OpenSG_ROOT} PATH_SUFFIXES include)
find_library(OPENSG_BASE_LIBRARY OSGBase PATHS ${OpenSG_ROOT} PATH_SUFFIXES lib lib/opt)
find_library(OPENSG_SYSTEM_LIBRARY OSGSystem PATHS ${OpenSG_ROOT} PATH_SUFFIXES lib lib/opt)
if(NOT OPENSG_INCLUDE_DIR OR NOT OPENSG_BASE_LIBRARY OR NOT OPENSG_SYSTEM_LIBRARY)
    message(FATAL_ERROR "no OpenSG 1.8 found (set OpenSG_ROOT to its prefix)")
endif()
find_package(OpenGL REQUIRED)

add_library(nbm::opensg INTERFACE IMPORTED GLOBAL)
# The second directory is for OpenSG's own headers, which include each other by bare name.
target_include_directories(nbm::opensg SYSTEM INTERFACE ${OPENSG_INCLUDE_DIR} ${OPENSG_INCLUDE_DIR}/OpenSG)
target_link_libraries(nbm::opensg INTERFACE ${OPENSG_SYSTEM_LIBRARY} ${OPENSG_BASE_LIBRARY} OpenGL::GL OpenGL::GLU)
target_compile_definitions(nbm::opensg INTERFACE NBMANIPULATOR_SYSTEM_OPENSG)
# One of OpenSG's headers narrows, and some of it is deprecated by today's compilers.
target_compile_options(nbm::opensg INTERFACE -Wno-narrowing -Wno-deprecated)
