// SPDX-License-Identifier: MIT
#include "nbStateChunkBase.h"

// Here, so that the table of virtual operations is in this library alone.
nbStateChunkBase::~nbStateChunkBase() = default;
