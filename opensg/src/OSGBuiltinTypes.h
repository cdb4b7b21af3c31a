// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGFieldContainerType.h>

#include <initializer_list>

namespace osg {

/// Keeps the linker from leaving classes out that are only asked for by name: a type whose address
/// is taken here is in every program. The lists are passed to no one else.
void referenceTypes(std::initializer_list<const FieldContainerType*> types);

/// What is declared by the containers, nodes and cores.
void referenceCoreTypes();

/// Geometry and its properties.
void referenceGeometryTypes();

/// Materials, chunks, images, cameras, viewports and windows.
void referenceMaterialTypes();

}  // namespace osg
