// SPDX-License-Identifier: MIT
#include <OpenSG/OSGAttachment.h>

namespace osg {

OSG_ABSTRACT_CONTAINER_TYPE(Attachment, FieldContainer);

Attachment::Attachment(const Attachment& source)
    : Inherited(source)
{ }

void Attachment::addParent(const FieldContainerPtr& parent)
{
    mfParents.push_back(parent);
}

void Attachment::subParent(const FieldContainerPtr& parent)
{
    const auto found = mfParents.find(parent);
    if (found != mfParents.end()) {
        mfParents.erase(found);
    }
}

}  // namespace osg
