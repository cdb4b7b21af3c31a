// SPDX-License-Identifier: MIT
#include <OpenSG/OSGMatrixCamera.h>

namespace osg {

OSG_CONTAINER_TYPE(MatrixCamera, Camera);

}  // namespace osg
