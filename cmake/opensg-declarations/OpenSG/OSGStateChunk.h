// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGAttachment.h>

namespace osg {
class DrawActionBase;

class StateChunkClass
{
public:
    StateChunkClass(Char8* name, UInt32 slots = 1);
    UInt32 getId() const;
};

OSG_DECLARED_POINTER(StateChunk, AttachmentPtr);

class StateChunk : public Attachment
{
    OSG_DECLARED_TYPE(StateChunk, Attachment)
    virtual const StateChunkClass* getClass() const;
    UInt32 getClassId() const;
    virtual bool isTransparent() const;
    virtual void activate(DrawActionBase* action, UInt32 index = 0);
    virtual void changeFrom(DrawActionBase* action, StateChunk* old, UInt32 index = 0);
    virtual void deactivate(DrawActionBase* action, UInt32 index = 0);
};
}  // namespace osg
