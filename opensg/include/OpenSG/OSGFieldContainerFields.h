// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>
#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGSField.h>

namespace osg {

typedef SField<FieldContainerPtr> SFFieldContainerPtr;
typedef MField<FieldContainerPtr> MFFieldContainerPtr;

}  // namespace osg
