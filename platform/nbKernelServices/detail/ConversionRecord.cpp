// SPDX-License-Identifier: MIT
#include "ConversionRecord.h"

#include <nbOpenSGExt/nbContainerId.h>
#include <nbOpenSGUtils/nbEdit.h>

namespace {

const osg::BitVector kStructure = osg::Node::CoreFieldMask | osg::Node::ChildrenFieldMask;

void moveChildren(const osg::NodePtr& from, const osg::NodePtr& to)
{
    while (from->getNChildren() > 0) {
        to->addChild(from->getChild(0));
    }
}

}  // namespace

ConversionRecord::ConversionRecord(const nbNodeConversion& done)
    : nodeId(done.node.getFieldContainerId())
    , oldCore(done.oldCore)
    , newCore(done.newCore)
    , insertedChild(done.insertedChild)
{
    if (insertedChild) {
        childCore = insertedChild->getCore();
    }
}

void ConversionRecord::undo()
{
    const auto node = resolveContainer<osg::NodePtr>(nodeId);
    if (node == osg::NullFC || node->getCore() != newCore) {
        return;
    }
    const nbEdit nodeEdit(node, kStructure);
    if (insertedChild && insertedChild->getParent() == node) {
        const nbEdit childEdit(insertedChild, kStructure);
        node->subChild(insertedChild);
        moveChildren(insertedChild, node);
        // A core that goes back to the node must not seem to be shared.
        insertedChild->setCore(osg::NullFC);
    }
    node->setCore(oldCore);
}

void ConversionRecord::redo()
{
    const auto node = resolveContainer<osg::NodePtr>(nodeId);
    if (node == osg::NullFC || node->getCore() != oldCore) {
        return;
    }
    const nbEdit nodeEdit(node, kStructure);
    node->setCore(newCore);
    if (insertedChild) {
        const nbEdit childEdit(insertedChild, kStructure);
        insertedChild->setCore(childCore);
        moveChildren(node, insertedChild);
        node->addChild(insertedChild);
    }
}
