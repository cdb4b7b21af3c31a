// SPDX-License-Identifier: MIT
#include "NodePermissions.h"

namespace osg {

NB_CONTAINER_TYPE(NodePermissions, Attachment, NB_NODE_PERMISSIONS_FIELDS);

}  // namespace osg
