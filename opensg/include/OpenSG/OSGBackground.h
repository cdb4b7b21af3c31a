// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGBackgroundFields.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>

namespace osg {

/// What a viewport shows where nothing is. Left out of OpenSG's class: drawing (clear).
class Background : public AttachmentContainer
{
    OSG_ABSTRACT_CONTAINER(Background, AttachmentContainer, OSG_NO_FIELDS);

protected:
    void noteEdit() override { }
};

}  // namespace osg
