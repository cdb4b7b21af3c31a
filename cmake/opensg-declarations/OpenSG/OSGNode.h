// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGDynamicVolume.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGNodePtr.h>

namespace osg {
class Node : public AttachmentContainer
{
    OSG_DECLARED_CLASS(Node, AttachmentContainer)
    OSG_DECLARED_MASK(Volume)
    OSG_DECLARED_VALUE(TravMask, UInt32)
    OSG_DECLARED_MASK(Parent)
    OSG_DECLARED_MASK(Children)
    OSG_DECLARED_MASK(Core)
    NodeCorePtr getCore() const;
    void setCore(const NodeCorePtr& core);
    NodePtr getParent() const;
    UInt32 getNChildren() const;
    NodePtr getChild(UInt32 index) const;
    void addChild(const NodePtr& child);
    void insertChild(UInt32 index, const NodePtr& child);
    void replaceChild(UInt32 index, const NodePtr& child);
    bool replaceChildBy(const NodePtr& oldChild, const NodePtr& newChild);
    Int32 findChild(const NodePtr& child) const;
    void subChild(const NodePtr& child);
    void subChild(UInt32 index);
    bool getActive() const;
    void setActive(bool active);
    Matrix getToWorld();
    void getToWorld(Matrix& result);
    void updateVolume();
    const DynamicVolume& getVolume() const;
    DynamicVolume& getVolume(bool update);
    void getWorldVolume(DynamicVolume& result);
    void invalidateVolume();
    NodePtr clone();
    MFNodePtr* getMFChildren();
    SFNodeCorePtr* getSFCore();
    SFNodePtr* getSFParent();
};

NodePtr cloneTree(const NodePtr& root);
FieldContainerPtr deepClone(const FieldContainerPtr& source, const std::string& shareTypes = "");
NodePtr deepCloneTree(const NodePtr& root, const std::string& shareTypes = "");
}  // namespace osg
