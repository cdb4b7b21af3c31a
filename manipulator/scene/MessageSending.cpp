// SPDX-License-Identifier: MIT
#include "manipulator/scene/MessageSending.h"

#include <nbKernel/nbController.h>
#include <nbUtils/nbMessage.h>

namespace nbec::manipulator {

namespace {

void sendEmpty(const char* name)
{
    nbMessage message;
    nbController::call(name, message, 0);
}

}  // namespace

void sendTransformationChanged()
{
    sendEmpty("nbTransform::changedTransformation");
    sendEmpty("nbTransform::updateTransformation");
    nbController::setModified(1);
}

void sendToReceiver(const std::string& receiver, const char* suffix, nbMessage& message)
{
    nbController::call((receiver + suffix).c_str(), message, 0);
}

}  // namespace nbec::manipulator
