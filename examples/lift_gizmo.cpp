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

#include "LiftManipulator.h"
#include <manipulator/ManipulatorInteractionContext.h>

namespace {

using nbec::interaction::InteractionEvent;

/// A view with a box of side 1 at the origin and the manipulator on it.
struct LiftScene
{
    LiftScene()
        : box(nbNodeUtils::convertToTransform3DNode(addBox()))
        , lift(box)
        , gizmo(lift)
    {
        view.resize(800, 600);
        gizmo.setVisualisationRoot(nbScenegraph::getInternalRoot());
        context.setPicker(&picker);
        context.setManipulator(&gizmo);
        manager.addContext(&context);
    }

    static osg::NodePtr addBox()
    {
        const osg::NodePtr added = osg::makeBox(1, 1, 1, 1, 1, 1);
        nbScenegraph::getRootNode()->addChild(added);
        return added;
    }

    /// Moves the pointer and sends an event, as a host's window does.
    bool send(const char* event, float x, float y)
    {
        view.setMousePosition(osg::Pnt2f(x, y));
        manager.pointerMoved(osg::Pnt2f(x, y));
        return manager.triggerEvent(InteractionEvent(event, "tool", "select"));
    }

    /// Drags from one height of the view to another, which the manager makes one undo step.
    void drag(float x, float fromY, float toY)
    {
        send("hover", x, fromY);
        send("start", x, fromY);
        send("process", x, fromY);
        send("process", x, toY);
        send("stop", x, toY);
    }

    nbOSGWidget view;  ///< eye at (0, 0, 10), looking along -z
    osg::NodePtr box;
    Lift lift;
    LiftManipulator gizmo;
    nbec::interaction::Picker picker;
    nbec::manipulator::ManipulatorInteractionContext context;
    nbec::interaction::InteractionManager manager;
};

}  // namespace

/// Lifts a box by the arrow, puts it down by the ring and takes both back.
/// @return 0 if it went and came back
int main(int argc, char** argv)
{
    osg::osgInit(argc, argv);
    bool isRight = true;
    {
        LiftScene scene;
        scene.drag(400, 260, 160);  // 100 pixels up: 1.38 units in the plane of the box
        std::cout << "lifted to " << scene.lift.getHeight() << '\n';
        isRight = scene.lift.getHeight() > 1.3f && scene.lift.getHeight() < 1.4f;
        nbUndoService::the()->undo();
        isRight = isRight && scene.lift.getHeight() == 0.f;
        scene.drag(352, 300, 300);
        std::cout << "put down at " << scene.lift.getHeight() << '\n';
        isRight = isRight && scene.lift.getHeight() == 0.5f;
        nbUndoService::the()->clear();
        scene.manager.removeContext(&scene.context);
    }
    nbScenegraph::clear();
    return osg::osgExit() && isRight ? 0 : 1;
}
