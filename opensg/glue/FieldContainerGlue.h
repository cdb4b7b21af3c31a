// SPDX-License-Identifier: MIT
/// @file
/// Containers of one's own, from one source for the bundled scene graph and for a real OpenSG 1.8.
/// Used inside namespace osg, each line with a semicolon (lists of several lines need backslashes):
///
///     NB_CONTAINER_POINTER(Dial, TransformPtr);        // class Dial, DialPtr, DialRefPtr
///
///     #define DIAL_FIELDS(VALUE, OWNED, LINK)
///         VALUE(Offset, offset, Vec3f, Vec3f(0.0F, 0.0F, 0.0F))
///         OWNED(Paint, paint, MaterialPtr)
///         LINK(Target, target, NodePtr)
///         // VALUE(name for ids and functions, name of the field, type, start value):
///         //     getOffset (a reference), setOffset, getSFOffset, OffsetFieldId, OffsetFieldMask
///         // OWNED: counted while it is held, copied along by deepClone
///         // LINK: neither counted nor followed; null in a deepClone
///
///     class Dial : public Transform
///     {
///         NB_CONTAINER(Dial, Transform, DIAL_FIELDS);  // create(), getClassType(), ...
///
///     public:
///         void changed(BitVector whichField, UInt32 origin) override;  // calls Inherited::changed
///     };
///
///     NB_CONTAINER_TYPE(Dial, Transform, DIAL_FIELDS); // in one source, loaded before osgInit
///
/// A state chunk says NB_STATE_CHUNK and NB_STATE_CHUNK_TYPE instead: it has a chunk class (a slot)
/// of its own. NB_NO_FIELDS is the empty list. The macros make constructors and destructor; further
/// data members need start values where they are declared, and a copy starts with those.
#pragma once

#if defined(NBMANIPULATOR_SYSTEM_OPENSG)
#include <FieldContainerGlueSystem.h>
#else
#include <FieldContainerGlueBundled.h>
#endif
