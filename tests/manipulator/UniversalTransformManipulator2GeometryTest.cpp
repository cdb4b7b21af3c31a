// SPDX-License-Identifier: MIT
// The gizmo's tree: its order, the places, colours and materials of the handles.
#include "tests/manipulator/support/GizmoFixture.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGLineChunk.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleMaterial.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace nbec::manipulator::test {

namespace {

osg::DynamicVolume worldVolumeOf(const osg::NodePtr& node)
{
    osg::DynamicVolume volume;
    node->updateVolume();
    node->getWorldVolume(volume);
    return volume;
}

class GizmoGeometry : public UniversalTransformManipulator2Test
{ };

}  // namespace

TEST_F(GizmoGeometry, RootHoldsMarksCopyExtrasAndHandlesInThisOrder)
{
    expectManipulatorRoot(root());
    ASSERT_EQ(root()->getNChildren(), 4U);
    EXPECT_EQ(gizmo.getCollider(), root());

    const osg::Int32 sortKeys[] = { 0, 64015, 0, 64017 };
    for (const osg::UInt32 pass : { 1U, 3U }) {
        const osg::NodePtr group = root()->getChild(pass);
        EXPECT_EQ(nbNodeUtils::getName(group), "ManipulatorDepthPassMaterialGroup");
        const osg::MaterialGroupPtr core = osg::MaterialGroupPtr::dcast(group->getCore());
        ASSERT_NE(core, osg::NullFC);
        EXPECT_EQ(core->getMaterial()->getSortKey(), sortKeys[pass]);
    }

    int unnamed = 0;
    forEachNode(root()->getChild(1)->getChild(0), [&unnamed](const osg::NodePtr& node) {
        EXPECT_EQ(osg::getName(node), nullptr) << "the copy must bear no names";
        ++unnamed;
    });
    int all = 0;
    forEachNode(root()->getChild(3)->getChild(0), [&all](const osg::NodePtr&) { ++all; });
    EXPECT_EQ(unnamed, all);
    for (const std::string& name : kAllNames) {
        const osg::NodePtr named = handle(name);
        ASSERT_NE(named, osg::NullFC) << name;
        for (const osg::NodePtr& part : partsOf(named)) {
            EXPECT_EQ(nbNodeUtils::getName(part), name);
        }
    }
}

TEST_F(GizmoGeometry, HandlesHaveTheirPlacesAndColours)
{
    struct Row
    {
        const char* name;
        std::vector<std::string> colors;
        osg::Pnt3f lastPartCentre;  ///< unit frame
    };

    const std::vector<Row> rows = {
        { "xaShape", { "1 0 0", "1 0 0" }, osg::Pnt3f(2, 0, 0) },
        { "yaShape", { "0 1 0", "0 1 0" }, osg::Pnt3f(0, 2, 0) },
        { "zaShape", { "0 0 1", "0 0 1" }, osg::Pnt3f(0, 0, 2) },
        { "xsShape", { "1 0 0", "1 0 0" }, osg::Pnt3f(1.5F, 0, 0) },
        { "ysShape", { "0 1 0", "0 1 0" }, osg::Pnt3f(0, 1.5F, 0) },
        { "zsShape", { "0 0 1", "0 0 1" }, osg::Pnt3f(0, 0, 1.5F) },
        { "grid", { "1 1 0" }, osg::Pnt3f(0, 0, 0) },
        { "xyaShape", { "0 1 0", "1 0 0", "0 1 0" }, osg::Pnt3f(0.4F, 0.2F, 0) },
        { "xzaShape", { "0 0 1", "1 0 0", "1 0 0" }, osg::Pnt3f(0.4F, 0, 0.2F) },
        { "yzaShape", { "0 1 0", "0 0 1", "0 0 1" }, osg::Pnt3f(0, 0.2F, 0.4F) },
    };
    gizmo.activateUniversalManipulator();
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const std::vector<osg::NodePtr> parts = partsOf(handle(row.name));
        ASSERT_EQ(parts.size(), row.colors.size());
        for (std::size_t i = 0; i < parts.size(); ++i) {
            EXPECT_EQ(colorOf(parts[i]), row.colors[i]);
        }
        osg::Pnt3f centre;
        worldVolumeOf(parts.back()).getCenter(centre);
        EXPECT_TRUE(centre.equals(row.lastPartCentre * kScaleAtTen, kTolerance)) << centre;
    }
    osg::Pnt3f low;
    osg::Pnt3f high;
    worldVolumeOf(partsOf(handle("xaShape"))[1]).getBounds(low, high);
    EXPECT_NEAR(high.x(), 2.2F * kScaleAtTen, kTolerance)
        << "the tip, half the cone beyond its centre";
    worldVolumeOf(partsOf(handle("xaShape"))[0]).getBounds(low, high);
    EXPECT_NEAR(low.x(), 0.0F, kTolerance);
    EXPECT_NEAR(high.x(), 2.0F * kScaleAtTen, kTolerance);
    worldVolumeOf(partsOf(handle("rxShape"))[0]).getBounds(low, high);
    EXPECT_NEAR(high.x() - low.x(), 0.0F, kTolerance) << "the x ring lies in the yz plane";
    EXPECT_NEAR(high.y(), 1.5F * kScaleAtTen, kTolerance);
    EXPECT_NEAR(high.z(), 1.5F * kScaleAtTen, kTolerance);
}

TEST_F(GizmoGeometry, LineMaterialsSortBeforeSolidOnesExceptTheHighlight)
{
    gizmo.activateUniversalManipulator();
    scene.hover(at(2.1F, 0, 0));
    int lines = 0;
    forEachNode(root()->getChild(3), [&lines](const osg::NodePtr& node) {
        const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(node->getCore());
        if (geometry == osg::NullFC) {
            return;
        }
        const auto material = osg::SimpleMaterialPtr::dcast(geometry->getMaterial());
        const auto line = osg::LineChunkPtr::dcast(material->find(osg::LineChunk::getClassType()));
        const bool isPlainLine = line != osg::NullFC && colorOf(node) != kOrange;
        EXPECT_EQ(material->getSortKey(), isPlainLine ? 64015 : 64016);
        EXPECT_FALSE(material->getLit());
        EXPECT_EQ(material->getMFChunks()->size(), line != osg::NullFC ? 3U : 0U);
        if (line != osg::NullFC) {
            EXPECT_FLOAT_EQ(line->getWidth(), 2.0F);
            EXPECT_TRUE(line->getSmooth());
            ++lines;
        }
    });
    EXPECT_EQ(lines, 3 + 3 + 6) << "shafts of arrows and scale handles, rings and their axes";
}

}  // namespace nbec::manipulator::test
