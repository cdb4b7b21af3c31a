// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>
#include <OpenSG/OSGRefPtr.h>

namespace osg {

class Attachment;

/// Pointer to attachments; all attachment and chunk pointers derive from it.
class AttachmentPtr : public TypedContainerPtr<FieldContainerPtr, Attachment, AttachmentPtr>
{
public:
    using TypedContainerPtr::TypedContainerPtr;

    AttachmentPtr() = default;
};

typedef RefPtr<AttachmentPtr> AttachmentRefPtr;

}  // namespace osg
