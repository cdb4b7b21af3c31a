// SPDX-License-Identifier: MIT
#include <nbKernel/nbOSGWidget.h>
#include <nbKernelServices/nbKernelServiceFactory.h>
#include <nbKernelServices/nbObjectService.h>
#include <nbKernelServices/nbPerspectiveSolver.h>
#include <nbKernelServices/nbQRPCConverter.h>
#include <nbKernelServices/nbScopedUndo.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbKernelServices/nbdCameraNode.h>

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGNodePtr.h>

#include <QUndoStack>

#include <gmock/gmock.h>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr double kDegPerRad = 180.0 / 3.14159265358979323846;

bool isSameLine(const QLineF& a, const QLineF& b)
{
    return a.x1() == b.x1() && a.y1() == b.y1() && a.x2() == b.x2() && a.y2() == b.y2();
}

/// A view of 1600 x 1000 with the camera that took the photograph, and the lines that it gives.
class nbdPerspectiveMatchTest : public testing::Test
{
protected:
    nbdPerspectiveMatchTest()
    {
        undo->clear();
        widget->resize(1600, 1000);
        camera = widget->getUberCamera();
        node = nbdCameraNode(nbQRPCConverter::nodeToId(camera->getInternalParentNode()));
        match = node.getPerspectiveMatch();
        photographed.from = osg::Pnt3f(4.f, 3.f, 6.f);
        photographed.at = photographed.pivot = osg::Pnt3f(0.f, 0.5f, 0.f);
        photographed.fovDeg = 38.f;
        camera->setPose(photographed);
        node.layLinesAsSeen();
        QObject::connect(nbKernelServiceFactory::the().find<nbObjectService>(),
                         &nbObjectService::propertyChanged, &listener,
                         [this](const nbdObject& object, const QByteArray& property) {
                             changes.push_back((nbdCameraNode(object) ? "camera " : "match ") +
                                               property.toStdString());
                             if (answer) {
                                 std::exchange(answer, nullptr)();
                             }
                         });
    }

    ~nbdPerspectiveMatchTest() override { undo->clear(); }

    /// The camera somewhere near, so that solving has something to do.
    void stepAside()
    {
        CameraPose pose = photographed;
        pose.from = osg::Pnt3f(5.f, 3.5f, 5.2f);
        pose.fovDeg = 50.f;
        camera->setPose(pose);
    }

    void dragLine(double dx)
    {
        const nbScopedUndo scope(true);
        match.setXLine1(match.getXLine1().translated(dx, 0.0));
        node.updateFromPerspectiveMatch();
    }

    /// How far the camera looks from the photograph's direction.
    double missDeg() const
    {
        const osg::Vec3f a = nbCameraNavigation::axes(camera->getPose()).back;
        const osg::Vec3f b = nbCameraNavigation::axes(photographed).back;
        return std::asin(a.cross(b).length()) * kDegPerRad;
    }

    nbUndoService* const undo = nbUndoService::the();
    std::unique_ptr<nbOSGWidget> widget = std::make_unique<nbOSGWidget>();
    osg::UberCameraPtr camera;
    nbdCameraNode node;
    nbdPerspectiveMatch match;
    CameraPose photographed;
    QObject listener;
    std::vector<std::string> changes;
    /// What is done when the next change is told.
    std::function<void()> answer;
};

TEST_F(nbdPerspectiveMatchTest, HandlesReferToLivingThings)
{
    const osg::NodeRefPtr plain(osg::makeNodeFor(osg::Group::create()));
    const nbdNode plainNode(nbQRPCConverter::nodeToId(plain));

    EXPECT_TRUE(node && match && plainNode);
    EXPECT_TRUE(nbdCameraNode(static_cast<const nbdObject&>(node)).isEqual(node));
    EXPECT_TRUE(nbdCameraNode(static_cast<const nbdObject&>(match)).isNull());
    EXPECT_TRUE(nbdCameraNode(static_cast<const nbdObject&>(plainNode)).isNull());

    widget.reset();
    EXPECT_TRUE(node.isNull() && match.isNull());
    EXPECT_FALSE(node.isLocked());
    match.setXLine1(QLineF(1.0, 2.0, 3.0, 4.0));
    EXPECT_TRUE(isSameLine(match.getXLine1(), QLineF()));
    EXPECT_EQ(node.updateFromPerspectiveMatch(), nbCameraTypes::NoCamera);
}

TEST_F(nbdPerspectiveMatchTest, KeepsWhatIsSetAndAnnouncesChangesOnce)
{
    const QLineF line(0.1, 0.2000000001, -3.0, 1e5);
    match.setYLine2(line);
    match.setYLine2(line);
    match.setVanishingLinesType(nbCameraTypes::YZLines);
    match.setVanishingLinesType(static_cast<nbCameraTypes::VanishingLinesType>(9));
    match.setMagnifyFactor(100.f);
    match.setMagnifyFactor(std::numeric_limits<float>::quiet_NaN());
    node.setFovMode(nbCameraTypes::FixedFov);
    node.setLocked(true);

    EXPECT_TRUE(isSameLine(match.getYLine2(), line));
    match.setYLine2(nbQRPCConverter::fromLine2D(nbQRPCConverter::toLine2D(line)));
    EXPECT_TRUE(isSameLine(match.getYLine2(), line)) << "the way through single precision";
    EXPECT_THAT(changes,
                ElementsAre("match yLine2", "match vanishingLinesType", "match magnifyFactor",
                            "camera fovMode", "camera locked"));
}

TEST_F(nbdPerspectiveMatchTest, TurnsAndOpensTheCameraAboutItsPivot)
{
    stepAside();
    const float distance = camera->getFrom().dist(camera->getPivot());

    EXPECT_EQ(node.updateFromPerspectiveMatch(), nbCameraTypes::Solved);

    EXPECT_LT(missDeg(), 0.01);
    EXPECT_NEAR(camera->getFov(), photographed.fovDeg, 0.01);
    EXPECT_NEAR(camera->getFrom().dist(camera->getPivot()), distance, 1e-4);
    EXPECT_THAT(changes, ElementsAre("camera orientation", "camera fov"));

    stepAside();
    node.setFovMode(nbCameraTypes::FixedFov);
    EXPECT_EQ(node.updateFromPerspectiveMatch(), nbCameraTypes::SolvedWithKeptFov);
    EXPECT_EQ(camera->getFov(), 50.f);
}

TEST_F(nbdPerspectiveMatchTest, AQuarterTurnGivesLinesToOtherAxesAndTheCameraGoesAlong)
{
    const QLineF ofY = match.getYLine2();
    match.setVanishingLinesType(nbCameraTypes::XYLines);
    for (int axis = 0; axis < 3; ++axis) {
        node.turnMatch(axis);
        const CameraPose turned = camera->getPose();
        EXPECT_GT(turned.from.dist(photographed.from), 1.f);
        EXPECT_NEAR(turned.from.dist(turned.pivot), photographed.from.dist(photographed.pivot),
                    1e-4f);

        EXPECT_EQ(node.updateFromPerspectiveMatch(), nbCameraTypes::Solved);

        EXPECT_LT(camera->getFrom().dist(turned.from), 1e-3f) << "both fitted before";
    }
    // About x and then y: y went to z and from there to x.
    EXPECT_TRUE(isSameLine(match.getYLine2(), ofY)) << "and about z back to y";
    node.turnMatch(3);
    EXPECT_EQ(match.getVanishingLinesType(), nbCameraTypes::YZLines);
}

TEST_F(nbdPerspectiveMatchTest, ALineOfKnownLengthTellsTheCamerasPlaceAndTheScale)
{
    const osg::Pnt3f origin(0.3f, -0.2f, 0.4f);
    const auto shown = [&](const osg::Pnt3f& point) {
        osg::Pnt2f px;
        EXPECT_TRUE(nbCameraNavigation::project(photographed, point, 1600, 1000, px));
        return QPointF(static_cast<double>(px[0]) / 1000.0,
                       1.0 - static_cast<double>(px[1]) / 1000.0);
    };
    for (const float way : { 1.5f, -1.5f }) {
        camera->setPose(photographed);
        match.setZLine2({ shown(origin), shown(origin + osg::Vec3f(0.f, 0.f, way)) });

        EXPECT_TRUE(node.placeByLine(nbdPerspectiveMatch::ZLine2, 3.0));

        const osg::Vec3f eye = (photographed.from - origin) * 2.f;  // twice as large
        EXPECT_LT((camera->getFrom() - osg::Pnt3f(0.f, 0.f, 0.f) - eye).length(), 2e-3f);
        EXPECT_LT(missDeg(), 1e-3);
    }
    const CameraPose placed = camera->getPose();
    match.setZLine2(QLineF(0.8, 0.5, 0.8, 0.5));
    EXPECT_FALSE(node.placeByLine(nbdPerspectiveMatch::ZLine2, 3.0));
    EXPECT_FALSE(node.placeByLine(nbdPerspectiveMatch::XLine1, 0.0));
    EXPECT_FALSE(
        node.placeByLine(nbdPerspectiveMatch::XLine1, std::numeric_limits<double>::quiet_NaN()));
    EXPECT_EQ(camera->getFrom(), placed.from);
    EXPECT_EQ(camera->getAt(), placed.at);
}

// Found by fuzzing: a camera that a listener destroys is told of no more.
TEST_F(nbdPerspectiveMatchTest, AListenerMayDestroyTheCamera)
{
    stepAside();
    dragLine(0.001);
    ASSERT_EQ(changes.back(), "camera fov");
    changes.clear();
    answer = [this] { widget.reset(); };

    EXPECT_TRUE(undo->undo());
    EXPECT_EQ(changes, std::vector<std::string> { "camera orientation" });
    EXPECT_TRUE(node.isNull());
    EXPECT_TRUE(undo->redo());
}

// Such answers must not end the step that is being taken back, nor destroy it.
TEST_F(nbdPerspectiveMatchTest, AListenerMayEditAndClearWhileAStepIsTakenBack)
{
    stepAside();
    const QLineF line = match.getXLine1();
    dragLine(0.01);
    undo->beginGroup();
    dragLine(0.05);
    answer = [this] {
        const nbScopedUndo scope(true);
        match.setMagnifyFactor(match.getMagnifyFactor() + 1.f);
        undo->beginGroup("Answer");
    };
    undo->cancelGroup();
    EXPECT_FALSE(undo->isGroupOpen());
    EXPECT_EQ(undo->getStack()->count(), 1);

    answer = [this] { undo->clear(); };
    EXPECT_TRUE(undo->undo());
    EXPECT_TRUE(isSameLine(match.getXLine1(), line));
    EXPECT_EQ(undo->getStack()->count(), 0);
}

TEST_F(nbdPerspectiveMatchTest, LinesStayInPlaceOrWithTheMiddleWhenTheViewChangesItsShape)
{
    const QLineF line = match.getXLine1();
    widget->resize(1000, 500);
    EXPECT_TRUE(isSameLine(match.getXLine1(), line));
    widget->resize(1600, 1000);

    match.setAnchoredToCentre(true);
    {
        const nbScopedUndo scope(true);
        match.setYLine1(QLineF(0.5, 0.5, 0.6, 0.9));
    }
    widget->resize(1000, 500);
    // The middle moves from 0.8 to 1.
    EXPECT_NEAR(match.getXLine1().x1(), line.x1() + 0.2, 1e-6);
    EXPECT_NEAR(match.getXLine1().y1(), line.y1(), 1e-12);
    undo->undo();
    EXPECT_NEAR(match.getXLine1().x1(), line.x1() + 0.2, 1e-6);
    stepAside();
    undo->redo();
    match.setYLine1(nbPerspectiveSolver::linesOf(photographed, 2.0, 1.0)[2]);
    EXPECT_EQ(node.updateFromPerspectiveMatch(), nbCameraTypes::Solved);
    EXPECT_LT(missDeg(), 0.01);
}

}  // namespace
