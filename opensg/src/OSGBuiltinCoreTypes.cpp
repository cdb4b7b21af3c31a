// SPDX-License-Identifier: MIT
#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSwitch.h>

#include "OSGBuiltinTypes.h"

namespace osg {

void referenceCoreTypes()
{
    referenceTypes({
        &Name::getClassType(),
        &Node::getClassType(),
        &Group::getClassType(),
        &Transform::getClassType(),
        &ComponentTransform::getClassType(),
        &Switch::getClassType(),
    });
}

}  // namespace osg
