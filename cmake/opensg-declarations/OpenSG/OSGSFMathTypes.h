// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGSField.h>
#include <OpenSG/OSGQuaternion.h>
namespace osg {
typedef SField<Matrix> SFMatrix;
typedef SField<Quaternion> SFQuaternion;
}  // namespace osg
