// SPDX-License-Identifier: MIT
// What moves scene plates, and the tools that pick them and place pictures.
#include "manipulator/nbSceneplateManipulator.h"
#include "manipulator/nbSceneplatePickTool.h"
#include "modules/textureplacement/TexturePlacementPickTool.h"
#include "tests/fuzz/ManipulatorActor.h"

#include <nbInteraction/ToolInteractionContext.h>

namespace nbec::manipulator::test {

using modules::textureplacement::TexturePlacementPickTool;

void configure(nbSceneplateManipulator& gizmo, Stage& stage, Bytes& bytes)
{
    switch (bytes.next() % 6) {
    case 0:
        gizmo.enableSnapping(bytes.flag());
        return gizmo.setDescriptionEnabled(bytes.flag());
    case 1:
        nbSceneplateManipulator::setManipulatorSize(bytes.once(4) ? bytes.number() : 32.0F);
        return nbSceneplateManipulator::updateAllManipulators();
    default:
        return gizmo.setNodes(stage.somePlates(bytes));
    }
}

void equip(nbSceneplateManipulator& gizmo, Stage& stage)
{
    gizmo.setNodes(stage.allPlates());
}

void configure(nbSceneplatePickTool& tool, Stage& stage, Bytes& bytes)
{
    tool.setMessageReceiver(stage.receiver(bytes));
    tool.setShowHitData(bytes.flag());
    nbSceneplatePickTool copied(tool);
    tool = copied;
}

void configure(TexturePlacementPickTool& tool, Stage& stage, Bytes& bytes)
{
    const Stage::Edited edited = stage.edited(bytes);
    tool.setMaterialComponent(edited.material, edited.component, edited.gui);
    tool.setMessageReceiver(stage.receiver(bytes));
    tool.setDescriptionText(stage.hint(bytes));
    tool.setShowHitData(bytes.flag());
    const TexturePlacementPickTool copied(tool);
    tool = copied;
}

namespace {

/// A tool with its context and a picker of its own.
template <class Tool>
class ToolActor : public Actor
{
public:
    ToolActor(Stage& joined, int filter)
        : stage(joined)
        , tool(std::make_unique<Tool>())
    {
        picker.setFilter(filter);
        context.setPicker(&picker);
        context.setTool(tool.get());
        stage.manager.addContext(&context);
    }

    ToolActor(const ToolActor&) = delete;
    ToolActor& operator=(const ToolActor&) = delete;

    ~ToolActor() override
    {
        release();
        context.setTool(nullptr);
        stage.manager.removeContext(&context);
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

    std::string check() override { return ""; }

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
        switch (bytes.next() % 6) {
        case 0:
            isHeld = true;
            tool->startTool(&context, hint);
            break;
        case 1:
            tool->processTool(&context, hint);
            break;
        case 2:
            tool->stopTool(&context, hint);
            break;
        case 3:
            tool->hoverTool(&context, hint);
            break;
        case 4:
            tool->stopHoverTool(&context, hint);
            break;
        default:
            tool->setToolMode(&context, stage.mode(bytes));
        }
    }

    Stage& stage;
    interaction::Picker picker;
    interaction::ToolInteractionContext context;
    std::unique_ptr<Tool> tool;
    bool isHeld = false;
};

}  // namespace

std::unique_ptr<Actor> makePlateActor(Stage& stage)
{
    return std::make_unique<ManipulatorActor<nbSceneplateManipulator, true>>(stage);
}

std::unique_ptr<Actor> makePlatePickActor(Stage& stage)
{
    return std::make_unique<ToolActor<nbSceneplatePickTool>>(stage,
                                                             interaction::Picker::SceneplateFilter);
}

std::unique_ptr<Actor> makePlacementActor(Stage& stage)
{
    return std::make_unique<ToolActor<TexturePlacementPickTool>>(stage,
                                                                 interaction::Picker::SceneFilter);
}

}  // namespace nbec::manipulator::test
