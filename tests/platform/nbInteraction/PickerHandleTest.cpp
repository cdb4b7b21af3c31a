// SPDX-License-Identifier: MIT
#include <nbInteraction/InputTranslator.h>
#include <nbInteraction/InteractionManager.h>
#include <nbOpenSGUtils/nbGeoFactory.h>

#include <OpenSG/OSGLineChunk.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGSimpleMaterial.h>

#include <QMouseEvent>

#include "PickerTestSupport.h"

namespace {

/// Handles below a group in the internal root, which is the pick node.
class PickerHandles : public PickerTest
{
protected:
    PickerHandles()
    {
        hang(nbScenegraph::getInternalRoot(), collider);
        picker.setFilter(nbec::interaction::Picker::HandleFilter);
        picker.setPickNode(collider);
    }

    static osg::MaterialPtr lineMaterial(float width)
    {
        const osg::LineChunkPtr chunk = osg::LineChunk::create();
        chunk->setWidth(width);
        const osg::SimpleMaterialPtr material = osg::SimpleMaterial::create();
        material->addChunk(chunk);
        return material;
    }

    /// A line along y, 2 long, with a line width in pixels.
    static osg::NodePtr line(const std::string& name, float width)
    {
        const osg::NodePtr node = nbGeoFactory::makeLine(2.0f);
        osg::GeometryPtr::dcast(node->getCore())->setMaterial(lineMaterial(width));
        return named(name, node);
    }

    osg::NodePtr collider = osg::makeCoredNode<osg::Group>();
};

TEST_F(PickerHandles, LineIsHitWithinTheToleranceBeyondItsDrawnHalfWidth)
{
    hang(collider, line("line", 2.0f));

    // The line is at x = 400; pixel 404 has its centre 4.5 away, 3.5 beyond the half width.
    EXPECT_EQ(nameAt(404.0f, 300.0f), "line");
    EXPECT_EQ(nameAt(395.0f, 300.0f), "line");
    EXPECT_EQ(nameAt(405.0f, 300.0f), "");
    // Its upper end is at y = 270.
    EXPECT_EQ(nameAt(400.0f, 266.0f), "line");
    EXPECT_EQ(nameAt(400.0f, 264.0f), "");

    picker.setPixelRatio(4.0f);
    EXPECT_EQ(nameAt(416.0f, 300.0f), "line");
    EXPECT_EQ(nameAt(417.0f, 300.0f), "");
}

TEST_F(PickerHandles, LeastDistanceOnScreenWinsOverDepth)
{
    hang(collider, line("far", 1.0f));
    // At depth 5, 60 pixels per unit: x = 406.
    hang(collider, placed(0.1f, 0.0f, 5.0f, line("near", 1.0f)));

    EXPECT_EQ(nameAt(401.0f, 300.0f), "far");
    EXPECT_EQ(nameAt(404.0f, 300.0f), "near");
}

TEST_F(PickerHandles, DrawnWidthCountsAsDistanceZero)
{
    // 402.5 is within the drawn band of both lines: the nearer one wins, though its axis is farther
    // away.
    hang(collider, line("thin", 6.0f));
    hang(collider, placed(0.1f, 0.0f, 5.0f, line("wide", 8.0f)));

    EXPECT_EQ(nameAt(402.0f, 300.0f), "wide");
}

TEST_F(PickerHandles, AtEqualDistanceTheNearerHandleWinsAndThenTheFirstInTheTree)
{
    hang(nbScenegraph::getRootNode(), placed(0.0f, 0.0f, 4.0f, named("scene", box(2.0f))));
    const osg::NodePtr first = named("first", box(1.0f));
    hang(collider, first);
    hang(collider, named("second", box(1.0f)));
    EXPECT_EQ(nameAt(400.0f, 300.0f), "first");

    const osg::NodePtr near = placed(0.0f, 0.0f, 0.01f, named("near", box(1.0f)));
    hang(collider, near);
    EXPECT_EQ(nameAt(400.0f, 300.0f), "near");

    // 5e-4 nearer at depth 9.5: within 1e-4 of the depth it counts as equal.
    osg::Matrix matrix;
    matrix.setTranslate(0.0f, 0.0f, 5e-4f);
    setMatrix(near, matrix);
    EXPECT_EQ(nameAt(400.0f, 300.0f), "first");
    hang(collider, first);  // to the end
    EXPECT_EQ(nameAt(400.0f, 300.0f), "second");
}

TEST_F(PickerHandles, WithoutPickNodeMarkedSubtreesAreTested)
{
    const osg::NodePtr manipulator = placed(-2.0f, 0.0f, 0.0f, named("manipulator", box(1.0f)));
    const osg::NodePtr auxiliary = placed(2.0f, 0.0f, 0.0f, named("auxiliary", box(1.0f)));
    const osg::NodePtr scene = nbScenegraph::getRootNode();
    hang(collider, manipulator);
    hang(scene, auxiliary);
    hang(scene, named("scene", box(1.0f)));
    nbNodeUtils::setIsManipulatorNode(manipulator, true);
    nbNodeUtils::setIsSelectableAuxiliaryNode(auxiliary, true);
    picker.setPickNode(osg::NullFC);

    EXPECT_EQ(nameAt(340.0f, 300.0f), "manipulator");
    EXPECT_EQ(nameAt(400.0f, 300.0f), "");
    EXPECT_EQ(nameAt(460.0f, 300.0f), "auxiliary");
}

TEST_F(PickerHandles, PartsBehindTheEyeAreCutOff)
{
    // Along z through (1, 0): at z = 0 it is at x = 430, at the near plane at 700; behind the eye
    // nothing is left of it.
    osg::Quaternion turn;
    turn.setValueAsAxisDeg(1.0f, 0.0f, 0.0f, 90.0f);
    osg::Matrix matrix;
    matrix.setTransform(osg::Vec3f(1.0f, 0.0f, 0.0f), turn, osg::Vec3f(1.0f, 50.0f, 1.0f));
    hang(collider, placed(matrix, line("line", 1.0f)));

    EXPECT_EQ(nameAt(430.0f, 300.0f), "line");
    EXPECT_NEAR(picker.getHitPoint()[2], 0.0f, 0.2f);
    EXPECT_EQ(nameAt(699.0f, 300.0f), "line");
    EXPECT_EQ(nameAt(710.0f, 300.0f), "");
    EXPECT_EQ(nameAt(370.0f, 300.0f), "");
}

TEST_F(PickerHandles, WithASlopTheDeviceSaysFromHowFarAndTheSmallerIsHit)
{
    using nbec::interaction::Picker;
    nbec::interaction::InteractionManager manager;
    nbec::interaction::InputTranslator translator(manager, &widget);
    const auto come = [&translator](QEvent::Type own, Qt::MouseEventSource source) {
        QEvent before(own);
        translator.handleEvent(before);
        QMouseEvent move(QEvent::MouseMove, QPointF(1, 1), QPointF(1, 1), QPointF(1, 1),
                         Qt::NoButton, Qt::NoButton, Qt::NoModifier, source);
        translator.handleEvent(move);
    };

    const std::tuple<QEvent::Type, Qt::MouseEventSource, float> rows[] = {
        { QEvent::None, Qt::MouseEventNotSynthesized, 405.0F },
        { QEvent::TabletMove, Qt::MouseEventSynthesizedByQt, 407.0F },
        { QEvent::None, Qt::MouseEventSynthesizedBySystem, 407.0F },
        { QEvent::TouchBegin, Qt::MouseEventSynthesizedByQt, 415.0F }
    };

    // The half width is 1.
    hang(collider, line("line", 2.0F));
    Picker::setSlop(nbec::interaction::PickSlop());
    for (const auto& [own, source, reach] : rows) {
        come(own, source);
        EXPECT_EQ(nameAt(reach - 1.0F, 300.0F), "line") << reach;
        EXPECT_EQ(nameAt(reach, 300.0F), "") << reach;
    }
    hang(collider, placed(3.0F, 0.0F, 0.0F, named("small", box(0.4F))));
    hang(collider, placed(2.5F, 0.0F, 2.0F, named("large", box(2.0F))));
    EXPECT_EQ(nameAt(490.0F, 300.0F), "small") << "which lies behind";
    Picker::setSlop(std::nullopt);
    EXPECT_EQ(nameAt(490.0F, 300.0F), "large");
    EXPECT_EQ(nameAt(404.0F, 300.0F), "line");
    EXPECT_EQ(nameAt(405.0F, 300.0F), "") << "as ever, also for a finger";
    come(QEvent::None, Qt::MouseEventNotSynthesized);
}

TEST_F(PickerHandles, LineWidthIsThatOfTheMaterialInForce)
{
    const osg::MaterialGroupPtr groupCore = osg::MaterialGroup::create();
    const osg::NodePtr group = osg::makeNodeFor(groupCore);
    hang(collider, group);
    hang(group, line("line", 10.0f));
    const auto setGroupMaterial = [&](const osg::MaterialPtr& material) {
        const nbEdit edit(groupCore, osg::MaterialGroup::MaterialFieldMask);
        groupCore->setMaterial(material);
    };

    // Half of 10 and the tolerance reach to pixel 408.
    EXPECT_EQ(nameAt(408.0f, 300.0f), "line");
    EXPECT_EQ(nameAt(409.0f, 300.0f), "");
    setGroupMaterial(osg::SimpleMaterial::create());
    EXPECT_EQ(nameAt(408.0f, 300.0f), "") << "the group's material replaces the line's";
    nbNodeUtils::setIsManipulatorNode(collider, true);
    EXPECT_EQ(nameAt(408.0f, 300.0f), "line")
        << "below a manipulator node only chunks are replaced";
    setGroupMaterial(lineMaterial(4.0f));
    EXPECT_EQ(nameAt(408.0f, 300.0f), "");
    EXPECT_EQ(nameAt(405.0f, 300.0f), "line");
}

}  // namespace
