// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGAttachmentPtr.h>
#include <OpenSG/OSGFieldContainerPtr.h>
#include <OpenSG/OSGFieldContainerType.h>

namespace osg {

class NodeCore;
class NodePtr;
class AttachmentContainerPtr;
typedef FCPtr<AttachmentContainerPtr, NodeCore> NodeCorePtr;

/// Knows all types and all living containers. One object that is never destroyed, so that
/// containers may be given up as late as in destructors of static objects.
/// Ids count up from 1 and are never used again; the memory of the table of ids follows the number
/// of living containers, and a look-up takes constant time.
/// Left out of real OpenSG: mappers, type groups, change lists.
class FieldContainerFactory
{
public:
    static FieldContainerFactory* the();

    /// Makes types that were constructed since the last call known by name, base classes first, and
    /// creates their prototypes. osgInit calls it; so does whoever loads a library with types
    /// later.
    void initializePendingTypes();

    /// Destroys the prototypes and forgets the types until the next initializePendingTypes.
    /// Part of osgExit.
    void terminate();

    /// The living container of an id; null for 0, ids never given out, and destroyed containers.
    FieldContainerPtr getContainer(UInt32 id) const;

    /// NULL if unknown.
    FieldContainerType* findType(const Char8* name) const;
    FieldContainerType* findType(UInt32 typeId) const;

    UInt32 getNumTypes() const;

    /// A new container by the name of its type, with count 0; null if the name is unknown, the type
    /// abstract or (for the last three) not of that kind.
    FieldContainerPtr createFieldContainer(const Char8* name) const;
    NodePtr createNode(const Char8* name) const;
    NodeCorePtr createNodeCore(const Char8* name) const;
    AttachmentPtr createAttachment(const Char8* name) const;

    FieldContainerFactory(const FieldContainerFactory&) = delete;
    FieldContainerFactory& operator=(const FieldContainerFactory&) = delete;

private:
    friend class FieldContainer;
    friend class FieldContainerType;

    struct Tables;

    FieldContainerFactory();

    UInt32 registerContainer(FieldContainer* container);
    void unregisterContainer(FieldContainer* container);
    void addPendingType(FieldContainerType& type);
    void removeType(FieldContainerType& type);
    void initialize(FieldContainerType& type);

    Tables* tables;
};

}  // namespace osg
