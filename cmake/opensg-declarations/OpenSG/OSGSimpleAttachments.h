// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGSFBaseTypes.h>

namespace osg {
OSG_DECLARED_POINTER(Name, AttachmentPtr);

class Name : public Attachment
{
    OSG_DECLARED_CLASS(Name, Attachment)
    SFString* getFieldPtr();
};

void setName(AttachmentContainerPtr container, const std::string& name);
void setName(AttachmentContainerPtr container, const Char8* name);
const Char8* getName(AttachmentContainerPtr container);
}  // namespace osg
