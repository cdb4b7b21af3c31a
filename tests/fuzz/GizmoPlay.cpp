// SPDX-License-Identifier: MIT
#include "tests/fuzz/GizmoPlay.h"

#include "manipulator/ManipulatorInteractionContext.h"
#include "manipulator/UniversalTransformManipulator2.h"

#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbNotification/NotificationManager.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGUberCamera/UberCamera.h>

#include <OpenSG/OSGContainerCensus.h>
#include <OpenSG/OSGSimpleGeometry.h>

#include <array>
#include <cmath>
#include <limits>
#include <memory>
#include <vector>

namespace nbec::manipulator::test {

namespace {

using Gizmo = UniversalTransformManipulator2;
using interaction::InteractionEvent;

constexpr std::size_t kNodeCount = 4;

constexpr std::array<void (Gizmo::*)(), 10> kModes = {
    &Gizmo::activateUniversalManipulator,
    &Gizmo::activateTranslateManipulator,
    &Gizmo::activateScaleManipulator,
    &Gizmo::activateRotateManipulator,
    &Gizmo::activateRotatePivotManipulator,
    &Gizmo::activateScalePivotManipulator,
    &Gizmo::activateClippingManipulator,
    &Gizmo::activateTranslateRotateManipulator,
    &Gizmo::activateTranslateRotateYZManipulator,
    &Gizmo::activateTranslateRotateScaleManipulator
};
constexpr std::array<const char*, 6> kEvents = { "start", "process",   "stop",
                                                 "hover", "stopHover", "Start" };
constexpr std::array<const char*, 3> kTools = { "tool", "mode", "precisionTool" };
constexpr std::array<const char*, 5> kHints = { "select", "toggle", "selectThrough", "tool", "" };
constexpr std::array<const char*, 4> kInteractionModes = { "tool", "precisionTool", "", "?" };

/// Reads the input from front to back; zeros follow its end.
class Bytes
{
public:
    Bytes(const std::uint8_t* first, std::size_t count)
        : data(first)
        , size(count)
    { }

    bool atEnd() const { return position >= size; }

    std::uint8_t next() { return atEnd() ? std::uint8_t(0) : data[position++]; }

    template <class Table>
    auto oneOf(const Table& table)
    {
        return table[next() % table.size()];
    }

    /// A number of the sizes that scenes have, now and then one that is not finite, zero or huge.
    float number()
    {
        switch (next() % 16) {
        case 0:
            return std::numeric_limits<float>::quiet_NaN();
        case 1:
            return std::numeric_limits<float>::infinity();
        case 2:
            return 0.0F;
        case 3:
            return 1e30F;
        default:
            return (static_cast<float>(next()) - 128.0F) / 8.0F;
        }
    }

private:
    const std::uint8_t* data;
    std::size_t size;
    std::size_t position = 0;
};

bool isFinite(const osg::Matrix& matrix)
{
    for (osg::UInt32 i = 0; i < 16; ++i) {
        if (!std::isfinite(matrix.getValues()[i])) {
            return false;
        }
    }
    return true;
}

/// One host with a view, a scene of a few nested nodes and at most one gizmo.
class Play
{
public:
    explicit Play(Bytes input)
        : bytes(input)
    {
        view.resize(640, 480);
        context.setPicker(&picker);
        manager.addContext(&context);
        for (std::size_t i = 0; i < kNodeCount; ++i) {
            addNode(i);
        }
    }

    Play(const Play&) = delete;
    Play& operator=(const Play&) = delete;

    ~Play()
    {
        replaceGizmo(false);
        manager.removeContext(&context);
        nbUndoService::the()->clear();
        notification::NotificationManager::getInstance()->clear();
        nbScenegraph::clear();
    }

    std::string run()
    {
        for (int step = 0; !bytes.atEnd(); ++step) {
            act();
            const std::string fault = check();
            if (!fault.empty()) {
                return "step " + std::to_string(step) + ": " + fault;
            }
        }
        return std::string();
    }

private:
    void act()
    {
        switch (bytes.next() % 16) {
        case 0:
            replaceGizmo(bytes.next() % 4 != 0);
            break;
        case 1:
            if (gizmo) {
                ((*gizmo).*bytes.oneOf(kModes))();
            }
            break;
        case 2:
            select();
            break;
        case 3:
            setting();
            break;
        case 4:
            camera();
            break;
        case 5:
            view.resize(static_cast<int>(bytes.next()) * 4, static_cast<int>(bytes.next()) * 4);
            break;
        case 6:
            deleteOrAdd();
            break;
        case 7:
            if (gizmo) {
                gizmo->update(bytes.next() % 2 == 0);
            }
            Gizmo::updateAllManipulators();
            break;
        case 8:
            manager.selectMode(bytes.oneOf(kInteractionModes));
            break;
        case 9:
            manager.setEnabled(&context, bytes.next() % 2 == 0);
            break;
        case 10:
            nbUndoService::the()->undo();
            break;
        default:
            event();
            break;
        }
    }

    void event()
    {
        const osg::Pnt2f pointer(static_cast<float>(bytes.next()) * 2.5F,
                                 static_cast<float>(bytes.next()) * 2.0F);
        view.setMousePosition(pointer);
        manager.pointerMoved(pointer);
        const char* const name = bytes.oneOf(kEvents);
        const bool isPlain = bytes.next() % 4 != 0;
        manager.triggerEvent(InteractionEvent(name, isPlain ? "tool" : bytes.oneOf(kTools),
                                              isPlain ? "select" : bytes.oneOf(kHints)));
    }

    void replaceGizmo(bool makeNew)
    {
        manager.removeContext(&context);
        context.setManipulator(nullptr);
        picker.setPickNode(osg::NullFC);
        gizmo.reset();
        if (makeNew) {
            gizmo = std::make_unique<Gizmo>();
            gizmo->setVisualisationRoot(nbScenegraph::getInternalRoot());
            context.setManipulator(gizmo.get());
        }
        manager.addContext(&context);
    }

    void select()
    {
        if (!gizmo) {
            return;
        }
        const std::uint8_t choice = bytes.next();
        const osg::NodePtr node = nodes[choice % kNodeCount].get();
        if (choice % 5 == 0) {
            gizmo->setNode(osg::NodePtr());
        } else if (choice % 3 == 0) {
            gizmo->setNode(node, { nodes[0].get(), nodes[1].get(), nodes[2].get(), node });
        } else {
            gizmo->setNode(node);
        }
    }

    void setting()
    {
        if (!gizmo) {
            return;
        }
        const std::uint8_t choice = bytes.next();
        gizmo->enableSnapping(choice % 2 == 0);
        gizmo->setDescriptionEnabled(choice % 3 == 0);
        Gizmo::setLocalSpaceManipulator(choice % 5 == 0);
        if (choice % 7 == 0) {
            gizmo->centerPivot();
        }
    }

    void camera()
    {
        const osg::UberCameraPtr camera = view.getUberCamera();
        const osg::Pnt3f from(bytes.number(), bytes.number(), bytes.number());
        camera->setFromAtUp(from, osg::Pnt3f(), osg::Vec3f(0, 1, 0));
        osg::beginEditCP(camera);
        camera->setFov(bytes.next() % 3 == 0 ? bytes.number() : 45.0F);
        camera->setOrthographic(bytes.next() % 2 == 0);
        osg::endEditCP(camera);
    }

    /// Even nodes hang at the top of the scene, odd ones below their forerunner.
    void addNode(std::size_t index)
    {
        const bool isNested = index % 2 == 1 && nodes[index - 1] != osg::NullFC &&
            nodes[index - 1]->getParent() != osg::NullFC;
        const osg::NodePtr parent = isNested ? nodes[index - 1].get() : nbScenegraph::getRootNode();
        nodes[index] = osg::makeBox(1, 1, 1, 1, 1, 1);
        osg::beginEditCP(parent, osg::Node::ChildrenFieldMask);
        parent->addChild(nodes[index].get());
        osg::endEditCP(parent, osg::Node::ChildrenFieldMask);
    }

    void deleteOrAdd()
    {
        const std::size_t index = bytes.next() % kNodeCount;
        const osg::NodePtr node = nodes[index].get();
        if (node != osg::NullFC && node->getParent() != osg::NullFC) {
            const osg::NodePtr parent = node->getParent();
            osg::beginEditCP(parent, osg::Node::ChildrenFieldMask);
            parent->subChild(node);
            osg::endEditCP(parent, osg::Node::ChildrenFieldMask);
        }
        nodes[index] = osg::NullFC;
        if (bytes.next() % 2 == 0) {
            addNode(index);
        }
    }

    std::string check()
    {
        if (picker.getFilter() != interaction::Picker::SceneFilter) {
            return "the picker was left at another filter";
        }
        for (const auto& node : nodes) {
            if (node != osg::NullFC && !isFinite(node->getToWorld())) {
                return "a transform holds a number that is not finite";
            }
        }
        if (gizmo) {
            const bool hangs =
                nbScenegraph::getInternalRoot()->findChild(gizmo->getVisualisation()) >= 0;
            if (hangs != gizmo->isActive()) {
                return hangs ? "an inactive gizmo hangs in the scene"
                             : "an active gizmo does not hang in the scene";
            }
        }
        return std::string();
    }

    Bytes bytes;
    nbOSGWidget view;
    interaction::Picker picker;
    std::unique_ptr<Gizmo> gizmo;
    ManipulatorInteractionContext context;
    interaction::InteractionManager manager;
    std::array<osg::RefPtr<osg::NodePtr>, kNodeCount> nodes;
};

}  // namespace

std::string playGizmo(const std::uint8_t* data, std::size_t size)
{
    const osg::ContainerCensus before = osg::ContainerCensus::take();
    std::string fault = Play(Bytes(data, size)).run();
    Gizmo::setLocalSpaceManipulator(false);
    if (fault.empty() && !nbScenegraph::isPreselectionEnabled()) {
        fault = "preselection was left off";
    }
    nbScenegraph::clear();
    const std::string leaked = osg::ContainerCensus::take().differenceTo(before);
    return fault.empty() && !leaked.empty() ? "left behind: " + leaked : fault;
}

}  // namespace nbec::manipulator::test
