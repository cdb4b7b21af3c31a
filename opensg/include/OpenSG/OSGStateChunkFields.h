// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGAttachmentPtr.h>
#include <OpenSG/OSGContainerMacros.h>

namespace osg {

OSG_CONTAINER_POINTER(StateChunk, AttachmentPtr);

}  // namespace osg
