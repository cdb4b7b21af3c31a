// SPDX-License-Identifier: MIT
#include "StandardShaders.h"

#include <nbOpenSGUtils/nbShaderHeader.h>

namespace nbrender::shaders {

namespace {

const char* const kProjectedDefine = "#define PROJECTED\n";

/// As many planes as nbClipSets::kMostPlanes.
const char* const kClipFunctions = R"(
#define CLIPPED
uniform vec4 clipPlanes[6];
out float gl_ClipDistance[6];
void clipAt(vec3 viewPoint)
{
    for (int i = 0; i < 6; ++i) {
        gl_ClipDistance[i] = dot(clipPlanes[i], vec4(viewPoint, 1.0));
    }
}
)";

const char* const kSurfaceVertexBody = R"(
uniform mat4 viewFromObject;
uniform mat4 normalFromObject;
uniform float pointSize;
out vec3 viewPosition;
out vec3 viewNormal;
out vec4 vertexColor;
out vec2 texCoord;
noperspective out float lineDistancePx;
#ifdef PROJECTED
out vec3 objectPosition;
out vec3 objectNormal;
#endif
void main()
{
    gl_Position = nbClipFromObject * vec4(nbPosition, 1.0);
#ifdef PROJECTED
    objectPosition = nbPosition;
    objectNormal = nbNormal;
#endif
    gl_PointSize = pointSize;
    viewPosition = (viewFromObject * vec4(nbPosition, 1.0)).xyz;
#ifdef CLIPPED
    clipAt(viewPosition);
#endif
    viewNormal = mat3(normalFromObject) * nbNormal;
    vertexColor = nbColor;
    texCoord = nbTexCoord;
    lineDistancePx = 0.0;
}
)";

/// A line a .. b in clip space, cut at the near plane, and the corner of its polygon: a half circle
/// of seven points around each end.
const char* const kLineFunctions = R"(
uniform float lineWidth;
uniform int reversedDepth;
float fromNearPlane(vec4 place)
{
    return reversedDepth != 0 ? place.w - place.z : place.w + place.z;
}
bool cutAtNearPlane(inout vec4 a, inout vec4 b)
{
    float aDepth = fromNearPlane(a);
    float bDepth = fromNearPlane(b);
    if (aDepth < 0.0 && bDepth < 0.0) {
        return false;
    }
    if (aDepth < 0.0) {
        a = mix(a, b, aDepth / (aDepth - bDepth));
    } else if (bDepth < 0.0) {
        b = mix(b, a, bDepth / (bDepth - aDepth));
    }
    return true;
}
vec2 lineInPx(vec4 a, vec4 b)
{
    return (b.xy / b.w - a.xy / a.w) * 0.5 * nbViewportSize;
}
// Corners in the order of a strip across the line: small triangles for the ends, two for the length.
const int kCorners[14] = int[14](3, 2, 4, 1, 5, 0, 6, 13, 7, 12, 8, 11, 9, 10);
vec4 lineCorner(vec4 a, vec4 b, int vertex)
{
    vec2 along = lineInPx(a, b);
    float lengthPx = length(along);
    along = lengthPx > 1e-6 ? along / lengthPx : vec2(1.0, 0.0);
    int corner = kCorners[vertex];
    bool atEnd = corner < 7;
    float angle = (float(corner % 7) / 6.0 - 0.5) * 3.14159265;
    float side = (atEnd ? 0.5 : -0.5) * lineWidth;
    float beyondPx = cos(angle) * side;
    vec2 offsetPx = beyondPx * along + sin(angle) * side * vec2(-along.y, along.x);
    vec4 place = atEnd ? b : a;
    place.xy += offsetPx * 2.0 / nbViewportSize * place.w;
    // The depth goes on at the line's slope, so that coincident lines of other lengths have the same.
    if (lengthPx > lineWidth) {
        place.z += beyondPx / lengthPx * (b.z / b.w - a.z / a.w) * place.w;
    }
    return place;
}
)";

const char* const kLineVertexBody = R"(
layout (location = 0) in vec3 startPosition;
layout (location = 1) in vec4 startColor;
layout (location = 2) in vec3 endPosition;
layout (location = 3) in vec4 endColor;
out vec3 viewPosition;
out vec3 viewNormal;
out vec4 vertexColor;
out vec2 texCoord;
noperspective out float lineDistancePx;
#ifdef CLIPPED
uniform mat4 viewFromObject;
/// Clips a corner at one end of the line, where the near plane has left it.
void clipLine(bool atEnd, float startDepth, float endDepth)
{
    vec3 start = (viewFromObject * vec4(startPosition, 1.0)).xyz;
    vec3 end = (viewFromObject * vec4(endPosition, 1.0)).xyz;
    float own = atEnd ? endDepth : startDepth;
    float other = atEnd ? startDepth : endDepth;
    float cut = own < 0.0 && other > 0.0 ? own / (own - other) : 0.0;
    clipAt(atEnd ? mix(end, start, cut) : mix(start, end, cut));
}
#endif
void main()
{
    vec4 a = nbClipFromObject * vec4(startPosition, 1.0);
    vec4 b = nbClipFromObject * vec4(endPosition, 1.0);
    viewPosition = vec3(0.0, 0.0, -1.0);
    viewNormal = vec3(0.0);
    texCoord = vec2(0.0);
    bool atEnd = kCorners[gl_VertexID] < 7;
    vertexColor = atEnd ? endColor : startColor;
#ifdef CLIPPED
    clipLine(atEnd, fromNearPlane(a), fromNearPlane(b));
#endif
    lineDistancePx = 0.0;
    if (!cutAtNearPlane(a, b)) {
        gl_Position = vec4(2.0, 2.0, 2.0, 1.0);
        return;
    }
    gl_Position = lineCorner(a, b, gl_VertexID);
    lineDistancePx = atEnd ? length(lineInPx(a, b)) : 0.0;
}
)";

const char* const kLineGeometryBody = R"(
layout (lines) in;
layout (triangle_strip, max_vertices = 14) out;
void main()
{
    vec4 a = gl_in[0].gl_Position;
    vec4 b = gl_in[1].gl_Position;
    if (!cutAtNearPlane(a, b)) {
        return;
    }
    for (int i = 0; i < 14; ++i) {
        gl_Position = lineCorner(a, b, i);
        EmitVertex();
    }
    EndPrimitive();
}
)";

const char* const kSurfaceFragmentBody = R"(
in vec3 viewPosition;
in vec3 viewNormal;
in vec4 vertexColor;
in vec2 texCoord;
noperspective in float lineDistancePx;
layout (location = 0) out vec4 colorBufferRGBA;
layout (location = 1) out vec4 effectBufferRGBA;
uniform vec3 ambientColor;
uniform vec3 diffuseColor;
uniform vec3 specularColor;
uniform vec3 emissionColor;
uniform float shininess;
uniform float opacity;
uniform int vertexColors;
uniform int textureMode;      // 0 none, 1 replace, 2 modulate, 3 blend, 4 decal
uniform int textureHasColor;
uniform int textureHasAlpha;
uniform int textureIsIntensity;
uniform vec4 textureEnvColor;
uniform int alphaTest;        // GL comparison minus GL_NEVER
uniform float alphaValue;
uniform int orthographic;
uniform vec3 viewUp;          // the world's up in view space
uniform int leavesNoEffect;
uniform int stipplePattern;   // 16 bits, lowest first
uniform float stippleRepeat;  // device pixels per bit
vec3 toEye()
{
    return orthographic != 0 ? vec3(0.0, 0.0, 1.0) : normalize(-viewPosition);
}
vec3 facingNormal()
{
    float size = length(viewNormal);
    vec3 normal = size > 0.0 ? viewNormal / size : toEye();
    float towardsEye = dot(normal, toEye());
    if (towardsEye >= 0.0) {
        return normal;
    }
    // On a front side the shading normal points away only at a silhouette, where the surface is
    // flatter than it is shaded: there it is bent back to the edge, not turned to the other side.
    vec3 flatNormal = cross(dFdx(viewPosition), dFdy(viewPosition));
    flatNormal = dot(flatNormal, toEye()) < 0.0 ? -flatNormal : flatNormal;
    return dot(normal, flatNormal) > 0.0 ? normalize(normal - towardsEye * toEye()) : -normal;
}
vec3 shade(vec3 normal, vec3 diffuse)
{
    const vec3 kSky = vec3(0.40, 0.42, 0.46);
    const vec3 kGround = vec3(0.20, 0.19, 0.18);
    const vec3 kKeyDirection = vec3(-0.2873, 0.4104, 0.8655);
    const float kKeyStrength = 0.68;
    vec3 sky = mix(kGround, kSky, 0.5 + 0.5 * dot(normal, viewUp));
    float key = max(dot(normal, kKeyDirection), 0.0);
    float highlight = key > 0.0
        ? pow(max(dot(normal, normalize(kKeyDirection + toEye())), 0.0), max(shininess, 1.0)) : 0.0;
    return emissionColor + ambientColor * sky + diffuse * (sky + kKeyStrength * key)
        + specularColor * (kKeyStrength * highlight);
}
vec4 textured(vec4 color)
{
    if (textureMode == 0) {
        return color;
    }
    vec4 texel = texture(nbTexture, texCoord);
    if (textureMode == 1) {
        return vec4(textureHasColor != 0 ? texel.rgb : color.rgb,
                    textureHasAlpha != 0 ? texel.a : color.a);
    }
    if (textureMode == 4) {
        return vec4(mix(color.rgb, texel.rgb, textureHasAlpha != 0 ? texel.a : 1.0), color.a);
    }
    float alpha = textureHasAlpha != 0 ? color.a * texel.a : color.a;
    if (textureHasColor == 0) {
        return vec4(color.rgb, alpha);
    }
    if (textureMode == 2) {
        return vec4(color.rgb * texel.rgb, alpha);
    }
    alpha = textureIsIntensity != 0 ? mix(color.a, textureEnvColor.a, texel.a) : alpha;
    return vec4(mix(color.rgb, textureEnvColor.rgb, texel.rgb), alpha);
}
bool passesAlphaTest(float alpha)
{
    switch (alphaTest) {
    case 0: return false;
    case 1: return alpha < alphaValue;
    case 2: return alpha == alphaValue;
    case 3: return alpha <= alphaValue;
    case 4: return alpha > alphaValue;
    case 5: return alpha != alphaValue;
    case 6: return alpha >= alphaValue;
    }
    return true;
}
)";

const char* const kSurfaceMain = R"(
bool inStippleGap()
{
    int bit = int(mod(floor(lineDistancePx / stippleRepeat), 16.0));
    return (stipplePattern >> bit) % 2 == 0;
}
void main()
{
    vec4 surface = vertexColors != 0 ? vec4(vertexColor.rgb, vertexColor.a * opacity)
                                     : vec4(diffuseColor, opacity);
#ifdef PROJECTED
#ifdef TEXTURED
    // A texture that colours the surface lies under the pictures.
    bool isUnderPictures = textureMode == 2;
    surface = isUnderPictures ? textured(surface) : surface;
#endif
    surface = withPictures(surface);
#endif
    vec3 normal = facingNormal();
#ifdef LIT
    vec4 color = vec4(shade(normal, surface.rgb), surface.a);
#else
    vec4 color = vec4(surface.rgb + emissionColor, surface.a);
#endif
#if defined(TEXTURED) && defined(PROJECTED)
    color = isUnderPictures ? color : textured(color);
#elif defined(TEXTURED)
    color = textured(color);
#endif
#ifdef DISCARDS
    if (!passesAlphaTest(color.a) || (stipplePattern != 0xffff && inStippleGap())) {
        discard;
    }
#endif
    colorBufferRGBA = color;
    effectBufferRGBA = leavesNoEffect != 0 ? vec4(0.0) : vec4(0.5 * normal + 0.5, 1.0);
}
)";

}  // namespace

std::string surfaceVertex(Clipping clipping, bool projected)
{
    return shaderHeaderString(nbShaderStage::Vertex, true, true, false) +
        (projected ? kProjectedDefine : "") + (clipping == Clipping::On ? kClipFunctions : "") +
        kSurfaceVertexBody;
}

std::string lineVertex(Clipping clipping)
{
    // The attributes of lines are their own, so only the uniforms of the preamble are taken.
    return shaderHeaderString(nbShaderStage::Geometry, true, false, false) + kLineFunctions +
        (clipping == Clipping::On ? kClipFunctions : "") + kLineVertexBody;
}

std::string surfaceFragment(const Features& features)
{
    std::string text = shaderHeaderString(nbShaderStage::Fragment, true, false, true);
    text += features.lit ? "#define LIT\n" : "";
    text += features.textured ? "#define TEXTURED\n" : "";
    text += features.discards ? "#define DISCARDS\n" : "";
    if (!hasPicture(features.pictures)) {
        return text + kSurfaceFragmentBody + kSurfaceMain;
    }
    return text + kProjectedDefine + kSurfaceFragmentBody +
        uberMaterialFunctions(features.pictures) + kSurfaceMain;
}

std::string lineGeometry()
{
    return shaderHeaderString(nbShaderStage::Geometry, true, false, false) + kLineFunctions +
        kLineGeometryBody;
}

const char* const kFullScreenVertex = R"(
out vec2 place;
void main()
{
    vec2 corner = vec2(gl_VertexID == 1 ? 3.0 : -1.0, gl_VertexID == 2 ? 3.0 : -1.0);
    place = 0.5 * corner + 0.5;
    gl_Position = vec4(corner, 1.0, 1.0);
}
)";

}  // namespace nbrender::shaders
