// SPDX-License-Identifier: MIT
// A recording as a bug report: small, readable, the same again, and at home beside its models.
#include "viewer/gui/SessionRecorder.h"

#include "tests/viewer/support/ShownWindow.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QWheelEvent>

namespace viewer {
namespace {

class SessionRecorderTest : public ShownWindow
{
protected:
    SessionRecorderTest()
        : recorder(window.view())
    {
        window.view().fixSize({ 800, 600 });
        window.adjustSize();
    }

    /// A drag in as many events as a fast mouse sends.
    void fastDrag()
    {
        hover({ 100.0, 500.0 });
        send(QEvent::MouseButtonPress, { 100.0, 500.0 }, Qt::RightButton, Qt::RightButton);
        for (int i = 1; i <= 200; ++i) {
            send(QEvent::MouseMove, { 100.0 + i / 3.0, 500.0 - i / 7.0 }, Qt::NoButton,
                 Qt::RightButton);
        }
        send(QEvent::MouseButtonRelease, { 100.0 + 200 / 3.0, 500.0 - 200 / 7.0 }, Qt::RightButton,
             Qt::NoButton);
    }

    /// Two fingers go over a touchpad.
    void useTouchpad()
    {
        const QPointF at(300.0, 300.0);
        QWheelEvent fingers(at, at, { 40, -25 }, { 20, -12 }, Qt::NoButton, Qt::NoModifier,
                            Qt::ScrollUpdate, false);
        QCoreApplication::sendEvent(&window.view(), &fingers);
    }

    SessionRecorder recorder;
};

TEST_F(SessionRecorderTest, AFastDragIsAFewLinesAndReplaysToTheSamePose)
{
    recorder.start({});
    fastDrag();
    const CameraPose dragged = stage().pose();
    useTouchpad();
    EXPECT_NE(stage().pose().at, dragged.at) << "two fingers pan";
    click(placeOf(SessionTarget::Kind::Node, "Vase"));
    const Session session = recorder.stop();
    const CameraPose pose = stage().pose();
    const QByteArray text = sessionText(session);

    EXPECT_LT(QJsonDocument::fromJson(text).toJson(QJsonDocument::Compact).size(), 3300)
        << text.toStdString();
    EXPECT_LT(session.steps.size(), 26U);
    ASSERT_GT(session.steps.size(), 4U);
    EXPECT_EQ(session.steps[2].at.offsetPx, QPointF(100.33, 499.86)) << "rounded, and the first";
    EXPECT_TRUE(text.contains("\"fov\": 32,")) << text.toStdString();
    const std::optional<Session> read = parseSession(text, error);
    ASSERT_TRUE(read) << error.toStdString();
    EXPECT_EQ(sessionText(*read), text);

    window.showStartScene();
    replay(*read);
    EXPECT_EQ(stage().selectedName(), "Vase");
    const CameraPose again = stage().pose();
    for (osg::UInt32 i = 0; i < 3; ++i) {
        EXPECT_NEAR(again.from[i], pose.from[i], 2e-3F);
    }
}

TEST_F(SessionRecorderTest, FilesAreNamedFromTheSessionsFolder)
{
    const QTemporaryDir folder;
    const QDir base(folder.path());
    ASSERT_TRUE(base.mkpath("models") && base.mkpath("sessions"));
    for (const char* name : { "boxes.obj", "boxes.mtl", "label.png" }) {
        ASSERT_TRUE(QFile::copy(QStringLiteral(NB_VIEWER_FOLDER "/models/") + name,
                                base.filePath("models/") + name));
    }
    recorder.start({ base.filePath("models/boxes.obj") });
    recorder.addCommand("texture.drop",
                        QJsonObject { { "file", base.filePath("models/label.png") },
                                      { "at", QJsonArray { 1, 2 } } });
    recorder.addCommand("texture.picture", base.filePath("models/label.png"));
    recorder.addCommand("plates.addText", QJsonObject { { "text", "/not/a/file" } });
    const QString path = base.filePath("sessions/bug.json");

    ASSERT_TRUE(writeSessionFile(path, recorder.stop(), error)) << error.toStdString();

    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray text = QJsonDocument::fromJson(file.readAll()).toJson(QJsonDocument::Compact);
    EXPECT_FALSE(text.contains(folder.path().toUtf8())) << text.toStdString();
    EXPECT_TRUE(text.contains("\"files\":[\"../models/boxes.obj\"]"));
    EXPECT_TRUE(text.contains(R"("value":{"at":[1,2],"file":"../models/label.png"})"));
    EXPECT_TRUE(text.contains("\"value\":\"../models/label.png\""));
    EXPECT_TRUE(text.contains("/not/a/file"));
}

}  // namespace
}  // namespace viewer
