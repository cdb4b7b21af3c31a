// SPDX-License-Identifier: MIT
// Handles, sets of them, placement and updates.
#include "manipulator/TriplanarTextureManipulator.h"

#include "tests/manipulator/support/AnchorScene.h"

#include <nbKernel/nbController.h>
#include <nbOpenSGExt/DepthTestChunk.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGDepthChunk.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGLineChunk.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGSimpleMaterial.h>

#include <memory>

namespace nbec::manipulator::test {

namespace {

using Gizmo = TriplanarTextureManipulator;
using Mode = Gizmo::ManipulatorMode;

constexpr float kTolerance = 1e-4F;

struct HandleCase
{
    const char* name;
    unsigned mode;
    Camera camera;
    Vec3f unit;
    Names idle;  ///< of its parts
};

void PrintTo(const HandleCase& row, std::ostream* out)
{
    *out << row.name;
}

// clang-format off
const std::vector<HandleCase> kHandles = {
    { "rxShape", 1, Camera::Oblique, { 0, 1.06066F, 1.06066F }, { "1 0 0" } },
    { "ryShape", 2, Camera::Oblique, { 1.06066F, 0, 1.06066F }, { "0 1 0" } },
    { "rzShape", 3, Camera::Front, { 1.06066F, 1.06066F, 0 }, { "0 0 1" } },
    { "xaShape", 4, Camera::Front, { 1.9F, 0, 0 }, { "1 0 0", "1 0 0" } },
    { "yaShape", 5, Camera::Front, { 0, 1.9F, 0 }, { "0 1 0", "0 1 0" } },
    { "zaShape", 6, Camera::Side, { 0, 0, 1.9F }, { "0 0 1", "0 0 1" } },
    { "xsShape", 7, Camera::Front, { 2.5F, 0, 0 }, { "1 0 0", "1 0.5 0.5" } },
    { "ysShape", 8, Camera::Front, { 0, 2.5F, 0 }, { "0 1 0", "0.5 1 0.5" } },
    { "zsShape", 9, Camera::Side, { 0, 0, 2.5F }, { "0 0 1", "0.5 0.5 1" } },
    { "grid", 10, Camera::Oblique, { 0, 0, 0 }, { "1 1 0" } },
};

// clang-format on

struct Triplanar : Anchored<Gizmo>
{
    Names shown() const
    {
        Names names;
        for (const HandleCase& row : kHandles) {
            if (isShown(at.handle(row.name))) {
                names.emplace_back(row.name);
            }
        }
        return names;
    }

    osg::SimpleMaterialPtr materialOf(const std::string& name, osg::UInt32 part) const
    {
        const osg::NodePtr node = at.handle(name)->getChild(part)->getChild(0);
        const auto geometry = osg::GeometryPtr::dcast(node->getCore());
        return osg::SimpleMaterialPtr::dcast(geometry->getMaterial());
    }

    float size() const { return at.handle("grid")->getToWorld()[0][0]; }
};

class TriplanarHandles : public testing::TestWithParam<HandleCase>
{ };

const Names kRings = { "rxShape", "ryShape", "rzShape" };
const Names kRingsAndScales = { "rxShape", "ryShape", "rzShape", "xsShape",
                                "ysShape", "zsShape", "grid" };

}  // namespace

TEST_P(TriplanarHandles, HaveTheirModeColoursHighlightAndHideTheOthers)
{
    const HandleCase& row = GetParam();
    Triplanar triplanar;
    AnchorScene& at = triplanar.at;
    triplanar.gizmo.activateUniversalManipulator();
    at.look(row.camera, false);
    const osg::NodePtr handle = at.handle(row.name);
    EXPECT_EQ(partColors(handle), row.idle);

    const Pnt2f pixel = at.drag.rayPixelOf(at.onHandle(row.name, row.unit));
    EXPECT_TRUE(at.scene.send("hover", pixel));
    EXPECT_EQ(static_cast<unsigned>(triplanar.gizmo.getActiveMode()), row.mode);
    for (const HandleCase& other : kHandles) {
        // The box in the middle takes the scale handles along.
        const bool isHighlighted = other.mode == row.mode || (row.mode == 10 && other.mode >= 7);
        EXPECT_EQ(partColors(at.handle(other.name)),
                  isHighlighted ? Names(other.idle.size(), kHighlight) : other.idle)
            << other.name;
    }
    EXPECT_TRUE(at.scene.send("start", pixel));
    EXPECT_EQ(static_cast<unsigned>(triplanar.gizmo.getActiveMode()), row.mode);
    EXPECT_EQ(partColors(handle), row.idle);
    EXPECT_EQ(triplanar.shown(), Names { row.name });
    EXPECT_TRUE(at.scene.send("stop", pixel));
    EXPECT_EQ(triplanar.gizmo.getActiveMode(), Gizmo::ActiveMode::None);
    EXPECT_EQ(triplanar.shown().size(), kHandles.size());
}

INSTANTIATE_TEST_SUITE_P(TriplanarTextureManipulator, TriplanarHandles,
                         testing::ValuesIn(kHandles));

TEST(TriplanarTextureManipulator, MaterialsKeepTheHandlesInTheirOrderAfterTheScene)
{
    Triplanar triplanar;

    const struct
    {
        const char* handle;
        osg::UInt32 part;
        float transparency;
        int sortKey;
    } rows[] = { { "xaShape", 0, 0.001F, 64016 },
                 { "grid", 0, 0.001F, 64017 },
                 { "ysShape", 1, 0.001F, 64015 },
                 { "zsShape", 0, 0.01F, 64016 } };

    for (const auto& row : rows) {
        const osg::SimpleMaterialPtr material = triplanar.materialOf(row.handle, row.part);
        EXPECT_FLOAT_EQ(material->getTransparency(), row.transparency) << row.handle;
        EXPECT_EQ(material->getSortKey(), row.sortKey) << row.handle;
        EXPECT_FALSE(material->getLit()) << row.handle;
        EXPECT_FLOAT_EQ(material->getShininess(), 10.0F) << row.handle;
    }
    const auto line = osg::LineChunkPtr::dcast(
        triplanar.materialOf("xsShape", 0)->find(osg::LineChunk::getClassType()));
    ASSERT_NE(line, osg::NullFC);
    EXPECT_FLOAT_EQ(line->getWidth(), 4.0F);
    EXPECT_FALSE(line->getSmooth());
    const auto depth = osg::DepthChunkPtr::dcast(
        triplanar.materialOf("xaShape", 0)->find(osg::DepthChunk::getClassType()));
    ASSERT_NE(depth, osg::NullFC);
    EXPECT_TRUE(depth->getEnable());
}

TEST(TriplanarTextureManipulator, TheTreeHasItsHandlesAndADepthPassThatFollows)
{
    Triplanar triplanar;
    const osg::NodePtr root = triplanar.gizmo.getVisualisation();
    EXPECT_EQ(root, triplanar.gizmo.getCollider());
    expectManipulatorRoot(root);
    ASSERT_EQ(root->getNChildren(), 2U);
    const osg::NodePtr tree = root->getChild(0);
    const osg::NodePtr pass = root->getChild(1);
    for (const osg::NodePtr& node : { root, tree }) {
        EXPECT_TRUE(nbNodeUtils::isAuxiliaryNode(node));
        EXPECT_TRUE(nbNodeUtils::isSelectableAuxiliaryNode(node));
    }
    ASSERT_EQ(tree->getNChildren(), 4U);
    EXPECT_EQ(nbNodeUtils::getName(tree->getChild(0)), "grid");
    const char* const first[] = { "xaShape", "rxShape", "xsShape" };
    for (osg::UInt32 i = 0; i < 3; ++i) {
        ASSERT_EQ(tree->getChild(i + 1)->getNChildren(), 3U);
        EXPECT_EQ(nbNodeUtils::getName(tree->getChild(i + 1)->getChild(0)), first[i]);
    }

    EXPECT_EQ(nbNodeUtils::getName(pass), "ManipulatorDepthPassMaterialGroup");
    const auto group = osg::MaterialGroupPtr::dcast(pass->getCore());
    const auto material = osg::SimpleMaterialPtr::dcast(group->getMaterial());
    EXPECT_EQ(material->getSortKey(), 64014);
    const auto chunk =
        osg::DepthTestChunkPtr::dcast(material->find(osg::DepthTestChunk::getClassType()));
    ASSERT_NE(chunk, osg::NullFC);
    EXPECT_EQ(chunk->getFunc(), 519U);
    const osg::NodePtr copy = pass->getChild(0);
    EXPECT_EQ(copy->getCore(), tree->getCore());
    EXPECT_EQ(findNode(pass, "xaShape"), osg::NullFC) << "the copy bears no names";
    triplanar.gizmo.activateRotateManipulator();
    EXPECT_FALSE(copy->getChild(1)->getActive()) << "hidden in both passes";
    EXPECT_TRUE(copy->getChild(2)->getActive());
}

TEST(TriplanarTextureManipulator, SetsShowTheirHandles)
{
    Triplanar triplanar;
    Gizmo& gizmo = triplanar.gizmo;
    EXPECT_EQ(gizmo.getMode(), Mode::Initial);
    EXPECT_EQ(triplanar.shown().size(), kHandles.size());

    gizmo.activateRotateManipulator();
    EXPECT_EQ(gizmo.getMode(), Mode::Rotate);
    EXPECT_EQ(triplanar.shown(), kRings);
    gizmo.activateRotateScaleManipulator();
    EXPECT_EQ(gizmo.getMode(), Mode::RotateScale);
    EXPECT_EQ(triplanar.shown(), kRingsAndScales);
    EXPECT_EQ(partColor(triplanar.at.handle("ysShape"), 1), "0 1 0") << "full colour in this set";
    gizmo.hideManipulator();
    EXPECT_EQ(triplanar.shown(), Names());
    gizmo.showActiveManipulator();
    EXPECT_EQ(triplanar.shown(), kRingsAndScales);
    gizmo.activateUniversalManipulator();
    EXPECT_EQ(gizmo.getMode(), Mode::Universal);
    EXPECT_EQ(triplanar.shown().size(), kHandles.size());
    EXPECT_EQ(partColor(triplanar.at.handle("ysShape"), 1), "0.5 1 0.5");

    gizmo.setMaterialComponent(triplanar.at.material.get(), "", nullptr);
    EXPECT_EQ(triplanar.shown(), Names());
    gizmo.setMaterialComponent(triplanar.at.material.get(), "diffuse", nullptr);
    EXPECT_EQ(triplanar.shown().size(), kHandles.size());
    gizmo.setMaterialComponent(osg::NullFC, "diffuse", nullptr);
    EXPECT_EQ(triplanar.shown(), Names());
}

TEST(TriplanarTextureManipulator, KnowsWhatItIsConnectedTo)
{
    Triplanar triplanar;
    Gizmo& gizmo = triplanar.gizmo;
    const osg::UberMaterialRefPtr other(osg::UberMaterial::create());
    EXPECT_TRUE(gizmo.isConnectedToMaterial(triplanar.at.material.get()));
    EXPECT_TRUE(gizmo.isConnectedTo(triplanar.at.material.get(), "diffuse"));
    EXPECT_FALSE(gizmo.isConnectedTo(triplanar.at.material.get(), "Diffuse"));
    EXPECT_FALSE(gizmo.isConnectedToMaterial(other.get()));
    EXPECT_FALSE(gizmo.isConnectedToMaterial(osg::NullFC));
    gizmo.setMaterialComponent(osg::NullFC, "", nullptr);
    EXPECT_FALSE(gizmo.isConnectedToMaterial(osg::NullFC)) << "none is not connected to none";

    gizmo.setAnchor(osg::NullFC, Pnt3f(1, 2, 3));
    EXPECT_EQ(gizmo.getAnchorPosition(), Pnt3f(1, 2, 3));
    EXPECT_EQ(gizmo.getAnchorNode(), osg::NullFC);
}

TEST(TriplanarTextureManipulator, StandsAtTheAnchorAlongTheNodesAxes)
{
    Triplanar triplanar;
    AnchorScene& at = triplanar.at;
    at.edit(at.parentCore(), [](const auto& parent) { parent->setScale(Vec3f(2, 2, 2)); });
    at.edit(at.core(), [](const auto& node) {
        node->setRotation(Vec3f(0, 0, 90));
        node->setTranslation(Vec3f(0.5F, 0, 0));
    });
    triplanar.gizmo.setAnchor(at.scene.node, Pnt3f(0.25F, 0, 0));
    EXPECT_TRUE(triplanar.gizmo.getAnchorPosition().equals(Pnt3f(1, 0.5F, 0), kTolerance));
    EXPECT_EQ(triplanar.gizmo.getAnchorNode(), at.scene.node);
    at.look(Camera::Front, false);

    // Axes turned by the node, size by the distance of the anchor from the eye.
    const float distance = std::sqrt(1.0F + 0.25F + 100.0F);
    const float unit = distance * 45.0F / 672.0F;
    EXPECT_TRUE(
        at.onHandle("xaShape", Vec3f(1, 0, 0)).equals(Pnt3f(1, 0.5F + unit, 0), kTolerance));
    EXPECT_TRUE(
        at.onHandle("ysShape", Vec3f(0, 1, 0)).equals(Pnt3f(1 - unit, 0.5F, 0), kTolerance));
    EXPECT_TRUE(at.onHandle("rzShape", Vec3f(0, 0, 1)).equals(Pnt3f(1, 0.5F, unit), kTolerance));
}

TEST(TriplanarTextureManipulator, SizeIsThatOfTheViewNotOfTheDistanceInAnOrthographicOne)
{
    Triplanar triplanar;
    AnchorScene& at = triplanar.at;
    at.look(Camera::Front, false);
    EXPECT_NEAR(triplanar.size(), kUnit, kTolerance);
    at.edit(at.core(), [](const auto& node) { node->setTranslation(Vec3f(0, 0, -10)); });
    EXPECT_NEAR(triplanar.size(), 2 * kUnit, kTolerance);
    at.look(Camera::Front, true);
    // 2 * 10 * tan(22.5) high, 4 : 3, so the diagonal is 5/3 of that.
    const float orthographic = 2 * 10 * 0.41421356F * 5 / 3 / 20;
    EXPECT_NEAR(triplanar.size(), orthographic, kTolerance);
    at.edit(at.core(), [](const auto& node) { node->setTranslation(Vec3f(0, 0, 0)); });
    EXPECT_NEAR(triplanar.size(), orthographic, kTolerance);
    at.look(Camera::Front, false);
    EXPECT_NEAR(triplanar.size(), kUnit, kTolerance);
}

TEST(TriplanarTextureManipulator, UpdatesForWhatHasMovedBeyondTheTolerance)
{
    Triplanar triplanar;
    AnchorScene& at = triplanar.at;
    triplanar.gizmo.update(true);
    const auto place = [&at] { return at.originOf("grid"); };

    at.edit(at.core(), [](const auto& node) { node->setTranslation(Vec3f(9e-7F, 0, 0)); });
    EXPECT_EQ(place(), Pnt3f(0, 0, 0));
    triplanar.gizmo.update(true);
    EXPECT_NE(place().x(), 0.0F);
    at.edit(at.core(), [](const auto& node) { node->setTranslation(Vec3f(1, 0, 0)); });
    EXPECT_FLOAT_EQ(place().x(), 1.0F);

    const osg::UberCameraPtr camera = at.scene.widget.getUberCamera();
    camera->setFromAtUp(Pnt3f(1, 0, 5), Pnt3f(1, 0, 0), Vec3f(0, 1, 0));
    triplanar.gizmo.update(false);
    EXPECT_NEAR(triplanar.size(), kUnit / 2, kTolerance);
    camera->setFov(90);
    triplanar.gizmo.update(false);
    EXPECT_NEAR(triplanar.size(), kUnit, kTolerance);

    triplanar.gizmo.setVisualisationRoot(osg::NullFC);
    at.scene.manager.removeContext(&at.scene.context);
    camera->setFov(45);
    triplanar.gizmo.update(true);
    EXPECT_NEAR(triplanar.size(), kUnit, kTolerance) << "inactive";
}

TEST(TriplanarTextureManipulator, SizeOfTwoHundredIsNotGuarded)
{
    Triplanar triplanar;
    Gizmo::setManipulatorSize(200);
    triplanar.gizmo.update(true);
    Gizmo::setManipulatorSize(32);

    const auto frame = triplanar.gizmo.getVisualisation()->getChild(0)->getCore();
    EXPECT_TRUE(std::isinf(osg::Transform3DPtr::dcast(frame)->getScale().x()));
}

TEST(TriplanarTextureManipulator, OnlyItsOwnHandlesAreHandles)
{
    Triplanar triplanar;
    AnchorScene& at = triplanar.at;
    triplanar.gizmo.activateUniversalManipulator();
    const Pnt2f pixel = at.drag.rayPixelOf(at.onHandle("xaShape", Vec3f(1.9F, 0, 0)));
    EXPECT_TRUE(at.scene.send("hover", pixel));
    at.scene.send("hover", Pnt2f(5, 5));
    EXPECT_EQ(partColor(at.handle("xaShape"), 0), "1 0 0");

    // A box of the scene that bears a handle's name, in front of everything.
    const osg::NodePtr stranger = at.scene.node->getChild(0);
    nbNodeUtils::setName(stranger, "xaShape");
    triplanar.gizmo.hideManipulator();
    at.scene.picker.setPickNode(at.scene.node);
    EXPECT_FALSE(at.scene.send("hover", Pnt2f(400, 300)));
    EXPECT_FALSE(at.scene.send("start", Pnt2f(400, 300)));
    EXPECT_EQ(triplanar.gizmo.getActiveMode(), Gizmo::ActiveMode::None);

    EXPECT_FALSE(triplanar.gizmo.hoverManipulator(nullptr, "select"));
    EXPECT_FALSE(triplanar.gizmo.startManipulator(nullptr, "select"));
    EXPECT_FALSE(triplanar.gizmo.processManipulator(nullptr, "select"));
    EXPECT_FALSE(triplanar.gizmo.stopManipulator(nullptr, "select"));
    EXPECT_TRUE(triplanar.gizmo.resetManipulator(nullptr, "select"));
    EXPECT_TRUE(at.log.empty());
}

TEST(TriplanarTextureManipulator, CopiesShareTheHandlesAndAllElse)
{
    Triplanar triplanar;
    triplanar.gizmo.activateRotateManipulator();
    Gizmo copy(triplanar.gizmo);
    EXPECT_EQ(copy.getVisualisation(), triplanar.gizmo.getVisualisation());
    EXPECT_EQ(copy.getMode(), Mode::Rotate);
    EXPECT_TRUE(copy.isConnectedTo(triplanar.at.material.get(), "diffuse"));
    Gizmo assigned;
    assigned = copy;
    EXPECT_EQ(assigned.getVisualisation(), triplanar.gizmo.getVisualisation());
    EXPECT_EQ(assigned.getAnchorNode(), triplanar.at.scene.node);
}

}  // namespace nbec::manipulator::test
