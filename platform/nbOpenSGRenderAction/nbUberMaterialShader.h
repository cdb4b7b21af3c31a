// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace nbrender::shaders {

/// Part of a fragment program: the function `vec4 withPictures(vec4 surface)` puts the pictures of
/// an UberMaterial over a surface's colour and opacity.
///
/// Wants the input objectPosition; per component c its uniforms pictureFromObject[c] and
/// pictureFlags[c] (bits of PictureFlag), and the samplers diffusePicture and transparencyPicture.
std::string uberMaterialFunctions();

/// Bits of a component's flags in the program.
enum PictureFlag : int
{
    PictureShown = 1,
    PictureRepeatsU = 2,
    PictureRepeatsV = 4,
    PictureClampsZ = 8,
    PictureByBrightness = 16,  ///< covers by brightness, otherwise by alpha
    PictureInverted = 32,
    PicturePremultiplied = 64  ///< colours are times alpha
};

}  // namespace nbrender::shaders
