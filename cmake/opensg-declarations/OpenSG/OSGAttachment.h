// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGFieldContainer.h>

namespace osg {
OSG_DECLARED_POINTER_CLASS(Attachment, FieldContainerPtr);

class Attachment : public FieldContainer
{
    OSG_DECLARED_TYPE(Attachment, FieldContainer)
    OSG_DECLARED_VALUES(Parents, FieldContainerPtr)
};
}  // namespace osg
