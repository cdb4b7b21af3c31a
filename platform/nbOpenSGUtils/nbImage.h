// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGImage.h>

/// Helpers for the pixels of images.
class NB_PLATFORM_API nbImage
{
public:
    /// Place of the alpha among the components of a pixel; it is the last one. -1 without alpha.
    static int alphaPlace(const osg::ImagePtr& image);

    /// Turns the alpha of every pixel over (full becomes none), in all frames, sides and mipmaps;
    /// colours stay. Opens its own edit. An image of intensity, whose one value is colour and
    /// alpha, is inverted as a whole.
    /// @param image  components of 8, 16 or 32 bits, or floats of 32 bits, whose range is 0 .. 1
    /// @return false, and nothing has changed, for null and for an image without pixels, without
    /// alpha or of another data type
    static bool invertAlpha(const osg::ImagePtr& image);
};
