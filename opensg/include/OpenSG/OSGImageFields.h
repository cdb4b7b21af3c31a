// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGAttachmentContainerPtr.h>
#include <OpenSG/OSGContainerMacros.h>

namespace osg {

OSG_CONTAINER_POINTER(Image, AttachmentContainerPtr);

}  // namespace osg
