# SPDX-License-Identifier: MIT
# Qt 5 or 6. What is built with Qt 6 has NB_SUFFIX in the names of its libraries, packages and folders, so that both can be installed.
set(NBMANIPULATOR_QT 5 CACHE STRING "Qt: 5 (5.15 or later) or 6 (6.4 or later)")
set_property(CACHE NBMANIPULATOR_QT PROPERTY STRINGS 5 6)

set(NB_QT Qt${NBMANIPULATOR_QT})
set(NB_QT_COMPONENTS Core Gui Widgets)
if(NBMANIPULATOR_QT STREQUAL "5")
    set(NB_QT_VERSION 5.15)
    set(NB_SUFFIX "")
elseif(NBMANIPULATOR_QT STREQUAL "6")
    set(NB_QT_VERSION 6.4)
    set(NB_SUFFIX "-qt6")
    list(APPEND NB_QT_COMPONENTS OpenGL OpenGLWidgets)
else()
    message(FATAL_ERROR "NBMANIPULATOR_QT is \"${NBMANIPULATOR_QT}\", which is neither 5 nor 6")
endif()
find_package(${NB_QT} ${NB_QT_VERSION} REQUIRED COMPONENTS ${NB_QT_COMPONENTS})

# The modules of Qt that the platform stands on, and whoever uses it.
list(TRANSFORM NB_QT_COMPONENTS PREPEND ${NB_QT}:: OUTPUT_VARIABLE NB_QT_LIBRARIES)
