// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGDynamicVolume.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGNodeCorePtr.h>
#include <OpenSG/OSGNodeFields.h>
#include <OpenSG/OSGVector.h>

#include <memory>
#include <string>

namespace osg {

/// One place in the tree: a core, children, a flag. Counts its core and its children; the parent is
/// a plain back reference. Left out of real OpenSG: traversal, occlusion masks, aspects.
///
/// To-world matrices are kept per transform node and checked on use: a query walks up the ancestors
/// comparing matrices and multiplies only below a place where one differs. So it is right also
/// after a matrix was written without an edit, and equals the product from the root down.
///
/// An edit stamps the node and its ancestors; who reads a stamp gives the next edit a new one. So
/// every edit shows to all who looked before it, and a thousand edits that nobody looks at in
/// between walk up the tree once: above a node with the present stamp all have it.
class Node : public AttachmentContainer
{
    OSG_TYPE_ACCESS_(Node, AttachmentContainer);
    OSG_CREATION_(Node);

public:
    enum
    {
        VolumeFieldId = Inherited::NextFieldId,
        TravMaskFieldId,
        ParentFieldId,
        ChildrenFieldId,
        CoreFieldId,
        NextFieldId
    };

    static constexpr BitVector VolumeFieldMask = BitVector(1) << VolumeFieldId;
    static constexpr BitVector TravMaskFieldMask = BitVector(1) << TravMaskFieldId;
    static constexpr BitVector ParentFieldMask = BitVector(1) << ParentFieldId;
    static constexpr BitVector ChildrenFieldMask = BitVector(1) << ChildrenFieldId;
    static constexpr BitVector CoreFieldMask = BitVector(1) << CoreFieldId;

    // == Core

    NodeCorePtr getCore() const { return sfCore.getValue(); }

    /// Null takes the core away. The core is counted and its list of nodes kept right.
    void setCore(const NodeCorePtr& core);

    // == Tree

    /// Null for a root.
    NodePtr getParent() const { return sfParent.getValue(); }

    UInt32 getNChildren() const { return mfChildren.getSize(); }

    /// The index must be valid.
    NodePtr getChild(UInt32 index) const;

    /// Appends; takes the node from its parent first. Null is ignored.
    void addChild(const NodePtr& child);

    /// Inserts before the index; the number of children appends. Null is ignored.
    void insertChild(UInt32 index, const NodePtr& child);

    /// Puts a node in a child's place. Null is ignored.
    void replaceChild(UInt32 index, const NodePtr& child);

    /// False if the old node is no child or the new one is null.
    bool replaceChildBy(const NodePtr& oldChild, const NodePtr& newChild);

    /// Index, or -1.
    Int32 findChild(const NodePtr& child) const;

    /// Takes a child off; it is destroyed if nobody else holds it. A node that is no child is
    /// logged.
    void subChild(const NodePtr& child);
    void subChild(UInt32 index);

    // == Flags

    /// Whether the traversal mask is 0xffffffff.
    bool getActive() const { return sfTravMask.getValue() == 0xffffffffu; }

    /// Sets the traversal mask to 0xffffffff or 0.
    void setActive(bool active) { sfTravMask.setValue(active ? 0xffffffffu : 0u); }

    UInt32& getTravMask() { return sfTravMask.getValue(); }

    const UInt32& getTravMask() const { return sfTravMask.getValue(); }

    void setTravMask(const UInt32& mask) { sfTravMask.setValue(mask); }

    // == Space

    /// World from this node's own frame: the product of all matrices from the root down to and
    /// including this node's core.
    Matrix getToWorld();
    void getToWorld(Matrix& result);

    /// Works out what is invalid of the volumes from here down. A node's volume is in the parent's
    /// frame; inactive children (mask 0) do not count.
    void updateVolume();

    /// The volume as it is, perhaps invalid.
    const DynamicVolume& getVolume() const { return volume; }

    /// The volume, brought up to date first if wanted.
    DynamicVolume& getVolume(bool update);

    /// The up-to-date volume in the world.
    void getWorldVolume(DynamicVolume& result);

    /// Marks the volumes of this node and of all ancestors as out of date.
    void invalidateVolume()
    {
        volume.setValid(false);
        // Above an invalid one all are invalid, or do not depend on it because a node is inactive.
        for (Node* node = getParent().getCPtr(); node != nullptr && node->volume.isValid();
             node = node->getParent().getCPtr()) {
            node->volume.setValid(false);
        }
    }

    // == Copies and fields

    /// A tree of new nodes with the same cores; names and other attachments stay behind. Count 0.
    NodePtr clone();

    MFNodePtr* getMFChildren() { return &mfChildren; }

    const MFNodePtr* getMFChildren() const { return &mfChildren; }

    SField<NodeCorePtr>* getSFCore() { return &sfCore; }

    SField<UInt32>* getSFTravMask() { return &sfTravMask; }

    SFNodePtr* getSFParent() { return &sfParent; }

    /// An edit of children, core or mask invalidates the volumes from here up.
    void changed(BitVector whichField, UInt32 origin) override;

protected:
    Node();

    /// A copy has the same core, mask and attachments, no parent and no children.
    Node(const Node& source);

    ~Node() override;

    void noteEdit() override;

private:
    friend class NodeCore;
    friend class ContainerCloner;
    friend UInt64 getSubtreeChangeCount(const NodePtr& node);
    struct WorldCache;

    UInt64 readChange() const
    {
        if (lastChange == presentStamp) {
            ++presentStamp;
        }
        return lastChange;
    }

    void noteSubtreeChange()
    {
        for (Node* node = this; node != nullptr && node->lastChange != presentStamp;
             node = node->getParent().getCPtr()) {
            node->lastChange = presentStamp;
        }
    }

    void attach(UInt32 index, const NodePtr& child);
    void removeAt(UInt32 index);
    void extendVolume();
    WorldCache& worldCacheBelow(const WorldCache* above, const Matrix& local);
    const WorldCache* findWorld();
    /// Without a cloner cores are shared and attachments left out.
    NodePtr copyAlone(ContainerCloner* cloner) const;
    NodePtr copyTree(ContainerCloner* cloner) const;

    static UInt64 presentStamp;  ///< of edits that nobody has seen yet

    // In this order what an edit below touches lies close together.
    SField<UInt32> sfTravMask { 0xffffffffu };
    SFNodePtr sfParent;
    SField<NodeCorePtr> sfCore;
    UInt64 lastChange = 0;  ///< stamp of the latest edit in the subtree
    DynamicVolume volume;
    std::unique_ptr<WorldCache> world;
    MFNodePtr mfChildren;
};

/// See Node::clone. Null gives null.
NodePtr cloneTree(const NodePtr& root);

/// New nodes and new cores with names and all other attachments, and all that the cores own except
/// what is of the types named (see deepClone). Null gives null.
NodePtr deepCloneTree(const NodePtr& root, const std::string& shareTypes = "");

}  // namespace osg
