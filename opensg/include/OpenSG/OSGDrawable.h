// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGDrawableFields.h>
#include <OpenSG/OSGNodeCore.h>

namespace osg {

/// Base of the cores that show something. How they are drawn is the renderer's business.
class Drawable : public NodeCore
{
    OSG_ABSTRACT_CONTAINER(Drawable, NodeCore, OSG_NO_FIELDS);
};

}  // namespace osg
