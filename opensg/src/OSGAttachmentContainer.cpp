// SPDX-License-Identifier: MIT
#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGAttachmentContainer.h>

#include <algorithm>

namespace osg {

OSG_ABSTRACT_CONTAINER_TYPE(AttachmentContainer, FieldContainer);

namespace {

constexpr UInt32 kBindingBits = 16;

UInt32 attachmentKey(UInt32 groupId, UInt16 binding)
{
    return groupId << kBindingBits | binding;
}

template <class Map>
auto findKey(Map& map, UInt32 key)
{
    return std::find_if(map.begin(), map.end(),
                        [key](const auto& entry) { return entry.first == key; });
}

void release(const AttachmentPtr& attachment, const AttachmentContainer& container)
{
    attachment->subParent(FieldContainerPtr(&container));
    subRefCP(static_cast<const FieldContainerPtr&>(attachment));
}

}  // namespace

AttachmentContainer::AttachmentContainer(const AttachmentContainer& source)
    : Inherited(source)
    , sfAttachments(source.sfAttachments)
{
    for (const auto& entry : sfAttachments.getValue()) {
        addRefCP(entry.second);
        entry.second->addParent(FieldContainerPtr(this));
    }
}

AttachmentContainer::~AttachmentContainer()
{
    for (const auto& entry : sfAttachments.getValue()) {
        release(entry.second, *this);
    }
}

void AttachmentContainer::addAttachment(const AttachmentPtr& attachment, UInt16 binding)
{
    if (attachment == NullFC) {
        return;
    }
    AttachmentMap& map = sfAttachments.getValue();
    const UInt32 key = attachmentKey(attachment->getGroupId(), binding);
    const auto found = findKey(map, key);
    if (found != map.end() && found->second == attachment) {
        return;
    }
    addRefCP(attachment);
    attachment->addParent(FieldContainerPtr(this));
    if (found == map.end()) {
        map.push_back({ key, attachment });
        return;
    }
    const AttachmentPtr old = found->second;
    found->second = attachment;
    release(old, *this);
}

void AttachmentContainer::subAttachment(const AttachmentPtr& attachment, UInt16 binding)
{
    if (attachment == NullFC) {
        return;
    }
    AttachmentMap& map = sfAttachments.getValue();
    const auto found = findKey(map, attachmentKey(attachment->getGroupId(), binding));
    if (found != map.end()) {
        const AttachmentPtr old = found->second;
        map.erase(found);
        release(old, *this);
    }
}

AttachmentPtr AttachmentContainer::findAttachment(UInt32 groupId, UInt16 binding) const
{
    const AttachmentMap& map = sfAttachments.getValue();
    const auto found = findKey(map, attachmentKey(groupId, binding));
    return found != map.end() ? found->second : AttachmentPtr();
}

void AttachmentContainer::cloneReferences(ContainerCloner& cloner)
{
    Inherited::cloneReferences(cloner);
    for (auto& entry : sfAttachments.getValue()) {
        const AttachmentPtr own = cloner.copyOf(entry.second);
        if (own != entry.second) {
            const AttachmentPtr old = entry.second;
            addRefCP(own);
            own->addParent(FieldContainerPtr(this));
            entry.second = own;
            release(old, *this);
        }
    }
}

}  // namespace osg
