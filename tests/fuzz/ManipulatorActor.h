// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/ManipulatorInteractionContext.h"
#include "manipulator/course/DragOverlay.h"
#include "manipulator/course/HandleFading.h"
#include "manipulator/handles/HandlePalette.h"
#include "tests/fuzz/Actor.h"
#include "tests/fuzz/Equipment.h"

#include <nbInteraction/ToolInteractionContext.h>
#include <nbKernel/nbScenegraph.h>

#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>

namespace nbec::manipulator::test {

/// A manipulator with its context.
/// @tparam kPauses  whether its stopped drags resume the preview
template <class Gizmo, bool kPauses>
class ManipulatorActor : public Actor
{
public:
    explicit ManipulatorActor(Stage& joined)
        : stage(joined)
    {
        replace(true);
    }

    ~ManipulatorActor() override
    {
        setDragOverlayShown(false);
        setHandleFading({});
        setHandlePalette({});
        end();
    }

    void act(Bytes& bytes) override
    {
        const std::uint8_t choice = bytes.next() % 16;
        if (choice == 0) {
            replace(!bytes.once(4));
        } else if (choice == 1) {
            release();
            stage.manager.setEnabled(&*context, bytes.flag());
        } else if (gizmo == nullptr) {
            stage.send(stage.aimAt(osg::NodePtr(), bytes), bytes);
        } else if (choice == 2) {
            rehang(bytes);
        } else if (choice <= 5) {
            Gizmo& plain = *gizmo;
            configure(plain, stage, bytes);
        } else if (choice <= 7) {
            callDirectly(bytes);
        } else {
            Gizmo& plain = *gizmo;
            const osg::Pnt2f target = aimAt(plain, stage, bytes);
            choice <= 11 ? stage.send(target, bytes) : stage.drag(target, bytes);
        }
    }

    std::string check() override
    {
        if (gizmo == nullptr) {
            return "";
        }
        const osg::NodePtr root = gizmo->getVisualisationRoot();
        const osg::NodePtr above = gizmo->getVisualisation()->getParent();
        if (above != (gizmo->isActive() ? root : osg::NodePtr())) {
            return gizmo->isActive() ? "an active manipulator does not hang under its root"
                                     : "an inactive manipulator hangs in the scene";
        }
        return gizmo->heard->fault.empty() ? gizmo->fault : gizmo->heard->fault;
    }

    bool isActive() const override { return gizmo != nullptr && gizmo->isActive(); }

private:
    /// What a listener hears of drags, each of which begins and ends once.
    struct Heard
    {
        void hear(DragEvent::Phase phase)
        {
            if ((phase == DragEvent::Phase::Begin) == isDragged) {
                fault = isDragged ? "a drag begins in another one" : "a drag that has not begun";
            }
            isDragged = phase == DragEvent::Phase::Begin || phase == DragEvent::Phase::Change;
        }

        bool isDragged = false;
        std::string fault;
    };

    /// Watches how a manipulator is called.
    class Watched : public Gizmo
    {
    public:
        explicit Watched(const nbMaterialPreview& watchedPreview)
            : preview(watchedPreview)
        {
            Gizmo::addDragListener(
                [kept = heard](const DragEvent& event) { kept->hear(event.phase); });
        }

        bool startManipulator(ManipulatorInteractionContext* ctx, const std::string& hint) override
        {
            isHeld = Gizmo::startManipulator(ctx, hint);
            return isHeld;
        }

        bool stopManipulator(ManipulatorInteractionContext* ctx, const std::string& hint) override
        {
            isHeld = false;
            const bool isHandled = Gizmo::stopManipulator(ctx, hint);
            if (kPauses && isHandled && preview.isPaused()) {
                fault = "a stopped drag did not resume the preview";
            }
            return isHandled;
        }

        void deactivate(ManipulatorInteractionContext* ctx) override
        {
            if (isHeld) {
                fault = "a manipulator was deactivated in its drag";
            }
            Gizmo::deactivate(ctx);
        }

        bool isHeld = false;
        std::string fault;
        const std::shared_ptr<Heard> heard = std::make_shared<Heard>();

    private:
        const nbMaterialPreview& preview;
    };

    /// Ends a drag, as hosts do before they deactivate a manipulator.
    void release()
    {
        if (gizmo != nullptr && gizmo->isHeld) {
            gizmo->stopManipulator(&*context, "select");
        }
    }

    /// In one of the orders that hosts may have.
    void end()
    {
        release();
        if (stage.doContextsGoFirst()) {
            context.reset();
        } else if (stage.hasManager()) {
            stage.manager.removeContext(&*context);
        }
        stage.picker.setPickNode(osg::NodePtr());
        gizmo.reset();
    }

    void replace(bool makeNew)
    {
        end();
        context.emplace();
        context->setPicker(&stage.picker);
        if (makeNew) {
            gizmo = std::make_unique<Watched>(stage.preview);
            gizmo->setVisualisationRoot(nbScenegraph::getInternalRoot());
            context->setManipulator(gizmo.get());
            Gizmo& plain = *gizmo;
            equip(plain, stage);
        }
        stage.manager.addContext(&*context);
    }

    void rehang(Bytes& bytes)
    {
        const std::uint8_t choice = bytes.next() % 4;
        if (choice == 2) {
            return context->setPicker(bytes.flag() ? nullptr : &stage.picker);
        }
        if (choice == 3) {
            context->setPicker(&stage.picker);
        }
        gizmo->setVisualisationRoot(choice == 0       ? osg::NodePtr()
                                        : choice == 1 ? stage.otherRoot.get()
                                                      : nbScenegraph::getInternalRoot());
    }

    /// Calls the interface without context or manager in between.
    void callDirectly(Bytes& bytes)
    {
        ManipulatorInteractionContext* const ctx = bytes.once(6) ? nullptr : &*context;
        const std::string hint = stage.hint(bytes);
        const osg::Pnt2f target = stage.aimAt(gizmo->getCollider(), bytes);
        stage.point(target);
        using Self = ManipulatorActor;
        using Context = ManipulatorInteractionContext*;
        static constexpr void (*kCalls[])(Self&, Context, const std::string&, Bytes&) = {
            [](auto& self, auto* c, auto& h, auto&) { self.gizmo->startManipulator(c, h); },
            [](auto& self, auto* c, auto& h, auto&) { self.gizmo->processManipulator(c, h); },
            [](auto& self, auto* c, auto& h, auto&) { self.gizmo->stopManipulator(c, h); },
            [](auto& self, auto* c, auto& h, auto&) {
                self.gizmo->hover(c, h);
                if (!self.gizmo->isActive()) {
                    // Deactivating gives preselection back, but only to who was active.
                    self.gizmo->reset(c, h);
                }
            },
            [](auto& self, auto* c, auto& h, auto&) { self.gizmo->reset(c, h); },
            [](auto& self, auto*, auto&, auto& b) {
                self.gizmo->setManipulatorMode(self.stage.mode(b));
            },
            [](auto& self, auto*, auto&, auto& b) {
                self.gizmo->setMousePosition(osg::Pnt2f(b.number2()));
            },
            [](auto& self, auto*, auto&, auto&) { self.copy(); },
            [](auto& self, auto*, auto&, auto& b) { self.gizmo->update(b.flag()); },
            [](auto& self, auto*, auto&, auto& b) { self.goBeyond(b); }
        };
        kCalls[bytes.next() % std::size(kCalls)](*this, ctx, hint, bytes);
    }

    /// What a manipulator offers of a drag beside its events.
    void goBeyond(Bytes& bytes)
    {
        switch (bytes.next() % 6) {
        case 0:
            gizmo->cancelDrag();
            break;
        case 1:
            gizmo->setFineMotion(bytes.flag());
            break;
        case 2:
            gizmo->setDragLimits(bytes.next() % 20, { bytes.plain(), bytes.plain() });
            break;
        case 3:
            setSizePolicy({ bytes.number(), bytes.number() });
            gizmo->update(false);
            setSizePolicy({});
            break;
        case 4:
            gizmo->setReadoutShown(bytes.flag(), 1.0F);
            setDragOverlayShown(bytes.flag());
            setHandleFading(
                { bytes.flag(), 0.1F, 0.02F, 0.25F, 0.175F, bytes.flag() ? 0.3F : 1.0F });
            palette.hasLetters = bytes.flag();
            palette.hasEdges = bytes.flag();
            setHandlePalette(palette);
            break;
        default:
            for (const char key : bytes.text()) {
                gizmo->typeKey(QLatin1Char(
                    bytes.flag()
                        ? "0123456789.,+-*/()%xyz\t\b\r\x1b"[static_cast<unsigned char>(key) % 26]
                        : key));
            }
        }
    }

    /// A copy shares handles and root, so it lives only while neither is active.
    void copy()
    {
        if constexpr (std::is_copy_constructible_v<Gizmo> && std::is_copy_assignable_v<Gizmo>) {
            if (!gizmo->isActive()) {
                const Gizmo& plain = *gizmo;
                Gizmo copied(plain);
                copied.update(true);
                copied = plain;
                copied.hoverManipulator(&*context, "select");
            }
        }
    }

    Stage& stage;
    std::unique_ptr<Watched> gizmo;
    std::optional<ManipulatorInteractionContext> context { std::in_place };
    HandlePalette palette;
};

/// A tool with its context and a picker of its own.
template <class Tool, int kFilter>
class ToolActor : public Actor
{
public:
    explicit ToolActor(Stage& joined)
        : stage(joined)
        , tool(std::make_unique<Tool>())
    {
        picker.setFilter(kFilter);
        context.setPicker(&picker);
        context.setTool(tool.get());
        stage.manager.addContext(&context);
    }

    ~ToolActor() override
    {
        release();
        context.setTool(nullptr);
    }

    void act(Bytes& bytes) override
    {
        const std::uint8_t choice = bytes.next() % 12;
        if (choice == 0) {
            release();
            context.setTool(nullptr);
            tool = std::make_unique<Tool>();
            context.setTool(bytes.once(4) ? nullptr : tool.get());
        } else if (choice == 1) {
            release();
            stage.manager.setEnabled(&context, bytes.flag());
        } else if (choice == 2) {
            context.setPicker(bytes.once(3) ? nullptr : &picker);
        } else if (choice <= 4) {
            configure(*tool, stage, bytes);
        } else if (choice <= 6) {
            callDirectly(bytes);
        } else {
            const osg::Pnt2f target = stage.aimAt(nbScenegraph::getRootNode(), bytes);
            choice <= 9 ? stage.send(target, bytes) : stage.drag(target, bytes);
        }
    }

    bool isActive() const override { return tool->isActive(); }

private:
    /// Ends what was started without the manager.
    void release()
    {
        if (isHeld) {
            tool->stopTool(&context, "select");
            isHeld = false;
        }
    }

    void callDirectly(Bytes& bytes)
    {
        const std::string hint = stage.hint(bytes);
        static constexpr bool (Tool::*kCalls[])(
            interaction::ToolInteractionContext*,
            const std::string&) = { &Tool::startTool, &Tool::processTool,   &Tool::stopTool,
                                    &Tool::hoverTool, &Tool::stopHoverTool, &Tool::setToolMode };
        const std::size_t choice = bytes.next() % std::size(kCalls);
        isHeld = isHeld || choice == 0;
        (tool.get()->*kCalls[choice])(&context, choice == 5 ? stage.mode(bytes) : hint);
    }

    Stage& stage;
    interaction::Picker picker;
    interaction::ToolInteractionContext context;
    std::unique_ptr<Tool> tool;
    bool isHeld = false;
};

}  // namespace nbec::manipulator::test
