// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGAttachmentPtr.h>
#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGSField.h>

#include <utility>

namespace osg {

/// Attachments of a container by key (group id and binding). A flat list: containers have few.
typedef MField<std::pair<UInt32, AttachmentPtr>> AttachmentMap;

typedef SField<AttachmentPtr> SFAttachmentPtr;
typedef MField<AttachmentPtr> MFAttachmentPtr;
typedef SField<AttachmentMap> SFAttachmentMap;

}  // namespace osg
