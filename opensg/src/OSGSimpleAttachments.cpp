// SPDX-License-Identifier: MIT
#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGLog.h>
#include <OpenSG/OSGSimpleAttachments.h>

namespace osg {

OSG_CONTAINER_TYPE(Name, Attachment);

namespace {

NamePtr findName(const AttachmentContainerPtr& container)
{
    // Found by the key of the class, so the cast needs no check.
    const AttachmentPtr found = container->findAttachment(Name::getClassType());
    return NamePtr(static_cast<Name*>(found.getCPtr()));
}

}  // namespace

void setName(const AttachmentContainerPtr& container, const std::string& name)
{
    if (container == NullFC) {
        SWARNING << "setName: no container to be called " << name << std::endl;
        return;
    }
    NamePtr attachment = findName(container);
    if (attachment == NullFC) {
        attachment = Name::create();
        container->addAttachment(attachment);
    }
    attachment->setField(name);
}

void setName(const AttachmentContainerPtr& container, const Char8* name)
{
    if (name != nullptr) {
        setName(container, std::string(name));
    } else if (container == NullFC) {
        SWARNING << "setName: no container to take the name from" << std::endl;
    } else {
        container->subAttachment(findName(container));
    }
}

const Char8* getName(const AttachmentContainerPtr& container)
{
    const NamePtr attachment = container != NullFC ? findName(container) : NamePtr();
    return attachment != NullFC ? attachment->getField().c_str() : nullptr;
}

}  // namespace osg
