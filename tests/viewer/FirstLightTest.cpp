// SPDX-License-Identifier: MIT
// From a model file and a session to the pixels of the picture, with real events.
#include "tests/viewer/support/GuiTest.h"
#include "viewer/core/SceneBuilder.h"
#include "viewer/gui/MainWindow.h"
#include "viewer/gui/SessionPlayer.h"
#include "viewer/gui/ViewWidget.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGPrimitiveIterator.h>

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace viewer {
namespace {

using nbec::interaction::Picker;

const QString kModel = QStringLiteral(NB_VIEWER_FOLDER "/models/lighthouse.glb");

/// Half the edge of the square of pixels that is looked at around a place.
constexpr int kReachPx = 2;

bool isOrange(QRgb pixel)
{
    return qRed(pixel) > 200 && qGreen(pixel) > 80 && qGreen(pixel) < 170 && qBlue(pixel) < 90;
}

bool isBlue(QRgb pixel)
{
    return qBlue(pixel) > 150 && qRed(pixel) < 130 && qGreen(pixel) < 110;
}

bool isRed(QRgb pixel)
{
    return qRed(pixel) > 200 && qGreen(pixel) < 60 && qBlue(pixel) < 60;
}

/// A window with the shipped model loaded and selected, in a view of 900 x 700.
class FirstLight : public GuiTest
{
protected:
    FirstLight()
        : window(MainWindow::Attendance::Unattended)
    {
        QObject::connect(&window, &MainWindow::problem,
                         [this](const QString& text) { problems.append(text); });
        window.show();
    }

    /// Replays steps on the loaded model.
    void replay(const std::vector<SessionStep>& steps)
    {
        Session session;
        session.sizePx = { 900, 700 };
        session.files.append(kModel);
        session.steps = steps;
        replay(session, std::nullopt);
    }

    void replay(const Session& session, const std::optional<QDir>& pictures)
    {
        bool done = false;
        const auto connection =
            QObject::connect(&window, &MainWindow::replayFinished, [&done] { done = true; });
        window.replay(session, pictures);
        waitUntil([&] { return done || !problems.isEmpty(); });
        QObject::disconnect(connection);
        EXPECT_EQ(problems, QStringList());
        EXPECT_EQ(window.player().getFailures(), QStringList());
    }

    static SessionStep moveTo(const char* handle)
    {
        SessionStep step;
        step.type = SessionStep::Type::Move;
        step.at.kind = SessionTarget::Kind::Handle;
        step.at.name = QLatin1String(handle);
        return step;
    }

    Stage& stage() { return window.view().stage(); }

    QImage picture()
    {
        QString error;
        const QImage image = window.view().takePicture(error);
        EXPECT_FALSE(image.isNull()) << error.toStdString();
        return image;
    }

    /// Corners of all geometry of a handle, world space.
    std::vector<osg::Pnt3f> cornersOf(const std::string& name)
    {
        std::vector<osg::Pnt3f> corners;
        collect(stage().gizmo().handles(), name, corners);
        EXPECT_FALSE(corners.empty()) << name;
        return corners;
    }

    osg::Pnt2f project(const osg::Pnt3f& world)
    {
        osg::Pnt2f px(-1.F, -1.F);
        EXPECT_TRUE(nbCameraNavigation::project(stage().pose(), world, stage().view().getWidth(),
                                                stage().view().getHeight(), px));
        return px;
    }

    /// How many pixels around a place pass a test.
    template <class Test>
    static int countAround(const QImage& image, const osg::Pnt2f& place, Test test)
    {
        int count = 0;
        for (int y = -kReachPx; y <= kReachPx; ++y) {
            for (int x = -kReachPx; x <= kReachPx; ++x) {
                count += test(image.pixel(static_cast<int>(place[0]) + x,
                                          static_cast<int>(place[1]) + y))
                    ? 1
                    : 0;
            }
        }
        return count;
    }

    QStringList problems;
    MainWindow window;

private:
    static void collect(const osg::NodePtr& node, const std::string& name,
                        std::vector<osg::Pnt3f>& corners)
    {
        const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(node->getCore());
        if (geometry != osg::NullFC && nbNodeUtils::getName(node) == name) {
            const osg::Matrix toWorld = node->getToWorld();
            for (auto it = geometry->beginPrimitives(); it != geometry->endPrimitives(); ++it) {
                for (osg::UInt32 i = 0; i < it.getLength(); ++i) {
                    osg::Pnt3f world;
                    toWorld.multMatrixPnt(it.getPosition(static_cast<osg::Int32>(i)), world);
                    corners.push_back(world);
                }
            }
        }
        for (osg::UInt32 i = 0; i < node->getNChildren(); ++i) {
            collect(node->getChild(i), name, corners);
        }
    }
};

TEST_F(FirstLight, TheHandleUnderThePointerTurnsOrangeAndBackAgain)
{
    replay({});
    SessionStep step = moveTo("xaShape");
    replay({ step });
    const osg::Pnt2f pointer = stage().view().getMousePosition();

    EXPECT_GT(countAround(picture(), pointer, isOrange), 3);

    SessionStep leave;
    leave.type = SessionStep::Type::Leave;
    replay({ step, leave });
    EXPECT_EQ(countAround(picture(), pointer, isOrange), 0);
    EXPECT_GT(countAround(picture(), pointer, isRed), 3);
}

TEST_F(FirstLight, TheGizmoShowsThroughTheModelBeforeIt)
{
    // The gizmo stands in the middle of the tower, so that the lower half of the arrow's shaft is
    // inside of it.
    replay({ moveTo("yaShape") });
    const std::vector<osg::Pnt3f> arrow = cornersOf("yaShape");
    const auto [lowest, highest] =
        std::minmax_element(arrow.begin(), arrow.end(),
                            [](const osg::Pnt3f& a, const osg::Pnt3f& b) { return a[1] < b[1]; });
    const osg::BoxVolume bounds = nbNodeUtils::getWorldBounds(stage().selectedObject());
    osg::Pnt3f onShaft = bounds.getMin() + (bounds.getMax() - bounds.getMin()) * 0.5F;
    onShaft[1] = 0.5F * ((*lowest)[1] + (*highest)[1]);
    const osg::Pnt2f px = project(onShaft);
    Picker scene;
    ASSERT_NE(scene.pickAt(px), osg::NodePtr());
    const osg::Pnt3f eye = stage().pose().from;
    ASSERT_LT(scene.getHitPoint().dist(eye), onShaft.dist(eye))
        << "the tower does not stand before the shaft";

    EXPECT_GT(countAround(picture(), px, isOrange), 3);
}

TEST_F(FirstLight, AnArrowHeadHidesTheRingBehindItAndIsHiddenByTheRingBeforeIt)
{
    replay({});
    stage().setOrthographic(true);
    const osg::BoxVolume bounds = nbNodeUtils::getWorldBounds(stage().selectedObject());
    const osg::Pnt3f anchor = bounds.getMin() + (bounds.getMax() - bounds.getMin()) * 0.5F;
    float tip = 0.F;
    for (const osg::Pnt3f& corner : cornersOf("zaShape")) {
        tip = std::max(tip, corner[2] - anchor[2]);
    }
    // The ring's handle has an axis line too, which leaves the ring's plane.
    float radius = 0.F;
    for (const osg::Pnt3f& corner : cornersOf("rzShape")) {
        radius = std::abs(corner[2] - anchor[2]) < 1e-3F ? std::max(radius, corner.dist(anchor))
                                                         : radius;
    }
    // The cone of an arrow has its centre at 2 and its tip at 2.2 of the gizmo's units. It is
    // looked at along the line through a place of the ring that no other ring touches.
    const osg::Vec3f head(0.F, 0.F, tip * 2.F / 2.2F);
    const osg::Vec3f onRing(radius * 0.6F, radius * 0.8F, 0.F);
    const osg::Vec3f towardsEye = head - onRing;

    for (const bool headIsNearer : { true, false }) {
        CameraPose pose = stage().pose();
        const float distance = pose.from.dist(pose.at);
        pose.at = anchor;
        pose.pivot = anchor;
        pose.up = osg::Vec3f(0.F, 1.F, 0.F);
        pose.from =
            anchor + towardsEye * ((headIsNearer ? 1.F : -1.F) * distance / towardsEye.length());
        stage().setPose(pose);
        // Both are blue, so the arrow is made orange by pointing at a part of it beside the ring.
        Session session;
        SessionPlayer player(window.view(), window);
        session.steps = { moveTo("zaShape") };
        bool done = false;
        QObject::connect(&player, &SessionPlayer::finished, [&done] { done = true; });
        player.start(session, SessionPlayer::Pace::AsFastAsPossible, std::nullopt);
        waitUntil([&done] { return done; });
        ASSERT_EQ(player.getFailures(), QStringList());

        const QImage image = picture();
        const osg::Pnt2f crossing = project(anchor + onRing);

        EXPECT_GT(countAround(image, crossing, isOrange), 3) << "the arrow head is not there";
        if (headIsNearer) {
            EXPECT_EQ(countAround(image, crossing, isBlue), 0)
                << "the ring shines through the arrow head";
        } else {
            EXPECT_GT(countAround(image, crossing, isBlue), 2)
                << "the arrow head hides the ring before it";
        }
    }
}

TEST_F(FirstLight, TwoReplaysGiveTheSamePicture)
{
    Session session;
    session.sizePx = { 321, 243 };
    SessionStep shot;
    shot.type = SessionStep::Type::Checkpoint;
    shot.name = QStringLiteral("shot");
    shot.screenshot = true;
    session.steps = { moveTo("ryShape"), shot };
    QByteArray bytes[2];

    for (QByteArray& picture : bytes) {
        const QTemporaryDir folder;
        replay(session, QDir(folder.path()));
        QFile file(folder.filePath("shot.png"));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        picture = file.readAll();
    }

    EXPECT_FALSE(bytes[0].isEmpty());
    EXPECT_EQ(bytes[0], bytes[1]);
    EXPECT_EQ(QImage::fromData(bytes[0]).size(), session.sizePx);
}

}  // namespace
}  // namespace viewer
