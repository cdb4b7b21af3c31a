// SPDX-License-Identifier: MIT
#include "nbUberMaterialBinding.h"

#include <nbOpenSGRenderAction/nbUberMaterialShader.h>

#include <OpenSG/OSGFieldContainerFactory.h>

namespace nbrender {

namespace {

/// The first unit is that of texture chunks.
constexpr GLuint kFirstUnit = 1;

/// Names in the program, by component.
struct Names
{
    const char* picture;
    const char* matrix;
    const char* flags;
};

constexpr std::array<Names, UberMaterialState::ComponentCount> kNames {
    { { "diffusePicture", "pictureFromObject[0]", "pictureFlags[0]" },
      { "transparencyPicture", "pictureFromObject[1]", "pictureFlags[1]" } }
};

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
        bit(texture.isPremultiplied, shaders::PicturePremultiplied);
}

}  // namespace

void bindUberMaterial(Gl& gl, GpuTextures& textures, GlProgram& program,
                      const UberMaterialState& state, const osg::Matrix& surfaceFromObject)
{
    for (std::size_t component = 0; component < kNames.size(); ++component) {
        const ProjectedPicture& picture = state.pictures[component];
        const GLuint unit = kFirstUnit + static_cast<GLuint>(component);
        gl.glActiveTexture(GL_TEXTURE0 + unit);
        const auto image =
            osg::ImagePtr::dcast(osg::FieldContainerFactory::the()->getContainer(picture.imageId));
        // The colours of pixels that alpha hides count only where it is not alpha that covers.
        const bool hidesByAlpha = !picture.asMask && !picture.invert;
        const GpuTexture texture =
            image == osg::NullFC ? GpuTexture() : textures.get(gl, image, hidesByAlpha);
        gl.glBindTexture(GL_TEXTURE_2D, texture.name);
        gl.glBindSampler(unit, textures.getSampler(gl, picture.repeatU, picture.repeatV));
        osg::Matrix pictureFromObject = picture.pictureFromSurface;
        pictureFromObject.mult(surfaceFromObject);
        program.set(gl, kNames[component].picture, static_cast<GLint>(unit));
        program.set(gl, kNames[component].matrix, pictureFromObject);
        program.set(gl, kNames[component].flags, flagsOf(picture, texture));
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
