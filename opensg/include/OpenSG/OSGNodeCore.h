// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGNodeCorePtr.h>
#include <OpenSG/OSGNodeFields.h>
#include <OpenSG/OSGVolume.h>

namespace osg {

/// What a node is: a group, a transform, a geometry ... Any number of nodes may share one.
/// Left out of real OpenSG: drawing and traversal functions per core.
class NodeCore : public AttachmentContainer
{
    OSG_TYPE_ACCESS_(NodeCore, AttachmentContainer);

public:
    enum
    {
        ParentsFieldId = Inherited::NextFieldId,
        NextFieldId
    };

    static constexpr BitVector ParentsFieldMask = BitVector(1) << ParentsFieldId;

    /// The nodes that have this core, in the order in which they got it. They are not counted.
    MFNodePtr& getParents() { return mfParents; }

    const MFNodePtr& getParents() const { return mfParents; }

    NodePtr& getParents(UInt32 index) { return mfParents[index]; }

    const NodePtr& getParents(UInt32 index) const { return mfParents[index]; }

    MFNodePtr* getMFParents() { return &mfParents; }

    const MFNodePtr* getMFParents() const { return &mfParents; }

    /// The matrix between the frames below and above the core; null stands for the identity.
    virtual const Matrix* getLocalMatrix() const { return nullptr; }

    /// Turns the volume of the children, in the frame below the core, into the node's volume in the
    /// parent's frame: a geometry extends it by its points, a transform moves it.
    virtual void adjustVolume(Volume& volume);

    /// Has the volumes of all nodes with this core, and of their ancestors, worked out again.
    void invalidateVolume();

    // A core may be part of something other than a node, as a transform is of a projection in a
    // material. Its edits then count for all trees, see getTreeChangeCount.
    void ownerAdded(FieldContainer& owner) override;
    void ownerRemoved(FieldContainer& owner) override;

protected:
    NodeCore() = default;

    /// A copy belongs to no node.
    NodeCore(const NodeCore& source);

    ~NodeCore() override;

    void noteEdit() override;

private:
    friend class Node;

    void addParent(const NodePtr& parent);
    void subParent(const NodePtr& parent);

    MFNodePtr mfParents;
    UInt32 ownerCount = 0;  ///< containers, other than nodes, that hold this one in a field
};

}  // namespace osg
