// SPDX-License-Identifier: MIT
// The marks of further nodes stand at their pivots after every step, however the step knows where.
#include "tests/manipulator/support/HandleScene.h"
#include "tests/platform/support/Edited.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGUberCamera/UberCamera.h>

#include <OpenSG/OSGGeometry.h>

namespace nbec::manipulator::test {

namespace {

using Gizmo = UniversalTransformManipulator2;
using Mode = Gizmo::ManipulatorMode;

/// A gizmo on one node, with two further ones: one turned, with pivots apart, and one below a
/// turned and scaled parent.
class Marks : public testing::Test
{
protected:
    Marks()
    {
        turned = drags.addFurther(Vec3f(3, 0, 0));
        below = drags.addFurther(Vec3f(0, 3, 0));
        const osg::NodePtr holder = osg::makeCoredNode<osg::Transform3D>();
        nbScenegraph::getRootNode()->addChild(holder);
        holder->addChild(below);
        const auto change = [](const osg::NodePtr& node, const Vec3f& scale) {
            const auto core = transformOf(node);
            osg::beginEditCP(core);
            core->setRotation(Vec3f(10, 20, 30));
            core->setScale(scale);
            core->setRotatePivot(Vec3f(0.5F, 0.25F, 0));
            core->setScalePivot(Vec3f(-0.5F, 0, 0.75F));
            osg::endEditCP(core);
        };
        change(turned, Vec3f(1, 2, 1));
        change(holder, Vec3f(2, 1, 1));
        drags.gizmo.setNode(drags.scene.node, { turned, below });
    }

    Pnt3f pivotOf(const osg::NodePtr& node, bool scalePivot) const
    {
        const auto core = transformOf(node);
        Pnt3f pivot(core->getTranslation() + core->getRotatePivot());
        if (scalePivot) {
            pivot = Pnt3f(core->getScalePivot());
            core->computeMatrix().multMatrixPnt(pivot);
        }
        node->getParent()->getToWorld().multMatrixPnt(pivot);
        return pivot;
    }

    /// The middle of a mark's lines. @param length  receives that of its first line
    Pnt3f markAt(osg::UInt32 index, float& length)
    {
        const osg::NodePtr marks = drags.gizmo.getVisualisation()->getChild(0)->getChild(0);
        const auto geometry = osg::GeometryPtr::dcast(marks->getCore());
        const osg::GeoPositionsPtr points = geometry->getPositions();
        osg::UInt32 drawn = 0;
        for (osg::UInt32 i = 0; i < geometry->getLengths()->getSize(); ++i) {
            drawn += geometry->getLengths()->getValue(i);
        }
        EXPECT_EQ(drawn, 12U) << "two marks of three lines";
        EXPECT_NE(geometry->getMaterial(), osg::NullFC);
        Vec3f sum;
        for (osg::UInt32 i = 0; i < 6; ++i) {
            sum += points->getValue(6 * index + i).subZero();
        }
        length = (points->getValue(6 * index + 1) - points->getValue(6 * index)).length();
        return Pnt3f(sum * (1.0F / 6.0F));
    }

    void expectMarksAtPivots(bool scalePivot)
    {
        const osg::NodePtr frame = drags.gizmo.getVisualisation()->getChild(3)->getChild(0);
        const float size = transformOf(frame)->getScale().x();
        osg::UInt32 index = 0;
        for (const osg::NodePtr& node : { turned, below }) {
            float length = 0.0F;
            const Pnt3f mark = markAt(index++, length);
            EXPECT_LT((mark - pivotOf(node, scalePivot)).length(), 1e-4F);
            EXPECT_NEAR(length, 0.3F * size, 1e-5F);
        }
    }

    void moveCore(const osg::NodePtr& node)
    {
        const auto core = transformOf(node);
        nbtest::edited(core, osg::Transform3D::TranslationFieldMask)
            ->setTranslation(core->getTranslation() + Vec3f(0, 0, 1));
    }

    DragScene drags;
    osg::NodePtr turned;
    osg::NodePtr below;
};

}  // namespace

TEST_F(Marks, StandAtThePivotsAfterEveryStep)
{
    const std::pair<Mode, Vec3f> rows[] = { { Mode::Translate, kArrow },
                                            { Mode::Rotate, kRing },
                                            { Mode::Scale, kScaleHandle },
                                            { Mode::RotatePivot, kArrow },
                                            { Mode::ScalePivot, kArrow } };
    for (const bool local : { false, true }) {
        Gizmo::setLocalSpaceManipulator(local);
        for (const auto& [mode, handle] : rows) {
            SCOPED_TRACE(static_cast<int>(mode));
            drags.activate(mode);
            const bool scalePivot = mode == Mode::Scale || mode == Mode::ScalePivot;
            expectMarksAtPivots(scalePivot);
            ASSERT_TRUE(drags.grab(handle));
            for (float offset = 3; offset < 13; offset += 3) {
                EXPECT_TRUE(drags.stepTo(Vec2f(offset, -offset)));
                expectMarksAtPivots(scalePivot);
            }
            EXPECT_TRUE(drags.release());
            expectMarksAtPivots(scalePivot);
        }
    }
}

TEST_F(Marks, GrowWithTheCamerasDistanceAndFollowANodeThatMovesMeanwhile)
{
    const osg::UberCameraPtr camera = drags.scene.widget.getUberCamera();
    for (int i = 1; i < 6; ++i) {
        camera->setFromAtUp(Pnt3f(0, 0, 10.0F + static_cast<float>(i)), Pnt3f(0, 0, 0),
                            Vec3f(0, 1, 0));
        if (i == 3) {
            moveCore(turned);
        }
        Gizmo::updateAllManipulators();
        expectMarksAtPivots(false);
    }
}

}  // namespace nbec::manipulator::test
