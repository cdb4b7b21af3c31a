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
    /// @param name   name of the kind, kept as a copy
    /// @param slots  how many chunks of the kind a state holds at a time, at least 1
    explicit StateChunkClass(const Char8* name, UInt32 slots = 1);

    /// First id of the kind; slot s has the id getId() + s.
    UInt32 getId() const { return id; }

    /// Name of the kind.
    const Char8* getName() const;

    /// Number of slots.
    Int32 getNumSlots() const;

    /// Name of the kind that an id belongs to; null for an id that was never given out.
    static const Char8* getName(UInt32 anyId);

    /// Number of slots of the kind that an id belongs to; 0 for an id that was never given out.
    static Int32 getNumSlots(UInt32 anyId);

    /// Number of ids given out so far: the length of a state's table.
    static UInt32 getUsedSlots();

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

    /// Differs when the chunk or a part of it was edited or replaced; see OSGContentStamp.h.
    virtual UInt64 getContentStamp() const;
};

}  // namespace osg
