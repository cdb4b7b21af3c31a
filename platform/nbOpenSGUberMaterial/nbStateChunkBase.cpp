// SPDX-License-Identifier: MIT
#include "nbStateChunkBase.h"

nbStateChunkBase::~nbStateChunkBase() = default;

void nbStateChunkBase::componentChanged(const std::string&) { }
