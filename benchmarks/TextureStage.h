// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/ManipulatorInteractionContext.h"

#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>
#include <nbKernel/nbController.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbMaterialEditor/nbMaterialEditor.h>
#include <nbOpenSGUberCamera/UberCamera.h>
#include <nbOpenSGUberMaterial/UberMaterial.h>

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleGeometry.h>

#include <string>

namespace nbec::manipulator::bench {

/// A box with a projected picture and a texture gizmo with all its handles, seen from (2, 3, 7) in
/// 1280 x 800 pixels.
/// @tparam Gizmo  one that has the operations of texture gizmos
template <class Gizmo>
class TextureStage
{
public:
    /// @param changed  suffix of the gizmo's message; "nobody" in front of it does nothing
    /// @param type     projection of the picture
    /// @param bind     gives the gizmo the box
    template <class Bind>
    TextureStage(const std::string& changed, osg::ColorComponentSettings::TextureProjection type,
                 Bind&& bind)
    {
        view.resize(1280, 800);
        view.getUberCamera()->setFromAtUp(osg::Pnt3f(2, 3, 7), osg::Pnt3f(0, 0, 0),
                                          osg::Vec3f(0, 1, 0));
        const osg::NodePtr box = osg::makeBox(4, 4, 1, 1, 1, 1);
        const auto settings = osg::ColorComponentSettings::create();
        settings->setPlanarProjection(osg::Transform3D::create());
        settings->setTextureProjectionType(type);
        material->setComponentSettings(osg::UberMaterial::kDiffuseComponent, settings);
        osg::GeometryPtr::dcast(box->getCore())->setMaterial(material.get());
        nbScenegraph::getRootNode()->addChild(box);
        editor.setMaterial(material.get(), box, osg::UberMaterial::kDiffuseComponent);
        nbController::addReceiver("nobody" + changed, [](nbMessage&) {});
        gizmo.setMaterialComponent(material.get(), osg::UberMaterial::kDiffuseComponent, nullptr);
        gizmo.setVisualisationRoot(nbScenegraph::getInternalRoot());
        bind(gizmo, box);
        context.setPicker(&picker);
        context.setManipulator(&gizmo);
        manager.addContext(&context);
    }

    TextureStage(const TextureStage&) = delete;
    TextureStage& operator=(const TextureStage&) = delete;

    ~TextureStage()
    {
        trigger(stopEvent, pressed);
        nbUndoService::the()->endGroup();
        nbUndoService::the()->clear();
        manager.removeContext(&context);
        nbController::clear();
        nbScenegraph::clear();
    }

    /// Pixel of a point of the gizmo's unit frame. @return device pixels, y from the top
    osg::Pnt2f pixelOf(const osg::Pnt3f& unit)
    {
        osg::Pnt3f world = unit;
        gizmo.getVisualisation()->getChild(0)->getToWorld().multMatrixPnt(world);
        osg::Matrix clipFromWorld;
        view.getCamera()->getWorldToScreen(clipFromWorld, *view.getViewport());
        osg::Pnt3f device;
        clipFromWorld.multFullMatrixPnt(world, device);
        return osg::Pnt2f((device.x() + 1.0F) * 640.0F, (1.0F - device.y()) * 400.0F);
    }

    bool hover(const osg::Pnt2f& positionPx) { return trigger(hoverEvent, positionPx); }

    bool grab(const osg::Pnt3f& unit)
    {
        pressed = pixelOf(unit);
        nbUndoService::the()->beginGroup();
        return trigger(startEvent, pressed) && trigger(processEvent, pressed);
    }

    /// The next step of a pointer that wanders to and fro; no step repeats the one before.
    bool step()
    {
        way = way % (2 * kWayPx) + 1;
        const auto offset = static_cast<float>(way <= kWayPx ? way : 2 * kWayPx - way);
        return trigger(processEvent, pressed + osg::Vec2f(offset, -offset));
    }

    nbOSGWidget view;
    Gizmo gizmo;

private:
    using Event = nbec::interaction::InteractionEvent;

    static constexpr int kWayPx = 64;

    bool trigger(const Event& event, const osg::Pnt2f& positionPx)
    {
        view.setMousePosition(positionPx);
        context.pointerMoved(positionPx);
        return context.triggerEvent(&manager, event);
    }

    osg::UberMaterialRefPtr material { osg::UberMaterial::create() };
    nbMaterialEditor editor { "editor" };
    nbec::interaction::Picker picker;
    nbec::manipulator::ManipulatorInteractionContext context;
    nbec::interaction::InteractionManager manager;
    osg::Pnt2f pressed;
    int way = 0;
    const Event hoverEvent { "hover", "tool", "select" };
    const Event startEvent { "start", "tool", "select" };
    const Event processEvent { "process", "tool", "select" };
    const Event stopEvent { "stop", "tool", "select" };
};

}  // namespace nbec::manipulator::bench
