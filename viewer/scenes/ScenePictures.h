// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/scenes/SceneDocument.h"

#include <OpenSG/OSGImage.h>

namespace viewer {

/// The file that an image was read from, or else its pixels; nothing for null.
/// @return false with one line in `error` for an image that can be kept in neither way
bool capturePicture(const osg::ImagePtr& image, ScenePicture& picture, QString& error);

/// The image of pixels that were captured; null if they are no picture.
osg::ImagePtr imageOf(const QByteArray& png);

}  // namespace viewer
