// SPDX-License-Identifier: MIT
// The handles of the gizmos of nodes and textures: names, places, colours, modes, sets, trees.
#include "tests/fuzz/Equipment.h"
#include "tests/manipulator/support/TextureScene.h"

#include <nbOpenSGExt/NodeFlags.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGLineChunk.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>

namespace nbec::manipulator::test {

namespace {

/// A handle, where it is grabbed, and the idle colours of its parts.
struct HandleRow
{
    const char* name;
    unsigned mode;
    Camera camera;
    Vec3f unit;  ///< null of a handle that is grabbed at its origin
    Names idle;
    const char* group = "";  ///< shown together while one of them is dragged
};

/// Handles that a mode shows.
template <class Gizmo>
struct SetRow
{
    void (Gizmo::*activate)();
    Names shown;
};

template <class Gizmo>
const std::vector<HandleRow> kRows;
template <class Gizmo>
const std::vector<SetRow<Gizmo>> kSets;

// clang-format off
template <>
const std::vector<HandleRow> kRows<Transform> = {
    { "rxShape", 1, Camera::Oblique, { 0, kDiagonal, kDiagonal }, { "1 0 0", "1 0 0" } },
    { "ryShape", 2, Camera::Oblique, { kDiagonal, 0, kDiagonal }, { "0 1 0", "0 1 0" } },
    { "rzShape", 3, Camera::Oblique, { kDiagonal, kDiagonal, 0 }, { "0 0 1", "0 0 1" } },
    { "xaShape", 4, Camera::Oblique, { 2, 0, 0 }, { "1 0 0", "1 0 0" } },
    { "yaShape", 5, Camera::Oblique, { 0, 2, 0 }, { "0 1 0", "0 1 0" } },
    { "zaShape", 6, Camera::Oblique, { 0, 0, 2 }, { "0 0 1", "0 0 1" } },
    { "xyaShape", 7, Camera::Oblique, { 0.25F, 0.25F, 0 }, { "0 1 0", "1 0 0", "0 1 0" } },
    { "xzaShape", 8, Camera::Oblique, { 0.25F, 0, 0.25F }, { "0 0 1", "1 0 0", "1 0 0" } },
    { "yzaShape", 9, Camera::Oblique, { 0, 0.25F, 0.25F }, { "0 1 0", "0 0 1", "0 0 1" } },
    { "xsShape", 10, Camera::Oblique, { 1.5F, 0, 0 }, { "1 0 0", "1 0 0" } },
    { "ysShape", 11, Camera::Oblique, { 0, 1.5F, 0 }, { "0 1 0", "0 1 0" } },
    { "zsShape", 12, Camera::Oblique, { 0, 0, 1.5F }, { "0 0 1", "0 0 1" } },
    { "grid", 13, Camera::Oblique, { 0, 0, 0 }, { "1 1 0" } },
};
template <>
const std::vector<SetRow<Transform>> kSets<Transform> = {
    { &Transform::activateTranslateManipulator, { "xaShape", "yaShape", "zaShape", "xyaShape", "xzaShape", "yzaShape" } },
    { &Transform::activateScaleManipulator, { "xsShape", "ysShape", "zsShape", "grid" } },
    { &Transform::activateRotateManipulator, { "rxShape", "ryShape", "rzShape" } },
    { &Transform::activateRotatePivotManipulator, { "rxShape", "ryShape", "rzShape", "xaShape", "yaShape", "zaShape", "xyaShape", "xzaShape", "yzaShape" } },
    { &Transform::activateScalePivotManipulator, { "xaShape", "yaShape", "zaShape", "xyaShape", "xzaShape", "yzaShape" } },
    { &Transform::activateClippingManipulator, { "rxShape", "ryShape", "rzShape", "xaShape", "yaShape", "zaShape", "xyaShape", "xzaShape", "yzaShape" } },
    { &Transform::activateTranslateRotateManipulator, { "rxShape", "ryShape", "rzShape", "xaShape", "yaShape", "zaShape", "xyaShape", "xzaShape", "yzaShape" } },
    { &Transform::activateTranslateRotateYZManipulator, { "ryShape", "rzShape", "xaShape", "yaShape", "zaShape", "xyaShape", "xzaShape", "yzaShape" } },
    { &Transform::activateTranslateRotateScaleManipulator, { "rxShape", "ryShape", "rzShape", "xaShape", "yaShape", "zaShape", "xyaShape", "xzaShape", "yzaShape", "xsShape", "ysShape", "zsShape" } },
};
template <>
const std::vector<HandleRow> kRows<Planar> = {
    { "rotateShape", 1, Camera::Front, { 0.70710678F, -0.70710678F, 0 }, { "0 0 1", "0.95 0.52 0.18" }, "rotate" },
    { "xaShape", 2, Camera::Front, { 1.9F, 0, 0 }, { "1 0 0", "1 0 0" }, "" },
    { "yaShape", 3, Camera::Front, { 0, 1.9F, 0 }, { "0 1 0", "0 1 0" }, "translate" },
    { "zaShape", 4, Camera::Side, { 0, 0, -1.9F }, { "0 0 1", "0 0 1" }, "translate" },
    { "xyaShape", 5, Camera::Front, { 0.25F, 0.25F, 0 }, { "0 0 1", "1 0 0", "0 1 0" }, "" },
    { "xsShape", 6, Camera::Front, { 2.5F, 0, 0 }, { "1 0.5 0.5", "1 0.5 0.5" }, "scale" },
    { "ysShape", 7, Camera::Front, { 0, 2.5F, 0 }, { "0.5 1 0.5", "0.5 1 0.5" }, "scale" },
    { "zsShape", 8, Camera::Side, { 0, 0, -2.5F }, { "0.5 0.5 1", "0.5 0.5 1" }, "scale" },
    { "grid", 9, Camera::Front, {}, { "1 1 0" }, "scale" },
    { "scaleXYLLShape", 10, Camera::Front, {}, { "1 1 0" }, "scale" },
    { "scaleXYULShape", 11, Camera::Front, {}, { "1 1 0" }, "scale" },
    { "scaleXYLRShape", 12, Camera::Front, {}, { "1 1 0" }, "scale" },
    { "scaleXYURShape", 13, Camera::Front, {}, { "1 1 0" }, "scale" },
    { "scaleXLShape", 14, Camera::Front, {}, { "1 0.5 0.5" }, "scale" },
    { "scaleXRShape", 15, Camera::Front, { 0, 0.15F, 0 }, { "1 0.5 0.5" }, "scale" },
    { "scaleYLShape", 16, Camera::Front, {}, { "0.5 1 0.5" }, "scale" },
    { "scaleYUShape", 17, Camera::Front, { 0.15F, 0, 0 }, { "0.5 1 0.5" }, "scale" },
    { "scaleZPlaneShape", 18, Camera::Oblique, { -0.17F, 0.17F, 0 }, { "0.5 0.5 1" }, "scale" },
};
template <>
const std::vector<SetRow<Planar>> kSets<Planar> = {
    { &Planar::activateTranslateManipulator, { "xaShape", "yaShape", "zaShape", "xyaShape" } },
    { &Planar::activateRotateManipulator, { "rotateShape" } },
    { &Planar::activateScaleManipulator, { "xsShape", "ysShape", "zsShape", "grid", "scaleXYLLShape", "scaleXYULShape", "scaleXYLRShape", "scaleXYURShape", "scaleXLShape", "scaleXRShape", "scaleYLShape", "scaleYUShape", "scaleZPlaneShape" } },
};
template <>
const std::vector<HandleRow> kRows<Triplanar> = {
    { "rxShape", 1, Camera::Oblique, { 0, kDiagonal, kDiagonal }, { "1 0 0" } },
    { "ryShape", 2, Camera::Oblique, { kDiagonal, 0, kDiagonal }, { "0 1 0" } },
    { "rzShape", 3, Camera::Front, { kDiagonal, kDiagonal, 0 }, { "0 0 1" } },
    { "xaShape", 4, Camera::Front, { 1.9F, 0, 0 }, { "1 0 0", "1 0 0" } },
    { "yaShape", 5, Camera::Front, { 0, 1.9F, 0 }, { "0 1 0", "0 1 0" } },
    { "zaShape", 6, Camera::Side, { 0, 0, 1.9F }, { "0 0 1", "0 0 1" } },
    { "xsShape", 7, Camera::Front, { 2.5F, 0, 0 }, { "1 0 0", "1 0.5 0.5" }, "grid" },
    { "ysShape", 8, Camera::Front, { 0, 2.5F, 0 }, { "0 1 0", "0.5 1 0.5" }, "grid" },
    { "zsShape", 9, Camera::Side, { 0, 0, 2.5F }, { "0 0 1", "0.5 0.5 1" }, "grid" },
    { "grid", 10, Camera::Oblique, { 0, 0, 0 }, { "1 1 0" } },
};
template <>
const std::vector<SetRow<Triplanar>> kSets<Triplanar> = {
    { &Triplanar::activateRotateManipulator, { "rxShape", "ryShape", "rzShape" } },
    { &Triplanar::activateRotateScaleManipulator, { "rxShape", "ryShape", "rzShape", "xsShape", "ysShape", "zsShape", "grid" } },
};
template <>
const std::vector<HandleRow> kRows<UV> = {
    { "rotateShape", 1, Camera::Oblique, { -0.70710678F, 0.70710678F, 0 }, { "0 0 1" } },
    { "xaShape", 2, Camera::Oblique, { 1.9F, 0, 0 }, { "1 0 0", "1 0 0" } },
    { "yaShape", 3, Camera::Oblique, { 0, 1.9F, 0 }, { "0 1 0", "0 1 0" } },
    { "xyaShape", 4, Camera::Oblique, { 0.2F, 0.2F, 0 }, { "1 1 0", "1 0 0", "0 1 0" } },
    { "xsShape", 5, Camera::Oblique, { 2.5F, 0, 0 }, { "1 0.5 0.5", "1 0.5 0.5" }, "grid" },
    { "ysShape", 6, Camera::Oblique, { 0, 2.5F, 0 }, { "0.5 1 0.5", "0.5 1 0.5" }, "grid" },
    { "grid", 7, Camera::Oblique, { 2.5F, 2.5F, 0 }, { "1 1 0.5" } },
};
template <>
const std::vector<SetRow<UV>> kSets<UV> = {
    { &UV::activateTranslateManipulator, { "xaShape", "yaShape", "xyaShape" } },
    { &UV::activateScaleManipulator, { "xsShape", "ysShape", "grid" } },
    { &UV::activateRotateManipulator, { "rotateShape" } },
    { &UV::activateRotateScaleManipulator, { "rotateShape", "xsShape", "ysShape", "grid" } },
};
template <>
const std::vector<HandleRow> kRows<Tire> = {
    { "xaShape", 1, Camera::Front, { 1.9F, 0, 0 }, { "1 0 0", "1 0 0" } },
    { "yaShape", 2, Camera::Front, { 0, 1.9F, 0 }, { "0 1 0", "0 1 0" } },
    { "zaShape", 3, Camera::Side, { 0, 0, 1.9F }, { "0 0 1", "0 0 1" } },
    { "radiusRingShape", 5, Camera::Side, { 0, -kDiagonal / 1.5F, -kDiagonal / 1.5F }, { "1 0 0" } },
    { "radiusShape", 5, Camera::Side, { 0, 0, 0 }, { "1 0.5 0.5" } },
    { "heightShape", 4, Camera::Oblique, { 0, 0, 0 }, { "0.5 0.5 1" } },
    { "oppositeHeightShape", 4, Camera::Oblique, { 0, 0, 0 }, { "0.5 0.5 1" } },
    { "scaleUShape", 6, Camera::Oblique, { 0, 0, 0 }, { "1 1 0" } },
};
template <>
const std::vector<SetRow<Tire>> kSets<Tire> = {
    { &Tire::activateTranslateManipulator, { "xaShape", "yaShape", "zaShape" } },
    { &Tire::activateScaleManipulator, { "radiusRingShape", "radiusShape", "heightShape", "oppositeHeightShape", "scaleUShape" } },
};

// clang-format on

template <class Gizmo>
class Handles : public testing::Test
{
protected:
    using Scene =
        std::conditional_t<std::is_same_v<Gizmo, Transform>, DragScene, TextureSceneOf<Gizmo>>;

    static const std::vector<HandleRow>& rows() { return kRows<Gizmo>; }

    static Names names()
    {
        Names all;
        for (const HandleRow& row : rows()) {
            all.emplace_back(row.name);
        }
        return all;
    }

    /// Whether it is shown while another is dragged.
    static bool isShownWith(const HandleRow& row, const HandleRow& dragged)
    {
        if constexpr (std::is_same_v<Gizmo, Planar>) {
            const auto groupOf = [](const HandleRow& of) {
                return *of.group == '\0' ? std::string("translate") : of.group;
            };
            // Deliberate: the x arrow and the plane handle leave all other groups shown.
            return *dragged.group == '\0' || groupOf(row) == groupOf(dragged);
        }
        return row.mode == dragged.mode;
    }

    void expectColors(const HandleRow& of, const HandleRow* hovered)
    {
        // The box in the middle takes others along.
        const bool isLit = hovered != nullptr &&
            (of.mode == hovered->mode || std::string(of.group) == hovered->name);
        EXPECT_EQ(partColors(at.handle(of.name)),
                  isLit ? Names(of.idle.size(), kHighlight) : of.idle)
            << of.name;
    }

    Scene at;
};

using GizmosOfTables = testing::Types<Transform, Planar, Triplanar, UV, Tire>;
TYPED_TEST_SUITE(Handles, GizmosOfTables, );

}  // namespace

TYPED_TEST(Handles, AreHitByTheirNamesLightUpAndHideTheOthers)
{
    auto& scene = this->at;
    scene.gizmo.activateUniversalManipulator();
    for (const bool isOrthographic : { false, true }) {
        for (const HandleRow& row : this->rows()) {
            SCOPED_TRACE(std::string(row.name) + (isOrthographic ? ", orthographic" : ""));
            scene.look(row.camera, isOrthographic);
            const bool isAtOrigin = row.unit == Vec3f();
            const Pnt2f pixel = scene.rayPixelOf(isAtOrigin ? scene.originOf(row.name)
                                                            : scene.onHandle(row.name, row.unit));
            EXPECT_TRUE(scene.scene.send("hover", pixel));
            if constexpr (!std::is_same_v<TypeParam, Transform>) {
                EXPECT_EQ(static_cast<unsigned>(scene.gizmo.getActiveMode()), row.mode);
            }
            for (const HandleRow& other : this->rows()) {
                this->expectColors(other, &row);
            }
            EXPECT_TRUE(scene.scene.send("start", pixel));
            for (const HandleRow& other : this->rows()) {
                EXPECT_EQ(isShown(scene.handle(other.name)), this->isShownWith(other, row))
                    << other.name;
            }
            EXPECT_TRUE(scene.scene.send("stop", pixel));
            EXPECT_EQ(scene.shownOf(this->names()), this->names());
            this->expectColors(row, nullptr);
        }
    }
}

TYPED_TEST(Handles, OfAModeAreShown)
{
    auto& scene = this->at;
    const Names names = this->names();
    for (const SetRow<TypeParam>& set : kSets<TypeParam>) {
        (scene.gizmo.*set.activate)();
        Names shown = scene.shownOf(names);
        EXPECT_TRUE(
            std::is_permutation(shown.begin(), shown.end(), set.shown.begin(), set.shown.end()))
            << testing::PrintToString(shown);
        scene.gizmo.hideManipulator();
        EXPECT_EQ(scene.shownOf(names), Names());
        scene.gizmo.showActiveManipulator();
        EXPECT_EQ(scene.shownOf(names), shown);
    }
    scene.gizmo.activateUniversalManipulator();
    EXPECT_EQ(scene.shownOf(names), names);
}

TYPED_TEST(Handles, AreDrawnUnlitAfterTheSceneAndTheirDepthPassBeforeThem)
{
    const osg::NodePtr root = this->at.gizmo.getVisualisation();
    for (const std::string& name : this->names()) {
        EXPECT_TRUE(nbNodeUtils::hasParent(this->at.handle(name), root));
        for (const osg::NodePtr& part : partsOf(this->at.handle(name))) {
            const auto geometry = osg::GeometryPtr::dcast(part->getCore());
            const auto material = osg::SimpleMaterialPtr::dcast(geometry->getMaterial());
            EXPECT_GE(material->getSortKey(), 64015) << name;
            EXPECT_LE(material->getSortKey(), 64017) << name;
            EXPECT_LE(material->getTransparency(), 0.01F) << name;
            EXPECT_FALSE(material->getLit()) << name;
            const auto line =
                osg::LineChunkPtr::dcast(material->find(osg::LineChunk::getClassType()));
            EXPECT_TRUE(line == osg::NullFC || line->getWidth() == 2 || line->getWidth() == 4);
        }
    }
    for (osg::UInt32 i = 0; i < root->getNChildren(); ++i) {
        const osg::NodePtr pass = root->getChild(i);
        if (nbNodeUtils::getName(pass) == "ManipulatorDepthPassMaterialGroup") {
            const auto group = osg::MaterialGroupPtr::dcast(pass->getCore());
            const bool isNamed = findNode(pass, this->names().front()) != osg::NullFC;
            constexpr int kDepthKey = std::is_same_v<TypeParam, Transform> ? 64015 : 64014;
            EXPECT_EQ(group->getMaterial()->getSortKey(), isNamed ? 64017 : kDepthKey);
        }
    }
}

TEST(HandlesSeenEndOn, GiveWayToThoseWhoseMotionIsSeen)
{
    using Mode = Transform::ManipulatorMode;
    DragScene at;
    const auto hit = [&at](const Vec3f& unit) {
        at.scene.send("hover", at.rayPixelOf(at.onGizmo(unit)));
        return nbNodeUtils::getName(at.scene.picker.getHitNode());
    };
    for (const bool isOrthographic : { false, true }) {
        at.look(Camera::Front, isOrthographic);
        at.activate(Mode::Universal);
        EXPECT_EQ(hit({ 0, 0, 0 }), "grid") << "not the arrow that points at the viewer";
        at.activate(Mode::TranslateRotate);
        for (const float along : { 0.6F, 1.2F, 1.5F, 1.9F }) {
            EXPECT_EQ(hit({ along, 0, 0 }), "xaShape") << along;
            EXPECT_EQ(hit({ 0, along, 0 }), "yaShape") << along;
        }
        EXPECT_EQ(hit({ 0.3F, 0, 0 }), "xaShape") << "not the plane seen edge-on";
        EXPECT_EQ(hit({ -1, 0, 0 }), "ryShape") << "where nothing else is";
        EXPECT_EQ(hit(kRing), "rzShape");
    }
}

TEST(HandleTrees, HaveTheirChildrenInTheirOrder)
{
    const auto namesOf = [](const osg::NodePtr& node) {
        Names names;
        for (osg::UInt32 i = 0; i < node->getNChildren(); ++i) {
            const char* const name = osg::getName(node->getChild(i));
            names.emplace_back(name != nullptr ? name : "");
        }
        return names;
    };
    const std::string pass = "ManipulatorDepthPassMaterialGroup";
    DragScene transform;
    const osg::NodePtr root = transform.gizmo.getVisualisation();
    EXPECT_EQ(namesOf(root), (Names { "", pass, "", pass })) << "marks, copy, extras, handles";
    const osg::NodePtr handles = root->getChild(3)->getChild(0);
    const osg::NodePtr copy = root->getChild(1)->getChild(0);
    EXPECT_EQ(namesOf(copy), Names(handles->getNChildren())) << "the copy bears no names";
    transform.activate(Transform::ManipulatorMode::RotatePivot);
    for (osg::UInt32 i = 0; i < handles->getNChildren(); ++i) {
        EXPECT_EQ(copy->getChild(i)->getActive(), handles->getChild(i)->getActive());
    }
    const osg::UInt32 last = handles->getNChildren() - 1;
    EXPECT_TRUE(handles->getChild(last - 1)->getActive()) << "the sphere of the rotate pivot";
    EXPECT_FALSE(handles->getChild(last)->getActive());
    transform.activate(Transform::ManipulatorMode::ScalePivot);
    EXPECT_FALSE(handles->getChild(last - 1)->getActive());
    EXPECT_TRUE(handles->getChild(last)->getActive()) << "the cube of the scale pivot";

    const UV uv;
    const osg::NodePtr uvTree = const_cast<UV&>(uv).getVisualisation()->getChild(0);
    EXPECT_EQ(namesOf(uvTree->getChild(0)), (Names { "xaShape", "yaShape", "xyaShape" }));
    EXPECT_EQ(namesOf(uvTree->getChild(1)), Names { "rotateShape" });
    EXPECT_EQ(namesOf(uvTree->getChild(2)), (Names { "xsShape", "ysShape", "grid" }));

    TextureSceneOf<Triplanar> triplanar;
    const osg::NodePtr tree = triplanar.gizmo.getVisualisation()->getChild(0);
    EXPECT_TRUE(nbNodeUtils::getNodeFlags(tree) & osg::NodeFlags::SelectableAuxiliary);
    EXPECT_EQ(namesOf(tree).front(), "grid");
    EXPECT_EQ(namesOf(tree->getChild(1)), (Names { "xaShape", "yaShape", "zaShape" }));
    EXPECT_EQ(namesOf(tree->getChild(2)), (Names { "rxShape", "ryShape", "rzShape" }));
    EXPECT_EQ(namesOf(tree->getChild(3)), (Names { "xsShape", "ysShape", "zsShape" }));
    triplanar.gizmo.activateRotateScaleManipulator();
    EXPECT_EQ(partColor(triplanar.handle("ysShape"), 1), "0 1 0") << "full colour in this set";
    const osg::NodePtr tripass = triplanar.gizmo.getVisualisation()->getChild(1)->getChild(0);
    EXPECT_EQ(tripass->getCore(), tree->getCore());
    EXPECT_FALSE(tripass->getChild(1)->getActive()) << "hidden in both passes";
    EXPECT_TRUE(tripass->getChild(2)->getActive());
}

}  // namespace nbec::manipulator::test
