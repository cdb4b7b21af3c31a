// SPDX-License-Identifier: MIT
#include "nbSceneplateModule.h"

#include <nbInteraction/EventNames.h>
#include <nbKernel/nbController.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbScopedUndo.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGSceneplate/nbSceneplateList.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbUtils/nbLog.h>

#include <algorithm>
#include <optional>
#include <utility>

namespace names = nbec::interaction::names;

namespace {

constexpr const char* kPreselectedMessage = "sceneplatePreselected";
constexpr const char* kSelectedMessage = "sceneplateSelected";
constexpr const char* kChangedMessage = "sceneplateChanged";

std::vector<osg::NodePtr> inWorld(std::vector<osg::NodePtr> nodes)
{
    const auto isOutside = [](const osg::NodePtr& node) {
        return !nbNodeUtils::hasParent(node, nbScenegraph::getWorldRoot());
    };
    nodes.erase(std::remove_if(nodes.begin(), nodes.end(), isOutside), nodes.end());
    return nodes;
}

/// Those that are plates; a line in the log if there are others.
std::vector<osg::NodePtr> platesAmong(const std::vector<osg::NodePtr>& nodes, const char* message)
{
    std::vector<osg::NodePtr> plates;
    std::copy_if(nodes.begin(), nodes.end(), std::back_inserter(plates),
                 [](const auto& node) { return nbSceneplateList::plateOf(node) != osg::NullFC; });
    if (plates.size() < nodes.size()) {
        nbLog::warning(std::string(message) + ": " + std::to_string(nodes.size() - plates.size()) +
                       " of " + std::to_string(nodes.size()) + " nodes are no scene plates");
    }
    return plates;
}

/// An attribute that must be there; its absence costs a line in the log, another type is reported
/// by nbMessage.
template <class Value>
bool readAttribute(const nbMessage& message, const char* messageName, const char* name,
                   Value& value)
{
    if (!message.has(name)) {
        nbLog::warning(std::string(messageName) + ": the attribute \"" + name + "\" is missing");
        return false;
    }
    return nbMessage::get(message, name, value);
}

void setMarker(const osg::NodePtr& node, osg::Sceneplate::MarkerKind kind)
{
    const osg::SceneplatePtr plate = nbSceneplateList::plateOf(node);
    if (plate != osg::NullFC && plate->getMarker() != kind) {
        const nbEdit edit(plate, osg::Sceneplate::MarkerFieldMask);
        plate->setMarker(kind);
    }
}

}  // namespace

nbSceneplateModule::nbSceneplateModule()
    : callbacks("nbSceneplateModule: a changed callback")
{
    nbController::addReceiver(kPreselectedMessage,
                              [this](nbMessage& message) { receivePreselected(message); });
    nbController::addReceiver(kSelectedMessage,
                              [this](nbMessage& message) { receiveSelected(message); });
    nbController::addReceiver(kChangedMessage,
                              [this](nbMessage& message) { receiveChanged(message); });
}

nbSceneplateModule::~nbSceneplateModule()
{
    for (const char* const name : { kPreselectedMessage, kSelectedMessage, kChangedMessage }) {
        nbController::removeReceiver(name);
    }
    selected.clear();
    preselected.clear();
    showMarkers();
}

// == Selection

std::vector<osg::NodePtr> nbSceneplateModule::getSelection() const
{
    return inWorld(selected.getNodes());
}

osg::NodePtr nbSceneplateModule::getPreselected() const
{
    const std::vector<osg::NodePtr> nodes = inWorld(preselected.getNodes());
    return nodes.empty() ? osg::NodePtr() : nodes.front();
}

bool nbSceneplateModule::select(const std::vector<osg::NodePtr>& nodes, const std::string& hint)
{
    using Operation = bool (nbNodeSet::*)(const std::vector<osg::NodePtr>&);
    static const std::pair<const char*, Operation> kOperations[] = {
        { names::kSelect, &nbNodeSet::set },      { names::kAdd, &nbNodeSet::add },
        { names::kDeselect, &nbNodeSet::remove }, { names::kSub, &nbNodeSet::remove },
        { names::kToggle, &nbNodeSet::toggle },
    };
    const auto found = std::find_if(std::begin(kOperations), std::end(kOperations),
                                    [&hint](const auto& entry) { return hint == entry.first; });
    if (found == std::end(kOperations)) {
        nbLog::warning(std::string(kSelectedMessage) + ": the hint \"" + hint + "\" is unknown");
        return false;
    }
    if ((selected.*found->second)(platesAmong(nodes, kSelectedMessage))) {
        showMarkers();
        notify();
    }
    return true;
}

void nbSceneplateModule::preselect(const osg::NodePtr& node)
{
    std::vector<osg::NodePtr> nodes;
    if (node != osg::NullFC) {
        nodes = platesAmong({ node }, kPreselectedMessage);
    }
    if (preselected.set(nodes)) {
        showMarkers();
        notify();
    }
}

void nbSceneplateModule::clear()
{
    const bool isDeselected = selected.clear();
    if (preselected.clear() || isDeselected) {
        showMarkers();
        notify();
    }
}

void nbSceneplateModule::showMarkers()
{
    for (const osg::NodePtr& node : marked.getNodes()) {
        if (!selected.contains(node) && !preselected.contains(node)) {
            setMarker(node, osg::Sceneplate::NoMarker);
        }
    }
    marked.set(preselected.getNodes());
    marked.add(selected.getNodes());
    for (const osg::NodePtr& node : marked.getNodes()) {
        setMarker(node,
                  selected.contains(node) ? osg::Sceneplate::SelectedMarker
                                          : osg::Sceneplate::PreselectedMarker);
    }
}

void nbSceneplateModule::notify()
{
    nbOSGWidget::updateAll();
    callbacks.call();
}

// == Changes

void nbSceneplateModule::change(const nbSceneplateChange& wanted)
{
    const std::vector<osg::NodePtr> plates = getSelection();
    if (plates.empty()) {
        return;
    }
    // A step that begins without a shift is named by the first one that is something.
    const std::optional<nbScopedUndo> undo = wanted.isNone()
        ? std::optional<nbScopedUndo>(std::in_place)
        : std::optional<nbScopedUndo>(std::in_place, wanted.getTitle());
    nbSceneplateUndo::notePlates(plates);
    const osg::UInt64 step = nbUndoService::the()->getOpenStep();
    const bool isGoingOn = step != 0 && step == startStep;
    if (!isGoingOn || !start.isOf(plates)) {
        const nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
        start = widget == nullptr
            ? nbSceneplateStart(plates, 0, 0)
            : nbSceneplateStart(plates, widget->getWidth(), widget->getHeight());
        startStep = step;
    }
    if (start.apply(wanted)) {
        nbController::setModified(1);
        notify();
    }
}

// == Messages

void nbSceneplateModule::receivePreselected(const nbMessage& message)
{
    osg::NodePtr node;
    if (readAttribute(message, kPreselectedMessage, "node", node)) {
        preselect(node);
    }
}

void nbSceneplateModule::receiveSelected(const nbMessage& message)
{
    std::vector<osg::NodePtr> nodes;
    std::string hint;
    if (readAttribute(message, kSelectedMessage, "nodes", nodes) &&
        readAttribute(message, kSelectedMessage, "hint", hint)) {
        select(nodes, hint);
    }
}

void nbSceneplateModule::receiveChanged(const nbMessage& message)
{
    nbSceneplateChange wanted;
    if (nbSceneplateChange::read(message, wanted)) {
        change(wanted);
    }
}
