// SPDX-License-Identifier: MIT
#include "tests/manipulator/support/GizmoScene.h"

#include "tests/platform/support/Edited.h"

#include <nbKernel/nbScenegraph.h>

#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleGeometry.h>
#include <OpenSG/OSGSimpleMaterial.h>

#include <gtest/gtest.h>

#include <cstdio>

namespace nbec::manipulator::test {

GizmoScene::GizmoScene()
{
    widget.setMain();
    widget.resize(800, 600);
    lookFrom(osg::Pnt3f(0, 0, 10));
    node = osg::makeCoredNode<osg::Transform3D>();
    addChild(node, osg::makeBox(2, 2, 2, 1, 1, 1));
    addChild(nbScenegraph::getRootNode(), node);
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
    return osg::Pnt2f((device.x() + 1.0F) * 0.5F * static_cast<float>(widget.getWidth()),
                      (1.0F - device.y()) * 0.5F * static_cast<float>(widget.getHeight()));
}

bool GizmoScene::send(const std::string& event, const osg::Pnt2f& positionPx,
                      const std::string& hint)
{
    widget.setMousePosition(positionPx);
    manager.pointerMoved(positionPx);
    return manager.triggerEvent(interaction::InteractionEvent(event, "tool", hint));
}

void GizmoScene::lookFrom(const osg::Pnt3f& eye)
{
    widget.getUberCamera()->setFromAtUp(eye, osg::Pnt3f(0, 0, 0), osg::Vec3f(0, 1, 0));
}

void GizmoScene::setOrthographic(bool on)
{
    nbtest::edited(widget.getUberCamera(), osg::UberCamera::OrthographicFieldMask)
        ->setOrthographic(on);
}

void GizmoScene::install(AbstractManipulator& manipulator)
{
    manager.removeContext(&context);
    manipulator.setVisualisationRoot(nbScenegraph::getInternalRoot());
    context.setManipulator(&manipulator);
    manager.addContext(&context);
}

void addChild(const osg::NodePtr& above, const osg::NodePtr& child)
{
    nbtest::edited(above, osg::Node::ChildrenFieldMask)->addChild(child);
}

osg::Transform3DPtr transformOf(const osg::NodePtr& node)
{
    return osg::Transform3DPtr::dcast(node->getCore());
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

std::vector<osg::NodePtr> partsOf(const osg::NodePtr& tree)
{
    std::vector<osg::NodePtr> parts;
    if (osg::GeometryPtr::dcast(tree->getCore()) != osg::NullFC) {
        parts.push_back(tree);
    }
    for (osg::UInt32 i = 0; i < tree->getNChildren(); ++i) {
        const std::vector<osg::NodePtr> below = partsOf(tree->getChild(i));
        parts.insert(parts.end(), below.begin(), below.end());
    }
    return parts;
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
