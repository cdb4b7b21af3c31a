// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGStateChunkFields.h>

namespace osg {

/// Kind of a state chunk: chunks of one kind replace each other in a state, slot by slot.
/// Made as static objects. A kind with n slots takes n ids in a row, one for each slot.
class StateChunkClass
{
public:
    /// @param slots  how many chunks of the kind may be in force at a time, at least 1
    explicit StateChunkClass(const Char8* name, UInt32 slots = 1);

    /// First id of the kind; slot s has the id getId() + s.
    UInt32 getId() const { return id; }

private:
    UInt32 id;
};

/// Part of a material's drawing state. Left out: everything that drives OpenGL (activate,
/// changeFrom, deactivate, switch costs); the renderer reads the chunks' fields instead and asks
/// their change counters whether it has to.
class StateChunk : public Attachment
{
    OSG_ABSTRACT_CONTAINER(StateChunk, Attachment, OSG_NO_FIELDS);

public:
    /// Kind of the chunk. A class derived from a chunk class shares its base's kind.
    virtual const StateChunkClass* getClass() const = 0;

    /// Id of the kind.
    UInt32 getClassId() const { return getClass()->getId(); }

    /// Whether the chunk makes the material that holds it transparent.
    virtual bool isTransparent() const;
};

}  // namespace osg
