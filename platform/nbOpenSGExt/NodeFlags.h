// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGAttachment.h>

#include <FieldContainerGlue.h>

namespace osg {

class NB_PLATFORM_API NodeFlags;
NB_CONTAINER_POINTER(NodeFlags, AttachmentPtr);

// clang-format off
#define NB_NODE_FLAGS_FIELDS(VALUE, OWNED, LINK) VALUE(Flags, flags, UInt32, 0)

// clang-format on

/// Attachment of a node with the marks of helper nodes; read and written through nbNodeUtils.
class NB_PLATFORM_API NodeFlags : public Attachment
{
    NB_CONTAINER(NodeFlags, Attachment, NB_NODE_FLAGS_FIELDS);

public:
    /// Bits of the field Flags.
    enum Flag : UInt32
    {
        Auxiliary = 1,  ///< helper geometry: scene tools and scene bounds pass it by
        SelectableAuxiliary = 2,  ///< helper geometry that the picker of handles may hit
        ManipulatorNode = 4,  ///< root of a manipulator's handles, which are drawn over the scene
    };
};

}  // namespace osg
