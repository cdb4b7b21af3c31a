// SPDX-License-Identifier: MIT
#include "manipulator/course/PreviewPause.h"

#include <nbKernel/nbController.h>
#include <nbUtils/nbMessage.h>

namespace nbec::manipulator {

namespace {

void sendEnabled(bool enabled)
{
    nbMessage message;
    message.set("enabled", enabled, true);
    nbController::call("setMatRenderEnabled", message, 0);
}

}  // namespace

void PreviewPause::begin()
{
    sendEnabled(false);
    isOwed = true;
}

void PreviewPause::resume()
{
    sendEnabled(true);
    nbController::call("updateMatRender", 0);
    isOwed = false;
}

void PreviewPause::end()
{
    if (isOwed) {
        resume();
    }
}

}  // namespace nbec::manipulator
