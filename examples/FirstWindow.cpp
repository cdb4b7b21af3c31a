// SPDX-License-Identifier: MIT
#include <nbInteraction/Picker.h>
#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGSelection/nbSelection.h>
#include <nbView/nbSceneWidget.h>

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGSimpleGeometry.h>

#include <QApplication>

#include <manipulator/ManipulatorInteractionContext.h>
#include <manipulator/UniversalTransformManipulator2.h>

/// A view of the scene with a gizmo on what is selected.
class FirstWindow : public nbSceneWidget
{
public:
    FirstWindow()
    {
        gizmo.setVisualisationRoot(nbScenegraph::getInternalRoot());
        handles.setPicker(&picker);
        handles.setManipulator(&gizmo);
        handles.connectDragKeys(interaction());  // values can be typed during a drag
        interaction().addContext(&handles);
        gizmo.setReadoutShown(true);  // says how far the drag has come
    }

protected:
    void selectionChanged() override
    {
        gizmo.setNode(nbSelection::getLast());
        gizmo.activateUniversalManipulator();
    }

    void prepareFrame() override { gizmo.update(true); }

private:
    nbec::interaction::Picker picker;
    nbec::manipulator::UniversalTransformManipulator2 gizmo;
    nbec::manipulator::ManipulatorInteractionContext handles;
};

int main(int argc, char** argv)
{
    osg::osgInit(argc, argv);
    int status = 0;
    {
        const QApplication application(argc, argv);
        const osg::NodePtr torus = osg::makeTorus(0.4F, 1.2F, 32, 64);
        nbScenegraph::getRootNode()->addChild(torus);
        FirstWindow window;
        nbSelection::set(torus);
        window.resize(800, 600);
        window.show();
        status = QApplication::exec();
    }
    nbScenegraph::clear();
    return osg::osgExit() ? status : 1;
}
