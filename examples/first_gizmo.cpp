// SPDX-License-Identifier: MIT
#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGSimpleGeometry.h>

#include <iostream>

#include <manipulator/ManipulatorInteractionContext.h>
#include <manipulator/UniversalTransformManipulator2.h>

int main(int argc, char** argv)
{
    osg::osgInit(argc, argv);
    {
        nbOSGWidget view;  // eye at (0, 0, 10), looking along -z
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
        nbec::interaction::InteractionManager manager;
        manager.addContext(&context);
        view.setMousePosition(osg::Pnt2f(497, 300));
        manager.triggerEvent(nbec::interaction::InteractionEvent("hover", "tool", "select"));
        std::cout << nbNodeUtils::getName(picker.getHitNode()) << '\n';
        manager.removeContext(&context);
    }
    nbScenegraph::clear();
    return osg::osgExit() ? 0 : 1;
}
