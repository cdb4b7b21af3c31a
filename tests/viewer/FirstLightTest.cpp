// SPDX-License-Identifier: MIT
// From a model file and a session to the pixels of the picture, with real events.
#include "tests/viewer/support/ShownWindow.h"

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

class FirstLight : public ShownWindow
{
protected:
    /// Replays steps on the loaded model.
    void replaySteps(const std::vector<SessionStep>& steps)
    {
        Session session;
        session.sizePx = { 900, 700 };
        session.files.append(kModel);
        session.steps = steps;
        replay(session);
        EXPECT_EQ(problems, QStringList());
        EXPECT_EQ(window.player().getFailures(), QStringList());
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
};

TEST_F(FirstLight, TheHandleUnderThePointerTurnsOrangeAndBackAgain)
{
    replaySteps({});
    SessionStep step = stepAt(SessionStep::Type::Move, SessionTarget::Kind::Handle, "xaShape");
    replaySteps({ step });
    const osg::Pnt2f pointer = stage().view().getMousePosition();

    EXPECT_GT(countAround(picture(), pointer, isOrange), 3);

    SessionStep leave;
    leave.type = SessionStep::Type::Leave;
    replaySteps({ step, leave });
    EXPECT_EQ(countAround(picture(), pointer, isOrange), 0);
    EXPECT_GT(countAround(picture(), pointer, isRed), 3);
}

}  // namespace
}  // namespace viewer
