// SPDX-License-Identifier: MIT
#include "tests/manipulator/support/GizmoScene.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGUberCamera/UberCamera.h>

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleGeometry.h>
#include <OpenSG/OSGSimpleMaterial.h>

#include <cstdio>

namespace nbec::manipulator::test {

namespace {

constexpr int kWidth = 800;
constexpr int kHeight = 600;

}  // namespace

GizmoScene::GizmoScene()
{
    widget.setMain();
    widget.resize(kWidth, kHeight);
    widget.getUberCamera()->setFromAtUp(osg::Pnt3f(0, 0, 10), osg::Pnt3f(0, 0, 0),
                                        osg::Vec3f(0, 1, 0));
    node = osg::makeCoredNode<osg::Transform3D>();
    osg::beginEditCP(node, osg::Node::ChildrenFieldMask);
    node->addChild(osg::makeBox(2, 2, 2, 1, 1, 1));
    osg::endEditCP(node, osg::Node::ChildrenFieldMask);
    const osg::NodePtr scene = nbScenegraph::getRootNode();
    osg::beginEditCP(scene, osg::Node::ChildrenFieldMask);
    scene->addChild(node);
    osg::endEditCP(scene, osg::Node::ChildrenFieldMask);
    context.setPicker(&picker);
}

GizmoScene::~GizmoScene()
{
    manager.removeContext(&context);
    context.setPicker(nullptr);
    nbScenegraph::clear();
}

osg::Pnt2f GizmoScene::pixelOf(const osg::Pnt3f& world) const
{
    osg::Matrix clipFromWorld;
    widget.getCamera()->getWorldToScreen(clipFromWorld, *widget.getViewport());
    osg::Pnt3f device;
    clipFromWorld.multFullMatrixPnt(world, device);
    return osg::Pnt2f((device.x() + 1.0F) * 0.5F * static_cast<float>(kWidth),
                      (1.0F - device.y()) * 0.5F * static_cast<float>(kHeight));
}

bool GizmoScene::send(const std::string& event, const osg::Pnt2f& positionPx,
                      const std::string& hint)
{
    widget.setMousePosition(positionPx);
    manager.pointerMoved(positionPx);
    return manager.triggerEvent(interaction::InteractionEvent(event, "tool", hint));
}

void GizmoScene::install(AbstractManipulator& manipulator)
{
    manager.removeContext(&context);
    manipulator.setVisualisationRoot(nbScenegraph::getInternalRoot());
    context.setManipulator(&manipulator);
    manager.addContext(&context);
}

osg::NodePtr findNode(const osg::NodePtr& tree, const std::string& name)
{
    const char* const own = osg::getName(tree);
    if (own != nullptr && name == own) {
        return tree;
    }
    for (osg::UInt32 i = 0; i < tree->getNChildren(); ++i) {
        const osg::NodePtr found = findNode(tree->getChild(i), name);
        if (found != osg::NullFC) {
            return found;
        }
    }
    return osg::NodePtr();
}

std::string colorOf(const osg::NodePtr& geometryNode)
{
    const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(geometryNode->getCore());
    const osg::SimpleMaterialPtr material = osg::SimpleMaterialPtr::dcast(geometry->getMaterial());
    const osg::Color3f color = material->getDiffuse();
    char text[32];
    std::snprintf(text, sizeof text, "%.2g %.2g %.2g", static_cast<double>(color.red()),
                  static_cast<double>(color.green()), static_cast<double>(color.blue()));
    return text;
}

bool isShown(const osg::NodePtr& node)
{
    for (osg::NodePtr it = node; it != osg::NullFC; it = it->getParent()) {
        if (!it->getActive()) {
            return false;
        }
    }
    return true;
}

}  // namespace nbec::manipulator::test
