// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGQuaternion.h>

namespace osg {
typedef MField<Matrix> MFMatrix;
typedef MField<Quaternion> MFQuaternion;
}  // namespace osg
