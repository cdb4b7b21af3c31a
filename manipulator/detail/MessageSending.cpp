// SPDX-License-Identifier: MIT
#include "manipulator/detail/MessageSending.h"

#include <nbKernel/nbController.h>
#include <nbUtils/nbMessage.h>

namespace nbec::manipulator::detail {

namespace {

void sendEmpty(const char* name)
{
    nbMessage message;
    nbController::call(name, message, 0);
}

void sendMaterialPreviewEnabled(bool enabled)
{
    nbMessage message;
    message.set("enabled", enabled, true);
    nbController::call("setMatRenderEnabled", message, 0);
}

}  // namespace

void sendTransformationChanged()
{
    sendEmpty("nbTransform::changedTransformation");
    sendEmpty("nbTransform::updateTransformation");
    nbController::setModified(1);
}

void sendMaterialPreviewPaused()
{
    sendMaterialPreviewEnabled(false);
}

void sendMaterialPreviewResumed()
{
    sendMaterialPreviewEnabled(true);
    nbController::call("updateMatRender", 0);
}

}  // namespace nbec::manipulator::detail
