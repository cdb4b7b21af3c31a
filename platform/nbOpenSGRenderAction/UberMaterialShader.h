// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>

namespace nbrender::shaders {

/// How the pictures of the diffuse and the transparency component are projected: numbers of
/// TextureProjection, or kNoPicture.
using PictureKinds = std::array<int, 2>;

constexpr int kNoPicture = -1;

constexpr bool hasPicture(const PictureKinds& kinds)
{
    return kinds[0] != kNoPicture || kinds[1] != kNoPicture;
}

/// Part of a fragment program: the function `vec4 withPictures(vec4 surface)` puts the pictures of
/// an UberMaterial over a surface's colour and opacity.
///
/// Wants the function toEye() and the inputs viewPosition, viewNormal and texCoord to be declared
/// before, and the inputs objectPosition and objectNormal; per component c with a picture the
/// uniforms pictureFromObject[c] and pictureFlags[c] (bits of PictureFlag), for the triplanar and
/// the tire projection pictureNormalFromObject[c] and pictureTiles[3 c .. 3 c + 2], for the planar
/// one with angles the first, these, and the second, the direction in view space that the picture
/// comes from; and the samplers diffusePicture and transparencyPicture.
/// @param kinds  what the program can show: drivers take long to compile what it does not
std::string uberMaterialFunctions(const PictureKinds& kinds);

/// Bits of a component's flags in the program.
enum PictureFlag : int
{
    PictureShown = 1,
    PictureRepeatsU = 2,
    PictureRepeatsV = 4,
    PictureClampsZ = 8,
    PictureByBrightness = 16,  ///< covers by brightness, otherwise by alpha
    PictureInverted = 32,
    PicturePremultiplied = 64,  ///< colours are times alpha
    PictureHasAngles = 128  ///< shows on some faces only
};

}  // namespace nbrender::shaders
