// SPDX-License-Identifier: MIT
#include "manipulator/texture/MaterialComponent.h"

#include <nbKernel/nbController.h>
#include <nbUtils/nbMessage.h>

namespace nbec::manipulator::texture {

void MaterialComponent::send(const char* suffix, nbMessage& message) const
{
    nbController::call((receiver + suffix).c_str(), message, 0);
}

}  // namespace nbec::manipulator::texture
