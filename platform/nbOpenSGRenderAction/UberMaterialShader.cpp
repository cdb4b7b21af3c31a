// SPDX-License-Identifier: MIT
#include "UberMaterialShader.h"

namespace nbrender::shaders {

namespace {

/// Edges are as wide as a pixel, for they are no edges of triangles, which the driver smooths. The
/// ends of the Z extent reach a thousandth further, so that a surface in the plane of the
/// projection is inside whatever the rounding.
const char* const kPlacing = R"(
in vec3 objectPosition;
in vec3 objectNormal;
uniform mat4 pictureFromObject[2];
uniform mat4 pictureNormalFromObject[2];
uniform vec4 pictureTiles[6];
uniform int pictureFlags[2];
uniform sampler2D diffusePicture;
uniform sampler2D transparencyPicture;
const int kNone = -1;
const int kUv = 0;
const int kPlanar = 1;
const int kTriplanar = 2;
const int kTire = 3;
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
/// How far a surface looks to where a planar picture comes from, 0 .. 1.
float facingPicture(int component)
{
    vec3 front = cross(dFdx(viewPosition), dFdy(viewPosition));
    front = (dot(front, toEye()) > 0.0) == gl_FrontFacing ? front : -front;
    vec3 normal = viewNormal == vec3(0.0) ? front : viewNormal;
    float cosine = dot(normalize(normal), normalize(pictureTiles[3 * component + 1].xyz));
    float angle = acos(clamp(dot(normal, front) < 0.0 ? -cosine : cosine, -1.0, 1.0));
    vec2 angles = pictureTiles[3 * component].xy;
    return clamp((angles.x - angle) / max(angles.y, 1e-3) + 1.0, 0.0, 1.0);
}
/// How far a place is inside of the component's picture, 0 .. 1.
float insidePicture(int component, vec3 place)
{
    float inside = hasFlag(component, 1) ? 1.0 : 0.0;
    if (pictureKinds[component] == kPlanar) {
        inside *= hasFlag(component, 2) ? 1.0 : insideRange(place.x, -1.0, 1.0);
        inside *= hasFlag(component, 4) ? 1.0 : insideRange(place.y, -1.0, 1.0);
        inside *= hasFlag(component, 8) ? insideRange(place.z, -1.001, 0.001) : 1.0;
        inside *= hasFlag(component, 128) ? facingPicture(component) : 1.0;
    }
    return inside;
}
vec3 placeInPicture(int component)
{
    vec3 place = pictureKinds[component] == kUv ? vec3(texCoord, 0.0) : objectPosition;
    return (pictureFromObject[component] * vec4(place, 1.0)).xyz;
}
)";

/// Gradients are told to the driver: it cannot take them where only some pixels of a block look a
/// texel up, nor across the seam of the angle around a tire.
const char* const kMixing = R"(
/// How much what is projected along each axis counts: shares by the eighth powers of the normal's
/// coordinates, of which the least are left out.
vec3 sharesOf(vec3 normal)
{
    vec3 size = abs(normal);
    float largest = max(size.x, max(size.y, size.z));
    size = largest > 0.0 ? size / largest : vec3(1.0);
    size *= size;
    size *= size;
    size = max(size * size - 0.002, 0.0);
    return size / (size.x + size.y + size.z);
}
vec3 pictureNormal(int component)
{
    return mat3(pictureNormalFromObject[component]) * objectNormal;
}
/// A share of the texel of a tile (scale and offset of u and v).
vec4 tileTexel(sampler2D picture, vec4 tile, vec2 place, vec2 stepX, vec2 stepY, float share)
{
    return share > 0.0 ? share * textureGrad(picture, place * tile.xy + tile.zw, stepX * tile.xy,
                                             stepY * tile.xy)
                       : vec4(0.0);
}
vec4 triplanarTexel(int component, sampler2D picture, vec3 place)
{
    vec3 stepX = dFdx(place);
    vec3 stepY = dFdy(place);
    vec3 shares = sharesOf(pictureNormal(component));
    int first = 3 * component;
    return tileTexel(picture, pictureTiles[first], place.yz, stepX.yz, stepY.yz, shares.x)
        + tileTexel(picture, pictureTiles[first + 1], place.xz, stepX.xz, stepY.xz, shares.y)
        + tileTexel(picture, pictureTiles[first + 2], place.xy, stepX.xy, stepY.xy, shares.z);
}
/// Steps of the turn (of a whole one) around the x axis and of the distance from it.
vec2 roundStep(vec2 place, vec2 step, float radius)
{
    const float kTurnPerRadian = 0.15915494;
    return vec2(kTurnPerRadian * (place.x * step.y - place.y * step.x) / radius,
                dot(place, step)) / radius;
}
vec4 tireTexel(int component, sampler2D picture, vec3 place)
{
    const float kTurnPerRadian = 0.15915494;
    vec3 stepX = dFdx(place);
    vec3 stepY = dFdy(place);
    float radius = max(length(place.yz), 1e-6);
    float turn = radius > 1e-6 ? kTurnPerRadian * atan(place.z, place.y) : 0.0;
    vec2 roundX = roundStep(place.yz, stepX.yz, radius);
    vec2 roundY = roundStep(place.yz, stepY.yz, radius);
    vec3 normal = pictureNormal(component);
    vec3 shares = sharesOf(vec3(normal.x, length(normal.yz), 0.0));
    shares.xy /= shares.x + shares.y;
    vec4 tile = pictureTiles[3 * component];
    // From the tread's edge, which the tile has at half a picture, to the axle.
    float inwards = place.x < 0.0 ? radius - 1.5 : 1.5 - radius;
    return tileTexel(picture, tile, vec2(turn, place.x), vec2(roundX.x, stepX.x),
                     vec2(roundY.x, stepY.x), shares.y)
        + tileTexel(picture, tile, vec2(turn, inwards), roundX, roundY, shares.x);
}
vec4 texelOf(int component, sampler2D picture, vec3 place)
{
    vec4 texel;
    if (pictureKinds[component] == kTriplanar) {
        texel = triplanarTexel(component, picture, place);
    } else if (pictureKinds[component] == kTire) {
        texel = tireTexel(component, picture, place);
    } else {
        texel = texture(picture, pictureKinds[component] == kUv ? place.xy : 0.5 * place.xy + 0.5);
    }
    return hasFlag(component, 64) ? vec4(texel.rgb / max(texel.a, 1e-6), texel.a) : texel;
}
)";

const char* const kCovering = R"(
/// How far the picture covers what it lies on, 0 .. 1.
float coverage(int component, vec4 texel)
{
    float covered = hasFlag(component, 16) ? (texel.r + texel.g + texel.b) / 3.0 : texel.a;
    return hasFlag(component, 32) ? 1.0 - covered : covered;
}
vec4 withPictures(vec4 surface)
{
    if (pictureKinds[0] != kNone) {
        vec3 place = placeInPicture(0);
        vec4 texel = texelOf(0, diffusePicture, place);
        surface.rgb = mix(surface.rgb, texel.rgb, insidePicture(0, place) * coverage(0, texel));
    }
    if (pictureKinds[1] != kNone) {
        vec3 place = placeInPicture(1);
        vec4 texel = texelOf(1, transparencyPicture, place);
        surface.a *= mix(1.0, coverage(1, texel), insidePicture(1, place));
    }
    return surface;
}
)";

}  // namespace

std::string uberMaterialFunctions(const PictureKinds& kinds)
{
    return "const int pictureKinds[2] = int[2](" + std::to_string(kinds[0]) + ", " +
        std::to_string(kinds[1]) + ");" + kPlacing + kMixing + kCovering;
}

}  // namespace nbrender::shaders
