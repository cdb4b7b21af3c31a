// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/nbGlProgram.h>

#include <OpenSG/OSGImage.h>

#include <unordered_map>

namespace nbrender {

/// Pictures of scene plates on the graphics card, by the container id of their image: made on first
/// use, anew when the image was edited, dropped when it is gone. Colours are multiplied by their
/// alpha, so that neither filtering nor smaller levels give dark rims; rows run from the top.
/// Needs the current context of its first use.
class SceneplateTextures
{
public:
    /// Texture of an image with 8 bits per component; one larger than the driver allows is scaled
    /// down.
    GLuint get(Gl& gl, const osg::ImagePtr& image);

    void collect(Gl& gl);
    void release(Gl& gl);

    void forget() { entries.clear(); }

private:
    struct Entry
    {
        osg::UInt64 stamp = 0;
        GLuint name = 0;
    };

    static void upload(Gl& gl, const osg::ImagePtr& image);

    std::unordered_map<osg::UInt32, Entry> entries;
};

}  // namespace nbrender
