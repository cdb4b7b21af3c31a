// SPDX-License-Identifier: MIT
#include <nbOpenSGUberViewport/nbPhotographFit.h>

nbPhotographFit nbPhotographFit::of(osg::Int32 imageWidth, osg::Int32 imageHeight,
                                    osg::Int32 viewWidth, osg::Int32 viewHeight,
                                    bool verticalSizing)
{
    nbPhotographFit fit;
    if (imageWidth <= 0 || imageHeight <= 0 || viewWidth <= 0 || viewHeight <= 0) {
        return fit;
    }
    const double scale =
        verticalSizing ? double(viewHeight) / imageHeight : double(viewWidth) / imageWidth;
    fit.width = static_cast<osg::Real32>(scale * imageWidth);
    fit.height = static_cast<osg::Real32>(scale * imageHeight);
    fit.left = static_cast<osg::Real32>(0.5 * (viewWidth - scale * imageWidth));
    fit.bottom = static_cast<osg::Real32>(0.5 * (viewHeight - scale * imageHeight));
    return fit;
}
