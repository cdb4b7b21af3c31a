// SPDX-License-Identifier: MIT
#include "tests/platform/support/PictureTest.h"

#include <nbOpenSGExt/ClipPlane3D.h>
#include <nbOpenSGExt/Transform3D.h>

using namespace rendertest;

namespace {

/// Cuts off what lies to the left of x in the frame of the transform node, or of its own node.
osg::NodePtr cutBy(const osg::Vec4f& equation, const osg::NodePtr& child,
                   const osg::NodePtr& transformNode = osg::NullFC)
{
    osg::ClipPlane3DPtr core;
    const osg::NodePtr node = osg::makeCoredNode<osg::ClipPlane3D>(&core);
    core->setEquation(equation);
    core->setTransformNode(transformNode);
    node->addChild(child);
    return node;
}

osg::NodePtr horizontalLine(float width)
{
    return placed(colored(nbGeoFactory::makeLine(3.f), with(unlit(kGreen), lineChunk(width))),
                  osg::Vec3f(0.f, 0.f, 0.f),
                  osg::Quaternion(osg::Vec3f(0.f, 0.f, 1.f), osg::Pi / 2));
}

const osg::Vec4f kRightHalf(1.f, 0.f, 0.f, 0.f);
const osg::Vec4f kUpperHalf(0.f, 1.f, 0.f, 0.f);

}  // namespace

using nbRenderClippingTest = RenderTest;

TEST_F(nbRenderClippingTest, PlanesCutWhatIsBelowThemAndNothingElse)
{
    const osg::NodePtr beside = placed(square(1.f, unlit(kBlue)), osg::Vec3f(-1.5f, -1.5f, 0.f));

    const osg::NodePtr cut = cutBy(kRightHalf, square(2.f, unlit(kRed)));
    const QImage picture = draw(group({ cut, beside }));

    EXPECT_EQ(at(picture, 0.1f, 0.5f), kRed);
    EXPECT_NE(at(picture, -0.1f, 0.5f), kRed);
    EXPECT_EQ(at(picture, -1.5f, -1.5f), kBlue);
    const auto core = osg::ClipPlane3DPtr::dcast(cut->getCore());
    nbtest::edited(core, osg::ClipPlane3D::EnableFieldMask)->setEnable(false);
    EXPECT_EQ(at(redraw(), -0.5f, 0.f), kRed);
}

TEST_F(nbRenderClippingTest, LinesAreCutAsSurfacesAreAndHandlesNever)
{
    const QImage line = draw(group({ cutBy(kRightHalf, horizontalLine(8.f)) }));
    EXPECT_EQ(at(line, 0.5f, 0.f), kGreen);
    EXPECT_NE(at(line, -0.5f, 0.f), kGreen);

    const QImage handle = draw(group({ cutBy(kRightHalf, manipulator({ horizontalLine(8.f) })) }));
    EXPECT_EQ(at(handle, -0.5f, 0.f), kGreen);
}

TEST_F(nbRenderClippingTest, MovingTheTransformNodeMovesTheCut)
{
    // Outside of the tree that is drawn, where no edit of it is noticed by the tree.
    const osg::Transform3DPtr mover = osg::Transform3D::create();
    const osg::NodeRefPtr moverNode(osg::makeNodeFor(mover));
    const QImage before = draw(group({ cutBy(kUpperHalf, square(2.f, unlit(kRed)), moverNode) }));
    EXPECT_EQ(at(before, 0.f, 0.5f), kRed);
    EXPECT_NE(at(before, 0.f, -0.5f), kRed);

    nbtest::edited(mover)->setTranslation(osg::Vec3f(0.5f, 0.f, 0.f));
    nbtest::edited(mover)->setRotation(osg::Vec3f(0.f, 0.f, 90.f));
    const QImage after = redraw();

    // Up has turned to the left of x = 0.5.
    EXPECT_EQ(at(after, 0.4f, 0.5f), kRed);
    EXPECT_EQ(at(after, 0.4f, -0.5f), kRed);
    EXPECT_NE(at(after, 0.6f, 0.5f), kRed);
}

TEST_F(nbRenderClippingTest, TheSameSideStaysUnderMirrorsAndUnevenScales)
{
    const osg::NodeRefPtr mover(transformed(group({}), {}, {}, osg::Vec3f(-2.f, 1.f, 1.f)));
    // What stays are the points beyond (1, 0) and (0, 1), now at (-2, 0) and (0, 1).
    const osg::Vec4f slanted(1.f, 1.f, 0.f, -1.f);
    expectColors(draw(group({ cutBy(slanted, square(3.9f, unlit(kRed)), mover) })),
                 { { -1.f, 0.55f, kRed },
                   { -1.f, 0.45f, kBlack },
                   { 1.f, 1.55f, kRed },
                   { 1.f, 1.45f, kBlack } },
                 "cut");
}
