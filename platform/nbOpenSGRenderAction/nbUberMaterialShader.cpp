// SPDX-License-Identifier: MIT
#include "nbUberMaterialShader.h"

namespace nbrender::shaders {

namespace {

/// Edges are as wide as a pixel, for they are no edges of triangles, which the driver smooths. The
/// ends of the Z extent reach a thousandth further, so that a surface in the plane of the
/// projection is inside whatever the rounding.
const char* const kFunctions = R"(
in vec3 objectPosition;
uniform mat4 pictureFromObject[2];
uniform int pictureFlags[2];
uniform sampler2D diffusePicture;
uniform sampler2D transparencyPicture;
bool hasFlag(int component, int flag)
{
    return (pictureFlags[component] & flag) != 0;
}
float insideEdge(float distance)
{
    return clamp(distance / max(fwidth(distance), 1e-12) + 0.5, 0.0, 1.0);
}
float insideRange(float value, float low, float high)
{
    return insideEdge(min(value - low, high - value));
}
/// How far a place is inside of the component's picture, 0 .. 1.
float insidePicture(int component, vec3 place)
{
    float inside = hasFlag(component, 1) ? 1.0 : 0.0;
    inside *= hasFlag(component, 2) ? 1.0 : insideRange(place.x, -1.0, 1.0);
    inside *= hasFlag(component, 4) ? 1.0 : insideRange(place.y, -1.0, 1.0);
    inside *= hasFlag(component, 8) ? insideRange(place.z, -1.001, 0.001) : 1.0;
    return inside;
}
/// How far the picture covers what it lies on, 0 .. 1.
float coverage(int component, vec4 texel)
{
    float covered = hasFlag(component, 16) ? (texel.r + texel.g + texel.b) / 3.0 : texel.a;
    return hasFlag(component, 32) ? 1.0 - covered : covered;
}
vec3 placeInPicture(int component)
{
    return (pictureFromObject[component] * vec4(objectPosition, 1.0)).xyz;
}
vec4 texelOf(int component, sampler2D picture, vec3 place)
{
    vec4 texel = texture(picture, 0.5 * place.xy + 0.5);
    return hasFlag(component, 64) ? vec4(texel.rgb / max(texel.a, 1e-6), texel.a) : texel;
}
vec4 withPictures(vec4 surface)
{
    vec3 place = placeInPicture(0);
    vec4 texel = texelOf(0, diffusePicture, place);
    surface.rgb = mix(surface.rgb, texel.rgb, insidePicture(0, place) * coverage(0, texel));
    place = placeInPicture(1);
    texel = texelOf(1, transparencyPicture, place);
    surface.a *= mix(1.0, coverage(1, texel), insidePicture(1, place));
    return surface;
}
)";

}  // namespace

std::string uberMaterialFunctions()
{
    return kFunctions;
}

}  // namespace nbrender::shaders
