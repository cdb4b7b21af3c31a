// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGSField.h>

namespace osg {

typedef SField<NodePtr> SFNodePtr;
typedef MField<NodePtr> MFNodePtr;

}  // namespace osg
