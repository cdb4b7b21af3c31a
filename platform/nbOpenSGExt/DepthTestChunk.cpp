// SPDX-License-Identifier: MIT
#include "DepthTestChunk.h"

namespace osg {

NB_STATE_CHUNK_TYPE(DepthTestChunk, StateChunk, NB_DEPTH_TEST_CHUNK_FIELDS);

}  // namespace osg
