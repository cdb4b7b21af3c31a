// SPDX-License-Identifier: MIT
#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGSimpleGeometry.h>

#include <iostream>

#include <manipulator/ManipulatorInteractionContext.h>
#include <manipulator/UniversalTransformManipulator2.h>

namespace {

using nbec::interaction::InteractionEvent;
using nbec::interaction::InteractionManager;

/// Moves the pointer, as a host's window does.
void moveTo(nbOSGWidget& view, InteractionManager& manager, float x)
{
    view.setMousePosition(osg::Pnt2f(x, 300));
    manager.pointerMoved(osg::Pnt2f(x, 300));
}

/// Grabs what is at (497, 300) and drags it 80 pixels to the right.
void drag(nbOSGWidget& view, InteractionManager& manager)
{
    moveTo(view, manager, 497);
    manager.triggerEvent(InteractionEvent("hover", "tool", "select"));
    manager.triggerEvent(InteractionEvent("start", "tool", "select"));
    for (int x = 497; x <= 577; x += 20) {
        moveTo(view, manager, static_cast<float>(x));
        manager.triggerEvent(InteractionEvent("process", "tool", "select"));
    }
    manager.triggerEvent(InteractionEvent("stop", "tool", "select"));
}

}  // namespace

/// Drags a box to the right with an installed library and takes it back.
/// @return 0 if it went and came back
int main(int argc, char** argv)
{
    osg::osgInit(argc, argv);
    bool isMoved = false;
    bool isBack = false;
    {
        nbOSGWidget view;
        view.resize(800, 600);
        const osg::NodePtr box = osg::makeBox(1, 1, 1, 1, 1, 1);
        nbScenegraph::getRootNode()->addChild(box);
        nbec::manipulator::UniversalTransformManipulator2 gizmo;
        gizmo.setVisualisationRoot(nbScenegraph::getInternalRoot());
        gizmo.setNode(box);
        nbec::interaction::Picker picker;
        nbec::manipulator::ManipulatorInteractionContext context;
        context.setPicker(&picker);
        context.setManipulator(&gizmo);
        InteractionManager manager;
        manager.addContext(&context);
        drag(view, manager);
        const osg::Vec3f place = nbNodeUtils::getTransformNodeTranslation(box);
        isMoved = place[0] > 0.5F && place[1] == 0.0F && place[2] == 0.0F;
        isBack = nbUndoService::the()->undo() &&
            nbNodeUtils::getTransformNodeTranslation(box) == osg::Vec3f(0.0F, 0.0F, 0.0F);
        std::cout << "dragged to " << place << '\n';
        manager.removeContext(&context);
        nbUndoService::the()->clear();
    }
    nbScenegraph::clear();
    return osg::osgExit() && isMoved && isBack ? 0 : 1;
}
