// SPDX-License-Identifier: MIT
// What moves scene plates, and the tools that pick them and place pictures.
#include "tests/fuzz/Equipment.h"

namespace nbec::manipulator::test {

void configure(nbSceneplateManipulator& gizmo, Stage& stage, Bytes& bytes)
{
    switch (bytes.next() % 6) {
    case 0:
        gizmo.enableSnapping(bytes.flag());
        gizmo.setSideHandles([&gizmo](const auto&, const auto&) { gizmo.setSideHandles({}); });
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

}  // namespace nbec::manipulator::test
