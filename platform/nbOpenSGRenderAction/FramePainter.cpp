// SPDX-License-Identifier: MIT
#include "FramePainter.h"

#include <algorithm>

#include <ContentStamp.h>

namespace nbrender {

namespace {

const char* const kPictureFragment = R"(
in vec2 place;
uniform sampler2D picture;
layout (location = 0) out vec4 color;
void main()
{
    color = vec4(texture(picture, place).rgb, 1.0);
}
)";

void clear(Gl& gl, const DepthLayout& depth)
{
    constexpr GLfloat kNothing[] = { 0.0F, 0.0F, 0.0F, 0.0F };
    const GLfloat farthest = depth.getClearValue();
    gl.glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    gl.glDepthMask(GL_TRUE);
    gl.glClearBufferfv(GL_COLOR, 0, kNothing);
    gl.glClearBufferfv(GL_COLOR, 1, kNothing);
    gl.glClearBufferfv(GL_DEPTH, 0, &farthest);
}

}  // namespace

bool FramePainter::initialise(Gl& gl, std::string& error)
{
    depth = DepthLayout::choose();
    const bool isReady = usePictureProgram(gl) != nullptr;
    if (!isReady) {
        error = "the driver refuses the renderer's programs";
    }
    return isReady;
}

GlProgram* FramePainter::usePictureProgram(Gl& gl)
{
    return programs.use(gl, "pictures", shaders::kFullScreenVertex, kPictureFragment);
}

void FramePainter::draw(Gl& gl, const Frame& frame, const osg::ViewportPtr& viewport,
                        FrameTargets& targets)
{
    gl.glViewport(0, 0, frame.widthPx, frame.heightPx);
    if (viewport == osg::NullFC || viewport->getCamera() == osg::NullFC) {
        drawBackground(gl, frame, viewport, targets);
        return;
    }
    const FrameView view = prepareView(frame, viewport);
    plates.update(viewport->getRoot());
    const FrameSteps steps = makeSteps(frame, viewport, view);
    const SceneImage::Plan plan = makePlan(frame, view, steps, targets);
    if (plan.reused > 0) {
        targets.restore(gl);
        for (std::size_t i = plan.reused; i < steps.size(); ++i) {
            targets.markDrawn(pixelsOf(steps[i], frame, view));
        }
    } else {
        drawBackground(gl, frame, viewport, targets);
        plates.draw(gl, frame, SceneplatePainter::Side::Back, programs, textures);
    }
    const std::size_t middle = std::max(plan.reused, plan.kept);
    drawSteps(gl, frame, viewport, view, steps, plan.reused, middle);
    if (plan.kept > plan.reused) {
        image.kept(steps, plan, wholeOf(frame).area(), targets.keep(gl));
        for (std::size_t i = middle; i < steps.size(); ++i) {
            targets.markDrawn(pixelsOf(steps[i], frame, view));
        }
    }
    drawSteps(gl, frame, viewport, view, steps, middle, steps.size());
}

void FramePainter::drawScene(Gl& gl, const Frame& frame, const osg::ViewportPtr& viewport,
                             FrameTargets& targets)
{
    gl.glViewport(0, 0, frame.widthPx, frame.heightPx);
    const FrameView view = prepareView(frame, viewport);
    plates.update(viewport->getRoot());
    drawBackground(gl, frame, viewport, targets);
    plates.draw(gl, frame, SceneplatePainter::Side::Back, programs, textures);
    FrameSteps steps;
    osg::ContentStamp stamp;
    addItems(steps, stamp, frame, view, true, false);
    drawItems(gl, frame, view, steps, 0, steps.size());
    BackgroundPainter::drawVeil(gl, viewport, frame, programs, textures);
}

PixelBox FramePainter::drawHandles(Gl& gl, const Frame& frame, const osg::ViewportPtr& viewport,
                                   FrameTargets& targets, GLuint scene)
{
    gl.glViewport(0, 0, frame.widthPx, frame.heightPx);
    const FrameView view = prepareView(frame, viewport);
    FrameSteps steps;
    if (plates.hasFront()) {
        steps.push_back({ FrameStep::Kind::FrontPlates, 0, true, 0 });
    }
    osg::ContentStamp stamp;
    addItems(steps, stamp, frame, view, false, true);
    PixelBox box;
    for (const FrameStep& step : steps) {
        box.unite(pixelsOf(step, frame, view));
    }
    targets.markDrawn(box);
    gl.glEnable(GL_SCISSOR_TEST);
    gl.glScissor(box.left, box.bottom, box.right - box.left, box.top - box.bottom);
    clear(gl, depth);
    gl.glColorMaski(1, GL_FALSE, GL_FALSE, GL_FALSE, GL_FALSE);
    drawPicture(gl, frame, scene, GL_LINEAR);
    gl.glColorMaski(1, GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    gl.glDisable(GL_SCISSOR_TEST);
    drawSteps(gl, frame, viewport, view, steps, 0, steps.size());
    return box;
}

void FramePainter::drawPicture(Gl& gl, const Frame& frame, GLuint texture, GLint filter)
{
    gl.glDisable(GL_DEPTH_TEST);
    usePictureProgram(gl)->set(gl, "picture", GLint(0));
    gl.glActiveTexture(GL_TEXTURE0);
    gl.glBindTexture(GL_TEXTURE_2D, texture);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, filter);
    gl.glBindVertexArray(frame.emptyArray);
    gl.glDrawArrays(GL_TRIANGLES, 0, 3);
    frame.drew(1);
}

void FramePainter::drawBackground(Gl& gl, const Frame& frame, const osg::ViewportPtr& viewport,
                                  FrameTargets& targets)
{
    gl.glViewport(0, 0, frame.widthPx, frame.heightPx);
    targets.markDrawn(wholeOf(frame));
    gl.glDisable(GL_SCISSOR_TEST);
    clear(gl, depth);
    BackgroundPainter::draw(gl, viewport, frame, programs, textures);
}

FrameView FramePainter::prepareView(const Frame& frame, const osg::ViewportPtr& viewport)
{
    if (list.update(viewport->getRoot())) {
        ++frame.count->listBuilds;
    }
    frame.count->items = list.getItems().size();
    osg::Matrix viewFromWorld;
    viewport->getCamera()->getViewing(viewFromWorld, static_cast<osg::UInt32>(frame.widthPx),
                                      static_cast<osg::UInt32>(frame.heightPx));
    if (!isMovedLast || !viewFromWorld.equals(lastViewFromWorld, 0.0F)) {
        list.forgetMoved();
        lastViewFromWorld = viewFromWorld;
    }
    return makeFrameView(viewport->getCamera(), list, frame, depth);
}

FrameSteps FramePainter::makeSteps(const Frame& frame, const osg::ViewportPtr& viewport,
                                   const FrameView& view)
{
    FrameSteps steps;
    osg::ContentStamp stamp;
    addTo(stamp, view);
    BackgroundPainter::addTo(stamp, viewport, frame);
    plates.addTo(stamp, frame, SceneplatePainter::Side::Back);
    const bool hasVeil = BackgroundPainter::hasVeil(viewport);
    if (!hasVeil && !plates.hasFront()) {
        addItems(steps, stamp, frame, view, true, true);
        return steps;
    }
    addItems(steps, stamp, frame, view, true, false);
    if (hasVeil) {
        BackgroundPainter::addVeilTo(stamp, viewport);
        steps.push_back({ FrameStep::Kind::Veil, 0, false, stamp.get() });
    }
    if (plates.hasFront()) {
        plates.addTo(stamp, frame, SceneplatePainter::Side::Front);
        steps.push_back({ FrameStep::Kind::FrontPlates, 0, true, stamp.get() });
    }
    addItems(steps, stamp, frame, view, false, true);
    return steps;
}

void FramePainter::addItems(FrameSteps& steps, osg::ContentStamp& stamp, const Frame& frame,
                            const FrameView& view, bool scene, bool handles)
{
    for (const osg::UInt32 index : list.getOrder(view.viewFromWorld)) {
        const RenderItem& item = list.getItems()[index];
        if ((item.handle ? !handles : !scene) ||
            !(placesItself(list, item) ||
              isInView(item.bounds, view.usualClipFromWorld, item.handle))) {
            continue;
        }
        stamp.add(item.stamp);
        for (const osg::Vec4f& plane : list.getClipPlanes(item.clipSet)) {
            stamp.add(plane.getValues(), 4);
        }
        steps.push_back({ FrameStep::Kind::Item, index, item.handle, stamp.get() });
        ++frame.count->drawn;
    }
}

SceneImage::Plan FramePainter::makePlan(const Frame& frame, const FrameView& view,
                                        const FrameSteps& steps, const FrameTargets& targets)
{
    const auto pixels = [&](const FrameStep& step) { return pixelsOf(step, frame, view); };
    const auto triangles = [this](const FrameStep& step) {
        return step.kind == FrameStep::Kind::Item
            ? meshes.getTriangles(list.getItems()[step.item].geometryId)
            : std::size_t(0);
    };
    const auto staysNot = [this](const FrameStep& step) {
        return step.transient ||
            (step.kind == FrameStep::Kind::Item && list.getItems()[step.item].moved);
    };
    const auto settled =
        list.hasMoved() ? std::find_if(steps.begin(), steps.end(), staysNot) - steps.begin() : 0;
    const SceneImage::Plan plan =
        image.plan(steps,
                   { wholeOf(frame).area(), targets.hasKept(), targets.getDifference(),
                     static_cast<std::size_t>(settled), pixels, triangles });
    const auto isItem = [](const FrameStep& step) { return step.kind == FrameStep::Kind::Item; };
    const auto begin = steps.begin();
    frame.count->reused = static_cast<std::size_t>(
        std::count_if(begin, begin + static_cast<std::ptrdiff_t>(plan.reused), isItem));
    return plan;
}

PixelBox FramePainter::pixelsOf(const FrameStep& step, const Frame& frame,
                                const FrameView& view) const
{
    switch (step.kind) {
    case FrameStep::Kind::Item:
        return nbrender::pixelsOf(list.getItems()[step.item], list, view, frame);
    case FrameStep::Kind::FrontPlates:
        return plates.frontPixels(frame);
    default:
        return wholeOf(frame);
    }
}

void FramePainter::drawSteps(Gl& gl, const Frame& frame, const osg::ViewportPtr& viewport,
                             const FrameView& view, const FrameSteps& steps, std::size_t first,
                             std::size_t last)
{
    for (std::size_t i = first; i < last;) {
        if (steps[i].kind == FrameStep::Kind::Veil) {
            BackgroundPainter::drawVeil(gl, viewport, frame, programs, textures);
            ++i;
        } else if (steps[i].kind == FrameStep::Kind::FrontPlates) {
            plates.draw(gl, frame, SceneplatePainter::Side::Front, programs, textures);
            ++i;
        } else {
            std::size_t end = i;
            while (end < last && steps[end].kind == FrameStep::Kind::Item) {
                ++end;
            }
            drawItems(gl, frame, view, steps, i, end);
            i = end;
        }
    }
}

void FramePainter::drawItems(Gl& gl, const Frame& frame, const FrameView& view,
                             const FrameSteps& steps, std::size_t first, std::size_t last)
{
    depth.enter();
    {
        ItemPainter painter(gl, meshes, textures, programs, view, frame);
        for (std::size_t i = first; i < last; ++i) {
            painter.draw(list.getItems()[steps[i].item], list);
        }
    }
    depth.leave();
}

void FramePainter::collect(Gl& gl)
{
    meshes.collect(gl);
    textures.collect(gl);
    programs.collect(gl);
}

void FramePainter::release(Gl& gl)
{
    programs.release(gl);
    meshes.release(gl);
    textures.release(gl);
    image.forget();
}

void FramePainter::forget()
{
    programs.forget();
    meshes.forget();
    textures.forget();
    image.forget();
}

}  // namespace nbrender
