// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGSField.h>

namespace osg {
typedef SField<Matrix> SFMatrix;
typedef SField<Quaternion> SFQuaternion;
}  // namespace osg
