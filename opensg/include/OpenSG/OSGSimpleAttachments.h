// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGAttachmentContainerPtr.h>
#include <OpenSG/OSGSFBaseTypes.h>

#include <string>

namespace osg {

class NodePtr;
OSG_CONTAINER_POINTER(Name, AttachmentPtr);

#define OSG_NAME_FIELDS(VALUE, OWNED, LINK) VALUE(Field, field, std::string, "")

/// The attachment that holds a container's name.
class Name : public Attachment
{
    OSG_CONTAINER(Name, Attachment, OSG_NAME_FIELDS);

public:
    SFString* getFieldPtr() { return getSFField(); }

    const SFString* getFieldPtr() const { return getSFField(); }
};

/// Names a container. A null container is logged and ignored.
void setName(const AttachmentContainerPtr& container, const std::string& name);

/// The same; a null text takes the name away.
void setName(const AttachmentContainerPtr& container, const Char8* name);

/// The name, or NULL for an unnamed container and for null. Valid until the name changes.
const Char8* getName(const AttachmentContainerPtr& container);

}  // namespace osg
