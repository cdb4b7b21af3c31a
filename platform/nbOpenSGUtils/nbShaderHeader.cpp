// SPDX-License-Identifier: MIT
#include "nbShaderHeader.h"

std::string shaderHeaderString(nbShaderStage stage, bool transforms, bool surface, bool texture)
{
    const bool isVertex = stage == nbShaderStage::Vertex;
    std::string text = "#version 330 core\n";
    if (transforms) {
        text += "uniform mat4 nbWorldFromObject;\n"
                "uniform mat4 nbViewFromWorld;\n"
                "uniform mat4 nbClipFromView;\n"
                "uniform mat4 nbClipFromObject;\n"
                "uniform vec2 nbViewportSize;\n";
    }
    if (transforms && isVertex) {
        text += "layout (location = 0) in vec3 nbPosition;\n";
    }
    if (surface && isVertex) {
        text += "layout (location = 1) in vec3 nbNormal;\n"
                "layout (location = 2) in vec4 nbColor;\n"
                "layout (location = 3) in vec2 nbTexCoord;\n";
    }
    if (texture) {
        text += "uniform sampler2D nbTexture;\n";
    }
    return text;
}
