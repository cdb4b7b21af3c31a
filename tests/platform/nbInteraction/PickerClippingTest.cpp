// SPDX-License-Identifier: MIT
#include "tests/platform/support/Edited.h"

#include <nbOpenSGExt/ClipPlane3D.h>

#include "PickerTestSupport.h"

namespace {

/// A plane whose frame is a transform node of its own; the half with x below the frame's origin is
/// cut away.
class PickerClipping : public PickerTest
{
protected:
    PickerClipping()
        : frame(placed(0.0f, 0.0f, 0.0f, osg::makeCoredNode<osg::Group>()))
        , cut(osg::makeCoredNode<osg::ClipPlane3D>(&plane))
    {
        hang(nbScenegraph::getRootNode(), frame);
        hang(nbScenegraph::getRootNode(), cut);
        const nbEdit edit(plane, osg::FieldBits::AllFields);
        plane->setEquation(osg::Vec4f(1.0f, 0.0f, 0.0f, 0.0f));
        plane->setTransformNode(frame);
    }

    osg::NodePtr frame;
    osg::ClipPlane3DPtr plane;
    osg::NodePtr cut;
};

TEST_F(PickerClipping, SwitchedOffOrLiftedItCutsNothing)
{
    const osg::NodePtr cube = box(4.0f);
    hang(cut, cube);
    ASSERT_EQ(pickAt(380.0f, 300.0f), osg::NullFC);

    nbtest::edited(plane, osg::ClipPlane3D::EnableFieldMask)->setEnable(false);
    EXPECT_EQ(pickAt(380.0f, 300.0f), cube);
    nbtest::edited(plane, osg::ClipPlane3D::EnableFieldMask)->setEnable(true);
    EXPECT_EQ(pickAt(380.0f, 300.0f), osg::NullFC);
    hang(nbScenegraph::getRootNode(), cube);
    EXPECT_EQ(pickAt(380.0f, 300.0f), cube);
}

TEST_F(PickerClipping, ManyItemsAreCutAlike)
{
    std::vector<osg::NodePtr> cubes;
    for (int i = -4; i <= 4; ++i) {
        cubes.push_back(box(0.8f));
        hang(cut, placed(static_cast<float>(i), 0.0f, 0.0f, cubes.back()));
    }

    EXPECT_EQ(pickAt(400.0f + 60.0f, 300.0f), cubes[6]);
    EXPECT_EQ(pickAt(400.0f - 60.0f, 300.0f), osg::NullFC);

    // A rectangle takes what is seen of them.
    EXPECT_EQ(picker.pickRectangle(QRect(0, 0, 800, 600)).size(), 5U);
}

}  // namespace
