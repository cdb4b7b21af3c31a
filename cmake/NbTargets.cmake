# SPDX-License-Identifier: MIT
# What all targets of the project share: ccache, warnings.

# Off where lines are counted: an object out of the cache may know the line numbers of an earlier text.
find_program(NBMANIPULATOR_CCACHE ccache)
if(NBMANIPULATOR_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${NBMANIPULATOR_CCACHE})
endif()

# Nobody replaces functions of our shared libraries one by one, so calls inside a library may be inlined.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-fno-semantic-interposition)
endif()

# Warnings of the house style for one target of our own.
function(nb_warnings target)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
        $<$<BOOL:${NBMANIPULATOR_WERROR}>:-Werror>)
endfunction()

# One test program: nb_test(name SOURCES ... LIBRARIES ...). Every case in it becomes a ctest test of its own.
function(nb_test name)
    cmake_parse_arguments(NB "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${NB_SOURCES})
    nb_warnings(${name})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE ${NB_LIBRARIES} GTest::gtest GTest::gmock)
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST)
    set_property(GLOBAL APPEND PROPERTY NB_TESTS_WITHOUT_WINDOW ${name})
endfunction()

# One test program that needs OpenGL or a window, as one ctest test: nb_gl_test(name SOURCES ... LIBRARIES ...).
# Without a display it runs on a virtual X server.
function(nb_gl_test name)
    cmake_parse_arguments(NB "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${NB_SOURCES})
    nb_warnings(${name})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE ${NB_LIBRARIES} GTest::gtest GTest::gmock)
    add_test(NAME ${name} COMMAND ${PROJECT_SOURCE_DIR}/tests/support/with-display.sh $<TARGET_FILE:${name}>)
endfunction()
