// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGAttachment.h>

namespace osg {
OSG_DECLARED_POINTER(ShaderParameter, AttachmentPtr);

class ShaderParameter : public Attachment
{
    OSG_DECLARED_TYPE(ShaderParameter, Attachment)
    OSG_DECLARED_VALUE(Name, std::string)
};
}  // namespace osg
