// SPDX-License-Identifier: MIT
#include "nbEditRecorder.h"

namespace {

nbEditRecorder* current = nullptr;

}  // namespace

nbEditRecorder* nbEditRecorder::get()
{
    return current;
}

void nbEditRecorder::set(nbEditRecorder* recorder)
{
    current = recorder;
}
