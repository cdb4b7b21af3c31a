// SPDX-License-Identifier: MIT
#include "tests/platform/support/LogLines.h"
#include "tests/platform/support/Plates.h"

#include <nbKernel/nbController.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGSceneplate/nbSceneplateLayout.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbSceneplateModule/nbSceneplateEditing.h>
#include <nbSceneplateModule/nbSceneplateModule.h>

#include <OpenSG/OSGGroup.h>

#include <QUndoStack>
#include <QtGui/QVector2D>

#include <gmock/gmock.h>

#include <limits>
#include <string>
#include <vector>

using osg::NodePtr;
using osg::Sceneplate;
using osg::Vec2f;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

constexpr float kTolerance = 1e-6f;
const osg::Color4f kWhite(1.f, 1.f, 1.f, 1.f);

}  // namespace

/// Plates in a view of 800 x 600 pixels and a module that receives messages.
class nbSceneplateModuleTest : public testing::Test
{
protected:
    nbSceneplateModuleTest()
    {
        widget.resize(800, 600);
        undo->clear();
        nbController::setModified(0);
        module.addChangedCallback([this] { ++changes; });
    }

    ~nbSceneplateModuleTest() override
    {
        undo->clear();
        nbScenegraph::clear();
    }

    /// A square plate of a tenth of the view's height, placed from the centre.
    static NodePtr add(float x, float y, float rotation = 0.f)
    {
        const NodePtr node = platetest::makePlate({}, 1, kWhite, [&](const auto& plate) {
            plate->setAnchor(Sceneplate::Centre);
            plate->setPosition(Vec2f(x, y));
            plate->setSize(Vec2f(0.1f, 0.1f));
            plate->setRotation(rotation);
        });
        const NodePtr root = nbScenegraph::getSceneplateRoot();
        const nbEdit edit(root, osg::Node::ChildrenFieldMask);
        root->addChild(node);
        return node;
    }

    static void select(const std::vector<NodePtr>& nodes, const std::string& hint = "select")
    {
        nbMessage message;
        message.set("nodes", nodes, true);
        message.set("hint", hint, true);
        nbController::call("sceneplateSelected", message, 0);
    }

    static void preselect(const NodePtr& node)
    {
        nbMessage message;
        message.set("node", node, true);
        nbController::call("sceneplatePreselected", message, 0);
    }

    static void change(float factor, const QVector2D& offset, float rotation)
    {
        nbMessage message;
        message.set("scaleFactor", factor, true);
        message.set("offset", offset, true);
        message.set("rotation", rotation, true);
        nbController::call("sceneplateChanged", message, 0);
    }

    static void expectPlace(const NodePtr& node, float x, float y, float scale, float rotation)
    {
        const osg::SceneplatePtr plate = platetest::plateOf(node);
        EXPECT_NEAR(plate->getPosition().x(), x, kTolerance);
        EXPECT_NEAR(plate->getPosition().y(), y, kTolerance);
        EXPECT_NEAR(plate->getScale(), scale, kTolerance);
        EXPECT_NEAR(plate->getRotation(), rotation, 1e-4f);
    }

    static osg::Int32 markerOf(const NodePtr& node)
    {
        return platetest::plateOf(node)->getMarker();
    }

    int stepCount() const { return undo->getStack()->count(); }

    nbOSGWidget widget;
    nbUndoService* const undo = nbUndoService::the();
    nbSceneplateModule module;
    nbtest::LogLines logLines;
    std::vector<std::string>& log = logLines.lines;
    int changes = 0;
};

TEST_F(nbSceneplateModuleTest, HintsSayWhatBecomesOfTheSelection)
{
    const NodePtr a = add(0.f, 0.f);
    const NodePtr b = add(0.1f, 0.f);
    const NodePtr c = add(0.2f, 0.f);

    select({ b, a });
    EXPECT_THAT(module.getSelection(), ElementsAre(b, a)) << "in the order of selecting";
    select({ c, a }, "add");
    EXPECT_THAT(module.getSelection(), ElementsAre(b, a, c));
    select({ b }, "deselect");
    select({ c }, "sub");
    EXPECT_THAT(module.getSelection(), ElementsAre(a));
    select({ a, b }, "toggle");
    EXPECT_THAT(module.getSelection(), ElementsAre(b));
    select({}, "add");
    EXPECT_THAT(module.getSelection(), ElementsAre(b));
    select({});
    EXPECT_THAT(module.getSelection(), IsEmpty());
    EXPECT_EQ(changes, 6) << "none for what changes nothing";
    EXPECT_THAT(log, IsEmpty());
    EXPECT_EQ(nbController::getModified(), 0) << "selecting is no change of the scene";
}

TEST_F(nbSceneplateModuleTest, MarkersFollowSelectionAndPreselection)
{
    const NodePtr a = add(0.f, 0.f);
    const NodePtr b = add(0.1f, 0.f);
    widget.redrawDone();

    select({ a });
    preselect(b);
    EXPECT_EQ(markerOf(a), Sceneplate::SelectedMarker);
    EXPECT_EQ(markerOf(b), Sceneplate::PreselectedMarker);
    EXPECT_EQ(module.getPreselected(), b);
    EXPECT_TRUE(widget.isRedrawPending());
    preselect(a);
    EXPECT_EQ(markerOf(a), Sceneplate::SelectedMarker);
    EXPECT_EQ(markerOf(b), Sceneplate::NoMarker);
    select({});
    EXPECT_EQ(markerOf(a), Sceneplate::PreselectedMarker);
    preselect(osg::NullFC);
    EXPECT_EQ(markerOf(a), Sceneplate::NoMarker);
}

TEST_F(nbSceneplateModuleTest, BadMessagesCostALineAndLoseNothing)
{
    const NodePtr a = add(0.f, 0.f);
    select({ a });
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float inf = std::numeric_limits<float>::infinity();
    const auto expectLine = [this](const std::string& text) {
        EXPECT_THAT(log, ElementsAre(HasSubstr(text)));
        log.clear();
    };

    select({ a }, "Select");
    expectLine("\"Select\" is unknown");
    nbController::call("sceneplateSelected", 0);
    expectLine("\"nodes\" is missing");
    select({ nbScenegraph::getRootNode(), a, osg::NullFC });
    expectLine("2 of 3 nodes are no scene plates");
    change(nan, { 0.f, 0.f }, 0.f);
    expectLine("scaleFactor");
    change(1.f, { 0.1f, inf }, 0.f);
    expectLine("not finite");
    change(1e38f, { 3e38f, 0.f }, 0.f);
    EXPECT_THAT(log, IsEmpty());
    change(1e38f, { 3e38f, 0.f }, 0.f);
    expectLine("too large");
    undo->undo();

    EXPECT_THAT(module.getSelection(), ElementsAre(a));
    expectPlace(a, 0.f, 0.f, 1.f, 0.f);
}

TEST_F(nbSceneplateModuleTest, ValuesAreAbsoluteFromTheStartOfTheGroup)
{
    const NodePtr a = add(0.1f, 0.2f, 30.f);
    select({ a });

    undo->beginGroup();
    change(1.f, { 0.f, 0.f }, 0.f);
    change(1.5f, { 0.05f, 0.f }, 10.f);
    change(2.f, { 0.1f, -0.1f }, 20.f);
    undo->endGroup();
    expectPlace(a, 0.2f, 0.1f, 2.f, 50.f);
    EXPECT_EQ(stepCount(), 1);
    EXPECT_EQ(undo->getStack()->text(0), "Turn scene plates");
    EXPECT_EQ(nbController::getModified(), 1);

    undo->beginGroup();
    change(2.f, { 0.f, 0.f }, 0.f);
    undo->endGroup();
    expectPlace(a, 0.2f, 0.1f, 4.f, 50.f);

    change(1.f, { 0.1f, 0.f }, 0.f);
    change(1.f, { 0.1f, 0.f }, 0.f);
    expectPlace(a, 0.4f, 0.1f, 4.f, 50.f);
    EXPECT_EQ(stepCount(), 4) << "outside of a group each is a change of its own";
}

TEST_F(nbSceneplateModuleTest, DeletedPlatesLeaveTheSelectionAndComeBackWithUndo)
{
    const NodePtr a = add(0.f, 0.f);
    const NodePtr b = add(0.1f, 0.f);
    const osg::UInt32 idOfA = a.getFieldContainerId();
    select({ a, b });
    preselect(a);

    EXPECT_EQ(nbSceneplateEditing::remove({ a, nbScenegraph::getRootNode() }), 1U);
    EXPECT_THAT(module.getSelection(), ElementsAre(b));
    EXPECT_EQ(module.getPreselected(), osg::NullFC);
    change(1.f, { 0.1f, 0.f }, 0.f);
    undo->undo();
    undo->undo();
    EXPECT_THAT(module.getSelection(), ElementsAre(a, b));
    EXPECT_EQ(nbScenegraph::getSceneplateRoot()->getChild(0), a) << "at its place";

    undo->redo();
    undo->clear();
    EXPECT_EQ(osg::FieldContainerFactory::the()->getContainer(idOfA), osg::NullFC)
        << "nothing keeps it alive";
    EXPECT_THAT(module.getSelection(), ElementsAre(b));
}

TEST_F(nbSceneplateModuleTest, AddedPlatesLieInFrontAndRestackAsBlocks)
{
    const auto make = [](const char* name, bool front = true) {
        const NodePtr node = platetest::makePlate({ 1.f, 1.f, 1.f, 1.f }, 1, kWhite,
                                                  [&](const auto& p) { p->setFront(front); });
        nbNodeUtils::setName(node, name);
        EXPECT_TRUE(nbSceneplateEditing::add(node));
        return node;
    };
    const auto stack = [] {
        std::string names;
        for (const NodePtr& node : nbSceneplateEditing::getStack()) {
            names += nbNodeUtils::getName(node);
        }
        return names;
    };
    const NodePtr a = make("a");
    const NodePtr b = make("b");
    make("x", false);
    const NodePtr c = make("c");
    EXPECT_EQ(stack(), "cbax");

    EXPECT_TRUE(nbSceneplateEditing::restack({ a, b }, 1));
    EXPECT_EQ(stack(), "bacx");
    EXPECT_FALSE(nbSceneplateEditing::restack({ a, b }, 1)) << "they are in front";
    EXPECT_TRUE(nbSceneplateEditing::restack({ b }, -1));
    EXPECT_EQ(stack(), "abcx");
    EXPECT_FALSE(nbSceneplateEditing::restack({ c }, -1));
    EXPECT_EQ(stepCount(), 6);
    while (undo->undo()) { }
    EXPECT_EQ(stack(), "");
    while (undo->redo()) { }
    EXPECT_EQ(stack(), "abcx");
    EXPECT_FALSE(nbSceneplateEditing::add(osg::makeCoredNode<osg::Group>()));
}

TEST_F(nbSceneplateModuleTest, PlatesAreAlignedDistributedMovedAndDuplicatedAsOneStepEach)
{
    using Side = nbSceneplateEditing::Side;
    const NodePtr other(osg::makeNodeFor(osg::Group::create()));
    const osg::NodeRefPtr held(other);
    const NodePtr left = add(-0.3f, 0.2f);
    const NodePtr turned = add(0.f, 0.1f, 45.f);
    const NodePtr right = add(0.4f, -0.25f);
    const std::vector<NodePtr> all { left, other, turned, right };
    const auto box = [](const NodePtr& node, osg::UInt32 axis) {
        const auto corners = nbSceneplateLayout::corners(platetest::plateOf(node), 800, 600);
        return std::minmax(
            { corners[0][axis], corners[1][axis], corners[2][axis], corners[3][axis] });
    };
    const std::pair<float, float> above = box(left, 1);
    const std::pair<float, float> outer(box(left, 0).first, box(right, 0).second);

    nbSceneplateEditing::align(all, 1, Side::Low, 800, 600);
    for (const NodePtr& node : { left, turned, right }) {
        EXPECT_NEAR(box(node, 1).first, above.first, 0.51f) << "rounded to whole pixels";
    }
    EXPECT_TRUE(nbSceneplateEditing::distribute(all, 0, 800, 600));
    EXPECT_NEAR(box(turned, 0).first - box(left, 0).second,
                box(right, 0).first - box(turned, 0).second, 1.f);
    EXPECT_EQ(box(left, 0).first, outer.first);
    EXPECT_EQ(box(right, 0).second, outer.second);
    EXPECT_FALSE(nbSceneplateEditing::distribute({ left, right, other }, 0, 800, 600));
    nbSceneplateEditing::move({ right }, Vec2f(12.f, 6.f), 600);
    EXPECT_NEAR(box(right, 0).second, outer.second + 12.f, 0.51f);
    nbSceneplateEditing::align({ right }, 0, Side::High, 800, 600);
    EXPECT_NEAR(box(right, 0).second, 800.f, 0.51f) << "one alone: in the view";
    const auto copies = nbSceneplateEditing::duplicate({ other, right },
                                                       [](const auto& name) { return name + "+"; });
    ASSERT_EQ(copies.size(), 1U);
    EXPECT_EQ(platetest::plateOf(copies[0])->getSize(), platetest::plateOf(right)->getSize());
    EXPECT_EQ(nbSceneplateEditing::getStack().front(), copies[0]);
    EXPECT_EQ(undo->getStack()->count(), 5);
    while (undo->undo()) { }
    EXPECT_EQ(platetest::plateOf(right)->getPosition(), Vec2f(0.4f, -0.25f));
    EXPECT_EQ(nbSceneplateEditing::getStack().size(), 3U);
}
