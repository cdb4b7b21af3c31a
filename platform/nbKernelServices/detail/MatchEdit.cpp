// SPDX-License-Identifier: MIT
#include "MatchEdit.h"

#include <nbKernelServices/nbObjectService.h>

void editMatch(const nbdObject& object, const char* property,
               const std::function<void(MatchState&)>& edit)
{
    MatchState* const state = MatchTable::find(object.getId());
    if (state == nullptr) {
        return;
    }
    const MatchState before = *state;
    edit(*state);
    if (!before.isSame(*state)) {
        nbObjectService::notify(object, property);
    }
}
