// SPDX-License-Identifier: MIT
#include "nbSceneplateTextures.h"

#include <nbOpenSGRenderAction/nbImageConvert.h>

#include <OpenSG/OSGContentStamp.h>
#include <OpenSG/OSGFieldContainerFactory.h>

#include <algorithm>

namespace nbrender {

GLuint SceneplateTextures::get(Gl& gl, const osg::ImagePtr& image)
{
    Entry& entry = entries[image.getFieldContainerId()];
    const osg::UInt64 stamp = osg::ContentStamp(*image).get();
    if (entry.name == 0 || entry.stamp != stamp) {
        if (entry.name == 0) {
            gl.glGenTextures(1, &entry.name);
        }
        gl.glBindTexture(GL_TEXTURE_2D, entry.name);
        upload(gl, image);
        entry.stamp = stamp;
    }
    return entry.name;
}

void SceneplateTextures::upload(Gl& gl, const osg::ImagePtr& image)
{
    GLint largest = 0;
    gl.glGetIntegerv(GL_MAX_TEXTURE_SIZE, &largest);
    QImage picture = nbImageConvert::toPicture(image);
    if (std::max(picture.width(), picture.height()) > largest) {
        picture = picture.scaled(largest, largest, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    picture = picture.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    gl.glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, picture.width(), picture.height(), 0, GL_RGBA,
                    GL_UNSIGNED_BYTE, picture.constBits());
    gl.glGenerateMipmap(GL_TEXTURE_2D);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_LINEAR);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
}

void SceneplateTextures::collect(Gl& gl)
{
    for (auto it = entries.begin(); it != entries.end();) {
        if (osg::FieldContainerFactory::the()->getContainer(it->first) == osg::NullFC) {
            gl.glDeleteTextures(1, &it->second.name);
            it = entries.erase(it);
        } else {
            ++it;
        }
    }
}

void SceneplateTextures::release(Gl& gl)
{
    for (auto& [id, entry] : entries) {
        gl.glDeleteTextures(1, &entry.name);
    }
    entries.clear();
}

}  // namespace nbrender
