// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGVector.h>

#include <string>

namespace viewer {

/// Values for the status line, such as "Rotation (0.000, 45.000, 0.000)".
/// @param what  untranslated text of the context "viewer"
std::string valueLine(const char* what, const osg::Vec3f& values);
std::string valueLine(const char* what, const osg::Vec2f& values);
std::string valueLine(const char* what, float value);

}  // namespace viewer
