// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGAttachmentContainerPtr.h>
#include <OpenSG/OSGAttachmentFields.h>
#include <OpenSG/OSGContainerMacros.h>

namespace osg {

/// Base of the containers that can have attachments, such as a name. Attachments are counted.
/// Left out of real OpenSG: attachments in binary files.
class AttachmentContainer : public FieldContainer
{
    OSG_TYPE_ACCESS_(AttachmentContainer, FieldContainer);

public:
    enum
    {
        AttachmentsFieldId = Inherited::NextFieldId,
        NextFieldId
    };

    static constexpr BitVector AttachmentsFieldMask = BitVector(1) << AttachmentsFieldId;

    /// Attaches and counts; replaces an attachment of the same class and binding. Null is ignored.
    void addAttachment(const AttachmentPtr& attachment, UInt16 binding = 0);

    /// Takes off what has the class and binding of the attachment and gives its count back.
    /// Null and strangers are ignored.
    void subAttachment(const AttachmentPtr& attachment, UInt16 binding = 0);

    /// Null if there is none.
    AttachmentPtr findAttachment(UInt32 groupId, UInt16 binding = 0) const;

    AttachmentPtr findAttachment(const FieldContainerType& type, UInt16 binding = 0) const
    {
        return sfAttachments.getValue().empty() ? AttachmentPtr()
                                                : findAttachment(type.getGroupId(), binding);
    }

    SFAttachmentMap* getSFAttachments() { return &sfAttachments; }

    const SFAttachmentMap* getSFAttachments() const { return &sfAttachments; }

    void cloneReferences(ContainerCloner& cloner) override;

protected:
    AttachmentContainer() = default;

    /// Shares the attachments of the source.
    AttachmentContainer(const AttachmentContainer& source);

    ~AttachmentContainer() override;

private:
    SFAttachmentMap sfAttachments;
};

}  // namespace osg
