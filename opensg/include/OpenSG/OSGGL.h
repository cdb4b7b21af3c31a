// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>

/// @file
/// Types and constants of OpenGL that fields of containers hold; every container class brings them
/// along. Nothing in the scene graph draws.

#include <GL/gl.h>

/// A setting of a chunk that is not used.
#define OSG_GL_UNUSED 0xffff
