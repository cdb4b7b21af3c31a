// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGAttachmentPtr.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGFieldContainerFields.h>

namespace osg {

/// Base of what can be attached to a container, and of state chunks.
/// Left out of real OpenSG: the Internal field.
class Attachment : public FieldContainer
{
    OSG_TYPE_ACCESS_(Attachment, FieldContainer);

public:
    enum
    {
        ParentsFieldId = Inherited::NextFieldId,
        NextFieldId
    };

    static constexpr BitVector ParentsFieldMask = BitVector(1) << ParentsFieldId;

    /// The containers that it is attached to, in the order of attaching. They are not counted.
    MFFieldContainerPtr& getParents() { return mfParents; }

    const MFFieldContainerPtr& getParents() const { return mfParents; }

    FieldContainerPtr& getParents(UInt32 index) { return mfParents[index]; }

    const FieldContainerPtr& getParents(UInt32 index) const { return mfParents[index]; }

    MFFieldContainerPtr* getMFParents() { return &mfParents; }

    const MFFieldContainerPtr* getMFParents() const { return &mfParents; }

    /// Key among the attachments of a container: one per class.
    UInt32 getGroupId() const { return getType().getGroupId(); }

    /// Notes one more container that uses this one. For AttachmentContainer and for classes that
    /// want to know their users.
    void addParent(const FieldContainerPtr& parent);

    /// Forgets one mention of the container.
    void subParent(const FieldContainerPtr& parent);

protected:
    Attachment() = default;

    /// A copy is attached to nothing.
    Attachment(const Attachment& source);

    MFFieldContainerPtr mfParents;
};

}  // namespace osg
