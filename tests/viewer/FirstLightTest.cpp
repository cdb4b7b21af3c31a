// SPDX-License-Identifier: MIT
// From a model file and a session to the pixels of the picture, with real events.
#include "tests/viewer/support/GuiTest.h"
#include "viewer/core/SceneBuilder.h"
#include "viewer/gui/MainWindow.h"
#include "viewer/gui/SessionPlayer.h"
#include "viewer/gui/ViewWidget.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace viewer {
namespace {

const QString kModel = QStringLiteral(NB_VIEWER_FOLDER "/models/lighthouse.glb");

/// Half the edge of the square of pixels that is looked at around a place.
constexpr int kReachPx = 2;

bool isOrange(QRgb pixel)
{
    return qRed(pixel) > 200 && qGreen(pixel) > 80 && qGreen(pixel) < 170 && qBlue(pixel) < 90;
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
