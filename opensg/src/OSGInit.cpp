// SPDX-License-Identifier: MIT
#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGFieldContainerFactory.h>

#include "OSGBuiltinTypes.h"

namespace osg {

void referenceTypes(std::initializer_list<const FieldContainerType*>) { }

bool osgInit(Int32, Char8**, UInt16, UInt16, UInt16)
{
    referenceCoreTypes();
    referenceGeometryTypes();
    referenceMaterialTypes();
    FieldContainerFactory::the()->initializePendingTypes();
    return true;
}

bool osgExit()
{
    FieldContainerFactory::the()->terminate();
    return true;
}

}  // namespace osg
