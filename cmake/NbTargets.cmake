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

# One test program that needs OpenGL or a window: nb_gl_test(name [PARTS n] SOURCES ... LIBRARIES ...). It runs on a virtual
# X server of its own, as one ctest test, or as n that can run at the same time.
function(nb_gl_test name)
    cmake_parse_arguments(NB "" "PARTS" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${NB_SOURCES})
    nb_warnings(${name})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE ${NB_LIBRARIES} GTest::gtest GTest::gmock)
    set(command ${PROJECT_SOURCE_DIR}/tests/support/with-display.sh $<TARGET_FILE:${name}>)
    if(NOT NB_PARTS)
        add_test(NAME ${name} COMMAND ${command})
        return()
    endif()
    math(EXPR last "${NB_PARTS} - 1")
    foreach(part RANGE ${last})
        add_test(NAME ${name}.${part} COMMAND ${command})
        set_tests_properties(${name}.${part} PROPERTIES
            ENVIRONMENT "GTEST_TOTAL_SHARDS=${NB_PARTS};GTEST_SHARD_INDEX=${part}" COST 100)
    endforeach()
endfunction()
