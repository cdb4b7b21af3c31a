// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGFieldContainer.h>

#include <map>

namespace osg {
class AttachmentPtr;
typedef std::map<UInt32, AttachmentPtr> AttachmentMap;
typedef SField<AttachmentMap> SFAttachmentMap;
OSG_DECLARED_POINTER_CLASS(AttachmentContainer, FieldContainerPtr);

class AttachmentContainer : public FieldContainer
{
    OSG_DECLARED_TYPE(AttachmentContainer, FieldContainer)
    OSG_DECLARED_MASK(Attachments)
    SFAttachmentMap* getSFAttachments();
    void addAttachment(const AttachmentPtr& attachment, UInt16 binding = 0);
    void subAttachment(const AttachmentPtr& attachment, UInt16 binding = 0);
    AttachmentPtr findAttachment(UInt32 groupId, UInt16 binding = 0);
    AttachmentPtr findAttachment(const FieldContainerType& type, UInt16 binding = 0);
};
}  // namespace osg
