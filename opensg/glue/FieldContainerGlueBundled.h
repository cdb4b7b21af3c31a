// SPDX-License-Identifier: MIT
/// @file
/// The side of FieldContainerGlue.h for the bundled scene graph, whose own classes are declared
/// with the same machinery.
#pragma once

#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGNodeCore.h>
#include <OpenSG/OSGSFBaseTypes.h>
#include <OpenSG/OSGSFMathTypes.h>
#include <OpenSG/OSGSFSysTypes.h>
#include <OpenSG/OSGSFVecTypes.h>
#include <OpenSG/OSGStateChunk.h>
#include <OpenSG/OSGTransform.h>

#define NB_NO_FIELDS OSG_NO_FIELDS
#define NB_CONTAINER_POINTER(Class, BasePtr) OSG_CONTAINER_POINTER(Class, BasePtr)
#define NB_CONTAINER(Class, Base, FIELDS) OSG_CONTAINER(Class, Base, FIELDS)
#define NB_STATE_CHUNK(Class, Base, FIELDS) OSG_STATE_CHUNK(Class, Base, FIELDS)
#define NB_CONTAINER_TYPE(Class, Base, FIELDS) OSG_CONTAINER_TYPE(Class, Base)
#define NB_STATE_CHUNK_TYPE(Class, Base, FIELDS) OSG_STATE_CHUNK_TYPE(Class, Base)
