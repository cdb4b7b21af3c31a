// SPDX-License-Identifier: MIT
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGGroup.h>

namespace {

/// Counted by hand: a counting pointer with static life would outlive the scene graph's own end.
struct Roots
{
    osg::NodePtr world;
    osg::NodePtr scene;
    osg::NodePtr internal;
    osg::NodePtr sceneplates;
    bool preselectionEnabled = true;
};

Roots& roots()
{
    static Roots theRoots;
    return theRoots;
}

void makeRoots()
{
    Roots& all = roots();
    all.world = osg::makeCoredNode<osg::Group>();
    osg::addRefCP(all.world);
    all.scene = osg::makeCoredNode<osg::Group>();
    all.internal = osg::makeCoredNode<osg::Group>();
    all.sceneplates = osg::makeCoredNode<osg::Group>();
    nbNodeUtils::setName(all.world, "WorldRoot");
    nbNodeUtils::setName(all.scene, "RootNode");
    nbNodeUtils::setName(all.internal, "InternalRoot");
    nbNodeUtils::setName(all.sceneplates, "SceneplateRoot");
    nbNodeUtils::setIsAuxiliaryNode(all.internal, true);
    nbNodeUtils::setIsAuxiliaryNode(all.sceneplates, true);
    const nbEdit edit(all.world, osg::Node::ChildrenFieldMask);
    all.world->addChild(all.scene);
    all.world->addChild(all.internal);
    all.world->addChild(all.sceneplates);
}

}  // namespace

osg::NodePtr nbScenegraph::getWorldRoot()
{
    if (roots().world == osg::NullFC) {
        makeRoots();
        nbOSGWidget::setRootOfAll(roots().world);
    }
    return roots().world;
}

osg::NodePtr nbScenegraph::getRootNode()
{
    getWorldRoot();
    return roots().scene;
}

osg::NodePtr nbScenegraph::getInternalRoot()
{
    getWorldRoot();
    return roots().internal;
}

osg::NodePtr nbScenegraph::getSceneplateRoot()
{
    getWorldRoot();
    return roots().sceneplates;
}

bool nbScenegraph::isPreselectionEnabled()
{
    return roots().preselectionEnabled;
}

void nbScenegraph::setPreselectionEnabled(bool enabled)
{
    roots().preselectionEnabled = enabled;
}

void nbScenegraph::clear()
{
    Roots old = roots();
    roots() = Roots();
    nbOSGWidget::setRootOfAll(osg::NullFC);
    osg::subRefCP(old.world);
}
