// SPDX-License-Identifier: MIT
#include "NodeFlags.h"

namespace osg {

NB_CONTAINER_TYPE(NodeFlags, Attachment, NB_NODE_FLAGS_FIELDS);

}  // namespace osg
