// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGVector.h>

#include <string>

namespace viewer {

/// Three values for the status line, such as "Rotation (0.000, 45.000, 0.000)".
std::string valueLine(const char* what, const osg::Vec3f& values);

}  // namespace viewer
