// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>
#include <OpenSG/OSGRefPtr.h>

namespace osg {

class AttachmentContainer;

/// Pointer to containers that can have attachments: nodes, cores, materials, images, cameras ...
class AttachmentContainerPtr
    : public TypedContainerPtr<FieldContainerPtr, AttachmentContainer, AttachmentContainerPtr>
{
public:
    using TypedContainerPtr::TypedContainerPtr;

    AttachmentContainerPtr() = default;
};

typedef RefPtr<AttachmentContainerPtr> AttachmentContainerRefPtr;

}  // namespace osg
