// SPDX-License-Identifier: MIT
// What edits how pictures lie on surfaces.
#include "tests/fuzz/Equipment.h"

namespace nbec::manipulator::test {

namespace {

constexpr std::array<void (Planar::*)(), 13> kPlanarCalls = { &Planar::activateTranslateManipulator,
                                                              &Planar::activateRotateManipulator,
                                                              &Planar::activateScaleManipulator,
                                                              &Planar::activateUniversalManipulator,
                                                              &Planar::showActiveManipulator,
                                                              &Planar::hideManipulator,
                                                              &Planar::showAllElements,
                                                              &Planar::hideAllElements,
                                                              &Planar::setDefaultMaterials,
                                                              &Planar::highlightMode,
                                                              &Planar::highlightControlElement,
                                                              &Planar::updateManipulator,
                                                              &Planar::updateManipulatorPlane };
constexpr std::array<void (Planar::*)(bool), 8> kPlanarSwitches = {
    &Planar::setGrabsPicture,         &Planar::setKeepAspectRatio,
    &Planar::setUseTextureScale,      &Planar::setUseObjectScale,
    &Planar::setUseObjectTranslation, &Planar::setApplyProjectionRotationToTranslation,
    &Planar::setZScaleVisible,        &Planar::showZScaleValue
};
constexpr std::array<void (Triplanar::*)(), 3> kTriplanarCalls = {
    &Triplanar::activateUniversalManipulator, &Triplanar::activateRotateManipulator,
    &Triplanar::activateRotateScaleManipulator
};
constexpr std::array<void (UV::*)(), 5> kUVCalls = { &UV::activateUniversalManipulator,
                                                     &UV::activateTranslateManipulator,
                                                     &UV::activateScaleManipulator,
                                                     &UV::activateRotateManipulator,
                                                     &UV::activateRotateScaleManipulator };
constexpr std::array<void (Tire::*)(), 3> kTireCalls = { &Tire::activateUniversalManipulator,
                                                         &Tire::activateTranslateManipulator,
                                                         &Tire::activateScaleManipulator };
constexpr std::array<void (AnchoredTextureManipulator::*)(), 3> kAnchoredCalls = {
    &AnchoredTextureManipulator::showActiveManipulator,
    &AnchoredTextureManipulator::hideManipulator, &AnchoredTextureManipulator::updateManipulator
};

template <class Gizmo>
void give(Gizmo& gizmo, const Stage::Edited& edited)
{
    gizmo.setMaterialComponent(edited.material, edited.component, edited.gui);
}

/// Sizes of all texture gizmos go this way.
template <class Gizmo>
void resizeAll(float usual, Bytes& bytes)
{
    Gizmo::setManipulatorSize(bytes.once(4) ? bytes.number() : usual);
    Gizmo::updateAllManipulators();
}

/// What the gizmos at an anchor have in common.
/// @param calls  of the gizmo alone
template <class Gizmo, class Table>
void configureAnchored(Gizmo& gizmo, const Table& calls, Stage& stage, Bytes& bytes)
{
    const osg::Pnt3f place(bytes.flag() ? bytes.plain3() : bytes.number3());
    gizmo.setGrabsPicture(bytes.flag());
    gizmo.setPivotsAtHandles(bytes.flag());
    switch (bytes.next() % 8) {
    case 0:
    case 1:
        gizmo.setMessageReceiver(stage.receiver(bytes));
        return give(gizmo, stage.edited(bytes));
    case 2:
    case 3:
        return gizmo.setAnchor(stage.node(bytes), place);
    case 4:
        gizmo.setGUI(stage.gui(bytes));
        return;
    case 5:
        return callOneOf(static_cast<AnchoredTextureManipulator&>(gizmo), kAnchoredCalls, bytes);
    default:
        return callOneOf(gizmo, calls, bytes);
    }
}

}  // namespace

void configure(Planar& gizmo, Stage& stage, Bytes& bytes)
{
    switch (bytes.next() % 10) {
    case 0:
    case 1:
        return gizmo.setNode(stage.node(bytes));
    case 2:
    case 3:
        gizmo.setMessageReceiver(stage.receiver(bytes));
        return give(gizmo, stage.edited(bytes));
    case 4:
        gizmo.setAspectRatio(bytes.number());
        return gizmo.setGUI(stage.gui(bytes));
    case 5:
        gizmo.centerPivot();
        return;
    case 6:
        return resizeAll<Planar>(32.0F, bytes);
    case 7:
        return Planar::createInstance(bytes.flag());
    case 8:
        (gizmo.*bytes.oneOf(kPlanarSwitches))(bytes.flag());
        return;
    default:
        return callOneOf(gizmo, kPlanarCalls, bytes);
    }
}

void configure(Triplanar& gizmo, Stage& stage, Bytes& bytes)
{
    switch (bytes.next() % 8) {
    case 0:
        return gizmo.setRingsTilted(bytes.flag());
    case 1:
        return resizeAll<Triplanar>(32.0F, bytes);
    case 2:
        return bytes.flag() ? Triplanar::createInstance() : delete Triplanar::getInstance();
    default:
        return configureAnchored(gizmo, kTriplanarCalls, stage, bytes);
    }
}

void configure(UV& gizmo, Stage& stage, Bytes& bytes)
{
    switch (bytes.next() % 8) {
    case 0:
        gizmo.setKeepAspectRatio(bytes.flag());
        return gizmo.setAspectRatio(bytes.number());
    case 1:
        return resizeAll<UV>(0.03F, bytes);
    default:
        return configureAnchored(gizmo, kUVCalls, stage, bytes);
    }
}

void configure(Tire& gizmo, Stage& stage, Bytes& bytes)
{
    switch (bytes.next() % 8) {
    case 0:
        return resizeAll<Tire>(32.0F, bytes);
    case 1:
        return bytes.flag() ? Tire::createInstance() : delete Tire::getInstance();
    default:
        return configureAnchored(gizmo, kTireCalls, stage, bytes);
    }
}

void equip(Planar& gizmo, Stage& stage)
{
    gizmo.setMessageReceiver("editor");
    give(gizmo, stage.firstEdited(0));
    gizmo.setNode(stage.firstNode());
}

void equip(AnchoredTextureManipulator& gizmo, Stage& stage)
{
    const bool isTire = dynamic_cast<Tire*>(&gizmo) != nullptr;
    gizmo.setMessageReceiver("editor");
    give(gizmo, stage.firstEdited(isTire ? 2 : 1));
    gizmo.setAnchor(stage.firstNode(), osg::Pnt3f());
}

}  // namespace nbec::manipulator::test
