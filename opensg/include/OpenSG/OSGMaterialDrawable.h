// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGDrawable.h>
#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGMaterialDrawableFields.h>

namespace osg {

#define OSG_MATERIAL_DRAWABLE_FIELDS(VALUE, OWNED, LINK) OWNED(Material, material, MaterialPtr)

/// Base of the cores that show something with a material of their own; null is allowed.
class MaterialDrawable : public Drawable
{
    OSG_ABSTRACT_CONTAINER(MaterialDrawable, Drawable, OSG_MATERIAL_DRAWABLE_FIELDS);
};

}  // namespace osg
