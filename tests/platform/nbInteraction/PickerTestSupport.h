// SPDX-License-Identifier: MIT
#pragma once

#include "tests/platform/support/Edited.h"

#include <nbInteraction/Picker.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGCoredNodePtr.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSimpleGeometry.h>
#include <OpenSG/OSGTransform.h>

#include <gtest/gtest.h>

#include <string>

/// A view of 800 x 600 pixels: eye at (0, 0, 10), looking along -z, 90 degrees from bottom to top.
/// The plane at view depth d is 2 d high, so a unit covers 300 / d pixels: 30 in the plane z = 0.
/// Its origin is at (400, 300).
class PickerTest : public testing::Test
{
protected:
    PickerTest()
    {
        widget.resize(800, 600);
        const osg::UberCameraPtr camera = widget.getUberCamera();
        {
            const nbEdit edit(camera, osg::FieldBits::AllFields);
            camera->setFov(90.0f);
            camera->setNear(1.0f);
            camera->setFar(100.0f);
        }
        camera->setFromAtUp({ 0.0f, 0.0f, 10.0f }, { 0.0f, 0.0f, 0.0f }, { 0.0f, 1.0f, 0.0f });
    }

    ~PickerTest() override { nbScenegraph::clear(); }

    static void hang(const osg::NodePtr& parent, const osg::NodePtr& child)
    {
        nbtest::edited(parent, osg::Node::ChildrenFieldMask)->addChild(child);
    }

    /// A transform node with the given children.
    static osg::NodePtr placed(const osg::Matrix& matrix, const osg::NodePtr& child)
    {
        const osg::TransformPtr transform = osg::Transform::create();
        transform->setMatrix(matrix);
        const osg::NodePtr node = osg::makeNodeFor(transform);
        hang(node, child);
        return node;
    }

    static osg::NodePtr placed(float x, float y, float z, const osg::NodePtr& child)
    {
        osg::Matrix matrix;
        matrix.setTranslate(x, y, z);
        return placed(matrix, child);
    }

    static void setMatrix(const osg::NodePtr& node, const osg::Matrix& matrix)
    {
        const osg::TransformPtr transform = osg::TransformPtr::dcast(node->getCore());
        const nbEdit edit(transform, osg::Transform::MatrixFieldMask);
        transform->setMatrix(matrix);
    }

    static void setActive(const osg::NodePtr& node, bool on)
    {
        nbtest::edited(node, osg::Node::TravMaskFieldMask)->setActive(on);
    }

    static osg::NodePtr box(float size) { return osg::makeBox(size, size, size, 1, 1, 1); }

    static osg::NodePtr named(const std::string& name, const osg::NodePtr& node)
    {
        nbNodeUtils::setName(node, name);
        return node;
    }

    osg::NodePtr pickAt(float x, float y) { return picker.pickAt({ x, y }); }

    std::string nameAt(float x, float y) { return nbNodeUtils::getName(pickAt(x, y)); }

    nbOSGWidget widget;
    nbec::interaction::Picker picker;
};
