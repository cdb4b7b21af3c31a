// SPDX-License-Identifier: MIT
#pragma once
#include <GL/gl.h>
#include <GL/glext.h>
#define OSG_GL_UNUSED 0xffff
