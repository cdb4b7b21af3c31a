// SPDX-License-Identifier: MIT
#include <nbInteraction/Picker.h>
#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGSelection/nbSelection.h>
#include <nbOpenSGUberCamera/nbCameraNavigation.h>
#include <nbView/nbSceneWidget.h>

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGSimpleGeometry.h>

#include <QApplication>
#include <QSplitter>

#include <manipulator/ManipulatorInteractionContext.h>
#include <manipulator/UniversalTransformManipulator2.h>

using Gizmo = nbec::manipulator::UniversalTransformManipulator2;

/// The first view, whose interaction manager gets the input to all.
class FirstView : public nbSceneWidget
{
public:
    explicit FirstView(Gizmo& shown)
        : gizmo(shown)
    { }

protected:
    void prepareFrame() override { gizmo.update(true); }

    void selectionChanged() override
    {
        gizmo.setNode(nbSelection::getLast());
        gizmo.activateUniversalManipulator();
    }

private:
    Gizmo& gizmo;
};

/// A further view of the scene.
class FurtherView : public nbViewWidget
{
public:
    FurtherView(FirstView& first, Gizmo& shown)
        : gizmo(shown)
    {
        setInteractionManager(first.interaction());
    }

protected:
    void prepareFrame() override { gizmo.update(true); }

private:
    Gizmo& gizmo;
};

/// A perspective view beside one from above; the gizmo is as large and of use in both.
class TwoViews : public QSplitter
{
public:
    TwoViews()
        : first(gizmo)
        , above(first, gizmo)
    {
        nbec::manipulator::setSizePolicy({ 80.0F });  // arrows of 80 pixels in views of any size
        gizmo.setVisualisationRoot(nbScenegraph::getInternalRoot());
        gizmo.setReadoutShown(true);
        handles.setPicker(&picker);
        handles.setManipulator(&gizmo);
        handles.connectDragKeys(first.interaction());
        first.interaction().addContext(&handles);

        look(first, StandardView::ThreeQuarter, false);
        look(above, StandardView::Top, true);
        addWidget(&first);
        addWidget(&above);
    }

private:
    using StandardView = nbCameraNavigation::StandardView;

    static void look(nbViewWidget& widget, StandardView from, bool isOrthographic)
    {
        const osg::UberCameraPtr camera = widget.view().getUberCamera();
        camera->setPose(nbCameraNavigation::withProjection(
            nbCameraNavigation::standardView(camera->getPose(), from), isOrthographic));
    }

    Gizmo gizmo;
    nbec::interaction::Picker picker;
    nbec::manipulator::ManipulatorInteractionContext handles;
    FirstView first;
    FurtherView above;
};

int main(int argc, char** argv)
{
    osg::osgInit(argc, argv);
    int status = 0;
    {
        const QApplication application(argc, argv);
        const osg::NodePtr torus = osg::makeTorus(0.4F, 1.2F, 32, 64);
        nbScenegraph::getRootNode()->addChild(torus);
        TwoViews window;
        nbSelection::set(torus);
        window.resize(1000, 500);
        window.show();
        status = QApplication::exec();
    }
    nbScenegraph::clear();
    return osg::osgExit() ? status : 1;
}
