// SPDX-License-Identifier: MIT
// When the view draws, what of it, and that it stands after its OpenGL context was lost.
#include "tests/viewer/support/ShownWindow.h"

#include <QHBoxLayout>
#include <QOpenGLContext>
#include <QPointer>

namespace viewer {
namespace {

class RedrawTest : public ShownWindow
{
protected:
    RedrawTest() { waitForQuiet(); }

    ViewWidget& view() { return window.view(); }

    nbRenderAction::Statistics frame() { return view().frameStatistics(); }

    void moveTo(const QPointF& position)
    {
        hover(position);
        waitForQuiet();
    }
};

TEST_F(RedrawTest, NothingIsDrawnWhileNothingChanges)
{
    const std::size_t before = frame().frames;
    EXPECT_GT(before, 0U);

    waitForQuiet();
    EXPECT_EQ(frame().frames, before) << "nobody did anything";

    moveTo({ 3, 3 });
    const std::size_t beside = frame().frames;
    for (int x = 4; x < 12; ++x) {
        moveTo({ static_cast<qreal>(x), 4 });
    }
    EXPECT_EQ(frame().frames, beside) << "the pointer is where nothing is";

    const QPointF handle = placeOf(SessionTarget::Kind::Handle, "yaShape");
    moveTo(handle);
    const std::size_t highlighted = frame().frames;
    EXPECT_GT(highlighted, beside);
    for (int i = 0; i < 4; ++i) {
        moveTo(handle + QPointF(0, 0.01 * i));
    }
    EXPECT_EQ(frame().frames, highlighted) << "the same handle is highlighted";
    moveTo(placeOf(SessionTarget::Kind::Node, "Pawn"));
    const std::size_t marked = frame().frames;
    moveTo({ 3, 3 });
    EXPECT_GT(frame().frames, marked) << "the object that was under the pointer is unmarked";
}

TEST_F(RedrawTest, AfterTheViewMovedAWholePictureComesByItself)
{
    window.view().setCoarseWhileMoving(true);
    modifiers = Qt::AltModifier;
    bool wasCoarse = false;
    press({ 300, 500 });
    for (int x = 305; x < 325; x += 5) {
        const std::size_t before = frame().frames;
        move({ static_cast<qreal>(x), 500 });
        waitUntil([&] { return frame().frames > before; });
        wasCoarse = wasCoarse || frame().coarse;
    }
    release({ 320, 500 });
    waitUntil([&] { return !frame().coarse; });
    const QImage rested = view().grabFramebuffer();
    view().setExact(true);
    EXPECT_EQ(view().grabFramebuffer(), rested);
    if (!wasCoarse) {
        GTEST_SKIP() << "this machine draws whole pictures in time";
    }
}

TEST_F(RedrawTest, ALostContextLosesNothing)
{
    moveTo({ 3, 3 });
    const QSize size = view().size();
    const QImage before = view().grabFramebuffer();
    const int triangles = static_cast<int>(stage().triangleCount());
    QWidget* const home = view().parentWidget();

    // A view that changes its window gets another context.
    for (int i = 0; i < 2; ++i) {
        const QPointer<QOpenGLContext> lost = view().context();
        ASSERT_FALSE(lost.isNull());
        const std::size_t drawn = frame().frames;
        const bool leaves = i == 0;
        view().setParent(leaves ? nullptr : home);
        if (leaves) {
            view().setFixedSize(size);
        } else {
            home->layout()->addWidget(&view());
        }
        view().show();
        waitUntil([&] { return frame().frames > drawn; });
        waitForQuiet();

        EXPECT_TRUE(lost.isNull()) << "the context did not end";
        EXPECT_EQ(view().grabFramebuffer(), before);
        EXPECT_EQ(static_cast<int>(stage().triangleCount()), triangles);
    }

    const QPointer<QOpenGLContext> lost = view().context();
    view().renewContext();
    waitForQuiet();
    EXPECT_TRUE(lost.isNull());
    EXPECT_EQ(view().grabFramebuffer(), before);

    moveTo(placeOf(SessionTarget::Kind::Handle, "yaShape"));
    EXPECT_NE(view().grabFramebuffer(), before) << "the view still answers";
}

}  // namespace
}  // namespace viewer
