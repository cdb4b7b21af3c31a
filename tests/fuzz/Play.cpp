// SPDX-License-Identifier: MIT
#include "tests/fuzz/Play.h"

#include "manipulator/nbPlanarProjectionVisualization.h"
#include "tests/fuzz/ManipulatorActor.h"
#include "tests/support/ContainerCensus.h"

#include <nbKernel/nbController.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbNotification/NotificationManager.h>
#include <nbUtils/nbLog.h>

#include <OpenSG/OSGSimpleGeometry.h>

#include <algorithm>

namespace nbec::manipulator::test {

namespace {

/// Puts back what all instances of the classes share.
void resetClasses()
{
    Transform::setLocalSpaceManipulator(false);
    Transform::setManipulatorSize(32.0F);
    CameraManipulator::setLocalSpaceManipulator(false);
    CameraManipulator::setManipulatorSize(32.0F);
    PlanarTextureManipulator::createInstance(true);
    PlanarTextureManipulator::setManipulatorSize(32.0F);
    delete TriplanarTextureManipulator::getInstance();
    TriplanarTextureManipulator::setManipulatorSize(32.0F);
    delete TireProjectionManipulator::getInstance();
    TireProjectionManipulator::setManipulatorSize(32.0F);
    UVTextureManipulator::setManipulatorSize(0.03F);
    nbSceneplateManipulator::setManipulatorSize(32.0F);
}

std::string runSteps(const PlayTarget& target, Stage& stage, Bytes& bytes)
{
    std::vector<std::unique_ptr<Actor>> actors;
    for (const auto& make : target.actors) {
        actors.push_back(make(stage));
    }
    for (int step = 0; !bytes.atEnd(); ++step) {
        const std::uint8_t who = bytes.next();
        if (who % 4 == 0) {
            stage.act(bytes);
        } else {
            actors[who / 4U % actors.size()]->act(bytes);
        }
        std::string fault = stage.check();
        for (const auto& actor : actors) {
            fault = fault.empty() ? actor->check() : fault;
        }
        const bool isAnyActive = std::any_of(actors.begin(), actors.end(),
                                             [](const auto& actor) { return actor->isActive(); });
        if (fault.empty() && !isAnyActive && !nbScenegraph::isPreselectionEnabled()) {
            fault = "preselection was left off";
        }
        if (!fault.empty()) {
            return "step " + std::to_string(step) + ": " + fault;
        }
    }
    stage.endEarly();
    return "";
}

std::string runOn(const PlayTarget& target, Bytes& bytes)
{
    Stage stage(bytes.last());
    const std::string fault = runSteps(target, stage, bytes);
    if (!fault.empty()) {
        return fault;
    }
    if (stage.preview.isPaused()) {
        return "the preview was left paused";
    }
    return nbScenegraph::isPreselectionEnabled() ? "" : "preselection was left off";
}

template <class Made>
std::unique_ptr<Actor> make(Stage& stage)
{
    return std::make_unique<Made>(stage);
}

}  // namespace

const std::vector<PlayTarget>& playTargets()
{
    using interaction::Picker;
    static const std::vector<PlayTarget> kAlone = {
        { "transform", { &make<ManipulatorActor<UniversalTransformManipulator2, false>> } },
        { "camera", { &make<ManipulatorActor<CameraManipulator, false>> } },
        { "planar", { &make<ManipulatorActor<PlanarTextureManipulator, true>> } },
        { "triplanar", { &make<ManipulatorActor<TriplanarTextureManipulator, true>> } },
        { "uv", { &make<ManipulatorActor<UVTextureManipulator, true>> } },
        { "tire", { &make<ManipulatorActor<TireProjectionManipulator, true>> } },
        { "match", { &make<ManipulatorActor<PerspectiveMatchManipulator, false>> } },
        { "plate", { &make<ManipulatorActor<nbSceneplateManipulator, true>> } },
        { "platepick", { &make<ToolActor<nbSceneplatePickTool, Picker::SceneplateFilter>> } },
        { "placement", { &make<ToolActor<TexturePlacementPickTool, Picker::SceneFilter>> } },
        { "projection", { &makeProjectionActor } },
    };
    static const std::vector<PlayTarget> kTargets = [] {
        std::vector<PlayTarget> all = kAlone;
        PlayTarget together { "together", {} };
        for (const PlayTarget& one : kAlone) {
            together.actors.push_back(one.actors.front());
        }
        all.push_back(together);
        return all;
    }();
    return kTargets;
}

void preparePlays()
{
    {
        const UniversalTransformManipulator2 transform;
        const CameraManipulator camera;
        const PlanarTextureManipulator planar;
        const TriplanarTextureManipulator triplanar;
        const UVTextureManipulator uv;
        const TireProjectionManipulator tire;
        const PerspectiveMatchManipulator match;
        const nbSceneplateManipulator plate;
        const nbPlanarProjectionVisualization projection;
    }
    osg::getDefaultMaterial();
}

std::string play(const PlayTarget& target, const std::uint8_t* data, std::size_t size)
{
    nbController::clear();
    const nbLog::Sink formerSink = nbLog::setSink([](nbLog::Level, const std::string&) {});
    const nbtest::ContainerCensus before;
    Bytes bytes(data, size);
    std::string fault = runOn(target, bytes);
    resetClasses();
    nbUndoService::the()->clear();
    notification::NotificationManager::getInstance()->clear();
    nbController::clear();
    nbScenegraph::clear();
    nbLog::setSink(formerSink);
    const std::string leaked = nbtest::ContainerCensus().differenceTo(before);
    return fault.empty() && !leaked.empty() ? "left behind: " + leaked : fault;
}

}  // namespace nbec::manipulator::test
