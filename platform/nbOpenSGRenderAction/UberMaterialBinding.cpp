// SPDX-License-Identifier: MIT
#include "UberMaterialBinding.h"

#include <nbOpenSGExt/nbContainerId.h>
#include <nbOpenSGUberMaterial/ColorComponentSettings.h>

namespace nbrender {

namespace {

using Settings = osg::ColorComponentSettings;

/// The first unit is that of texture chunks.
constexpr GLuint kFirstUnit = 1;

/// Names in the program, by component.
struct Names
{
    const char* picture;
    const char* matrix;
    const char* normalMatrix;
    std::array<const char*, ProjectedPicture::kTileCount> tiles;
    const char* flags;
};

constexpr std::array<Names, UberMaterialState::ComponentCount> kNames { {
    { "diffusePicture",
      "pictureFromObject[0]",
      "pictureNormalFromObject[0]",
      { "pictureTiles[0]", "pictureTiles[1]", "pictureTiles[2]" },
      "pictureFlags[0]" },
    { "transparencyPicture",
      "pictureFromObject[1]",
      "pictureNormalFromObject[1]",
      { "pictureTiles[3]", "pictureTiles[4]", "pictureTiles[5]" },
      "pictureFlags[1]" },
} };

/// Whether a picture shows on some faces only, by where they look.
bool hasAngles(const ProjectedPicture& picture)
{
    constexpr float kAllFaces = 3.1415F;
    return picture.kind == Settings::PlanarProjection && picture.tiles.front().x() < kAllFaces;
}

GLint flagsOf(const ProjectedPicture& picture, const GpuTexture& texture)
{
    const auto bit = [](bool on, shaders::PictureFlag flag) { return on ? int(flag) : 0; };
    // A picture of alpha alone is a mask by that.
    return bit(texture.name != 0, shaders::PictureShown) |
        bit(picture.repeatU, shaders::PictureRepeatsU) |
        bit(picture.repeatV, shaders::PictureRepeatsV) |
        bit(picture.clampZ, shaders::PictureClampsZ) |
        bit(picture.asMask && texture.hasColor, shaders::PictureByBrightness) |
        bit(picture.invert && (picture.asMask || texture.hasAlpha), shaders::PictureInverted) |
        bit(texture.isPremultiplied, shaders::PicturePremultiplied) |
        bit(hasAngles(picture), shaders::PictureHasAngles);
}

GpuTexture bindPicture(Gl& gl, GpuTextures& textures, const ProjectedPicture& picture, GLuint unit)
{
    gl.glActiveTexture(GL_TEXTURE0 + unit);
    const auto image = resolveContainer<osg::ImagePtr>(picture.imageId);
    // The colours of pixels that alpha hides count only where it is not alpha that covers.
    const PixelForm form =
        picture.asMask || picture.invert ? PixelForm::Plain : PixelForm::Premultiplied;
    const GpuTexture texture = image == osg::NullFC ? GpuTexture() : textures.get(gl, image, form);
    gl.glBindTexture(GL_TEXTURE_2D, texture.name);
    gl.glBindSampler(unit, textures.getSampler(gl, picture.repeatU, picture.repeatV));
    return texture;
}

/// The space's axes in lengths of the world, on a diagonal.
osg::Matrix axisLengths(const osg::Matrix& worldFromSurface)
{
    osg::Matrix lengths;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        const osg::Vec4f& axis = worldFromSurface[i];
        lengths[i][i] = osg::Vec3f(axis.x(), axis.y(), axis.z()).length();
    }
    return lengths;
}

void setTile(Gl& gl, GlProgram& program, const char* name, const osg::Vec4f& tile)
{
    program.set(gl, name, tile.x(), tile.y(), tile.z(), tile.w());
}

/// The direction that a planar picture comes from, in view space.
osg::Vec4f directionOf(const ProjectedPicture& picture, const SurfaceSpace& space,
                       const osg::Matrix& viewFromWorld)
{
    osg::Matrix viewFromPicture = viewFromWorld;
    viewFromPicture.mult(space.worldFromSurface);
    osg::Matrix surfaceFromPicture;
    picture.pictureFromSurface.inverse(surfaceFromPicture);
    viewFromPicture.mult(surfaceFromPicture);
    return viewFromPicture[2];
}

void setPlacing(Gl& gl, GlProgram& program, const Names& names, const ProjectedPicture& picture,
                const SurfaceSpace& space, const osg::Matrix& viewFromWorld)
{
    osg::Matrix pictureFromObject = picture.pictureFromSurface;
    if (picture.kind == Settings::TriplanarProjection) {
        pictureFromObject.mult(axisLengths(space.worldFromSurface));
    }
    if (picture.kind != Settings::UVProjection) {
        pictureFromObject.mult(space.surfaceFromItem);
    }
    program.set(gl, names.matrix, pictureFromObject);
    if (hasAngles(picture)) {
        setTile(gl, program, names.tiles[0], picture.tiles[0]);
        setTile(gl, program, names.tiles[1], directionOf(picture, space, viewFromWorld));
    }
    if (picture.kind != Settings::TriplanarProjection && picture.kind != Settings::TireProjection) {
        return;
    }
    // A tire's tread and sides do not depend on the size of its projection.
    program.set(gl, names.normalMatrix,
                normalMatrix(picture.kind == Settings::TireProjection ? space.surfaceFromItem
                                                                      : pictureFromObject));
    for (std::size_t i = 0; i < picture.tiles.size(); ++i) {
        setTile(gl, program, names.tiles[i], picture.tiles[i]);
    }
}

}  // namespace

shaders::PictureKinds pictureKinds(const UberMaterialState& state, bool hasTexCoords)
{
    shaders::PictureKinds kinds {};
    for (std::size_t component = 0; component < kinds.size(); ++component) {
        const int kind = state.pictures[component].kind;
        kinds[component] =
            kind == Settings::UVProjection && !hasTexCoords ? shaders::kNoPicture : kind;
    }
    return kinds;
}

void bindUberMaterial(Gl& gl, GpuTextures& textures, GlProgram& program,
                      const UberMaterialState& state, const SurfaceSpace& space,
                      const osg::Matrix& viewFromWorld)
{
    for (std::size_t component = 0; component < kNames.size(); ++component) {
        const ProjectedPicture& picture = state.pictures[component];
        if (picture.kind == shaders::kNoPicture) {
            continue;
        }
        const Names& names = kNames[component];
        const GLuint unit = kFirstUnit + static_cast<GLuint>(component);
        const GpuTexture texture = bindPicture(gl, textures, picture, unit);
        program.set(gl, names.picture, static_cast<GLint>(unit));
        program.set(gl, names.flags, flagsOf(picture, texture));
        setPlacing(gl, program, names, picture, space, viewFromWorld);
    }
    gl.glActiveTexture(GL_TEXTURE0);
}

void unbindUberMaterial(Gl& gl)
{
    for (GLuint unit = kFirstUnit; unit < kFirstUnit + kNames.size(); ++unit) {
        gl.glActiveTexture(GL_TEXTURE0 + unit);
        gl.glBindTexture(GL_TEXTURE_2D, 0);
        gl.glBindSampler(unit, 0);
    }
    gl.glActiveTexture(GL_TEXTURE0);
}

}  // namespace nbrender
