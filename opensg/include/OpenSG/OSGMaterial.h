// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGMaterialFields.h>

namespace osg {

#define OSG_MATERIAL_FIELDS(VALUE, OWNED, LINK)                                                    \
    VALUE(SortKey, sortKey, Int32, 0)                                                              \
    VALUE(TransparencyMode, transparencyMode, Int32, 0)

/// How a geometry looks. SortKey is the place in the drawing order, ascending, whatever the
/// transparency; NoStateSorting as a key leaves the order within it to the tree.
/// TransparencyMode is one of the three constants below.
/// Left out of OpenSG's class: drawing (draw functors, states).
class Material : public AttachmentContainer
{
    OSG_ABSTRACT_CONTAINER(Material, AttachmentContainer, OSG_MATERIAL_FIELDS);

public:
    enum
    {
        NoStateSorting = 0x7fffffff
    };

    enum
    {
        TransparencyAutoDetection = 0,
        TransparencyForceTransparent = 1,
        TransparencyForceOpaque = 2
    };

    /// Whether the material blends: by its mode alone here, derived classes ask their parts.
    virtual bool isTransparent() const;
};

}  // namespace osg
