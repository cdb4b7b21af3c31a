# SPDX-License-Identifier: MIT
# Installs the build into a fresh prefix and uses it as a stranger would: builds examples/ with find_package(nbManipulator) and checks what
# they print, and that the pages show them as they are; builds a program that drags a gizmo with pkg-config and runs it.

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE errors)
    if(NOT status EQUAL 0)
        list(JOIN ARGN " " call)
        message(FATAL_ERROR "${call}\nended with ${status}\n${output}${errors}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${SCRATCH}/prefix ${SCRATCH}/example)
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${SCRATCH}/prefix)

# == The programs of README and manual, by their CMake project
run(${CMAKE_COMMAND} -G Ninja -S ${SOURCE}/examples -B ${SCRATCH}/example -DCMAKE_BUILD_TYPE=Release
    -DCMAKE_PREFIX_PATH=${SCRATCH}/prefix -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_CXX_FLAGS=${FLAGS})
run(${CMAKE_COMMAND} --build ${SCRATCH}/example)
run(${SCRATCH}/example/first_gizmo)
if(NOT output STREQUAL "xaShape\n")
    message(FATAL_ERROR "the example printed \"${output}\" instead of xaShape")
endif()

# It has a manipulator of its own, drags it and checks what came of it.
run(${SCRATCH}/example/lift_gizmo)

file(READ ${SOURCE}/examples/FirstWindow.cpp program)
file(READ ${SOURCE}/README.md readme)
string(FIND "${readme}" "${program}" position)
if(position EQUAL -1)
    message(FATAL_ERROR "README.md does not show examples/FirstWindow.cpp as it is")
endif()

# == A drag, by the compiler alone
file(GLOB_RECURSE package ${SCRATCH}/prefix/nbManipulator${SUFFIX}.pc)
get_filename_component(packages ${package} DIRECTORY)
set(ENV{PKG_CONFIG_PATH} ${packages})
run(pkg-config --cflags nbManipulator${SUFFIX})
separate_arguments(cflags UNIX_COMMAND "${output}")
run(pkg-config --libs nbManipulator${SUFFIX})
separate_arguments(libs UNIX_COMMAND "${output}")
run(pkg-config --variable=libdir nbManipulator${SUFFIX})
string(STRIP "${output}" libdir)
separate_arguments(flags UNIX_COMMAND "-std=c++17 ${FLAGS}")  # not what clang 14 takes by itself
run(${COMPILER} ${flags} ${cflags} ${CMAKE_CURRENT_LIST_DIR}/drag/drag_gizmo.cpp -o ${SCRATCH}/drag_gizmo ${libs}
    -Wl,-rpath,${libdir})
run(${SCRATCH}/drag_gizmo)

# == Every header, behind those of X11 with their macros, which Qt's own must precede
run(pkg-config --variable=includedir nbManipulator${SUFFIX})
string(STRIP "${output}" includedir)
file(GLOB_RECURSE headers RELATIVE ${includedir} ${includedir}/*.h)
foreach(header FrameTargets.h FieldContainerGlue${OTHER}.h PickView.h)
    if("${headers}" MATCHES ${header})
        message(FATAL_ERROR "${header} is installed, which no program can use")
    endif()
endforeach()
list(TRANSFORM headers REPLACE "(.+)" "#include <\\1>" OUTPUT_VARIABLE lines)
list(JOIN lines "\n" lines)
file(WRITE ${SCRATCH}/all_headers.cpp "#include <QtCore/QtCore>
#include <QtGui/QtGui>
#include <QtWidgets/QtWidgets>
#include <boost/any.hpp>
#if __has_include(<X11/Xlib.h>)
#include <X11/Xlib.h>
#endif
#define None 0L
#define Bool int
#define Status int
#define CursorShape 0
#define KeyPress 2
${lines}
")
run(${COMPILER} ${flags} ${cflags} -fsyntax-only ${SCRATCH}/all_headers.cpp)

# == The manual leads nowhere that is not installed
set(documents ${SCRATCH}/prefix/share/doc/libnbmanipulator${SUFFIX}-dev)
file(GLOB pages ${documents}/*.md ${documents}/docs/*.md)
list(LENGTH pages count)
if(count LESS 10 OR NOT EXISTS ${documents}/examples/FirstWindow.cpp)
    message(FATAL_ERROR "only ${count} pages of the manual are installed")
endif()
foreach(page ${pages})
    get_filename_component(folder ${page} DIRECTORY)
    file(READ ${page} text)
    # Lists of CMake cannot hold brackets.
    string(REPLACE "](" "\t" text "${text}")
    string(REGEX MATCHALL "\t[^][)#:;]+\\.(md|png)" links "${text}")
    foreach(link ${links})
        string(SUBSTRING "${link}" 1 -1 target)
        if(NOT EXISTS ${folder}/${target})
            message(FATAL_ERROR "${page} refers to ${target}, which is not installed")
        endif()
    endforeach()
endforeach()

# == The viewer finds its libraries and the program that reads models; its manual page has every option, and desktops find it
if(EXISTS ${SCRATCH}/prefix/bin/nbviewer)
    run(${SOURCE}/tests/support/with-display.sh ${SCRATCH}/prefix/bin/nbviewer ${SCRATCH}/prefix/share/nbviewer/models/boxes.obj
        --screenshot ${SCRATCH}/boxes.png)
    run(${SCRATCH}/prefix/bin/nbviewer --help)
    string(REGEX MATCHALL "--[a-z]+" options "${output}")
    run(gzip -dc ${SCRATCH}/prefix/share/man/man1/nbviewer.1.gz)
    string(REPLACE "\\-" "-" manual "${output}")
    foreach(option ${options})
        string(FIND "${manual}" "${option}" position)
        if(position EQUAL -1)
            message(FATAL_ERROR "the manual page lacks ${option}")
        endif()
    endforeach()
    file(STRINGS ${SCRATCH}/prefix/share/applications/nbviewer.desktop entry REGEX "^(Exec|Icon|MimeType)=")
    if(NOT "${entry}" MATCHES "Exec=nbviewer %F;Icon=nbviewer;MimeType=application/x-nbscene")
        message(FATAL_ERROR "the desktop entry says \"${entry}\"")
    endif()
    foreach(file icons/hicolor/scalable/apps/nbviewer.svg mime/packages/nbviewer.xml)
        if(NOT EXISTS ${SCRATCH}/prefix/share/${file})
            message(FATAL_ERROR "${file} is not installed")
        endif()
    endforeach()
endif()
