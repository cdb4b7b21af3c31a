// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGAttachment.h>

#include <FieldContainerGlue.h>

namespace osg {

class NB_PLATFORM_API NodePermissions;
NB_CONTAINER_POINTER(NodePermissions, AttachmentPtr);

// clang-format off
#define NB_NODE_PERMISSIONS_FIELDS(VALUE, OWNED, LINK) VALUE(Denied, denied, UInt32, 0)

// clang-format on

/// Attachment of a node with what may not be done with it, one bit per number of a permission; read
/// and written through nbNodePermission.
class NB_PLATFORM_API NodePermissions : public Attachment
{
    NB_CONTAINER(NodePermissions, Attachment, NB_NODE_PERMISSIONS_FIELDS);
};

}  // namespace osg
