// SPDX-License-Identifier: MIT
#include "manipulator/UniversalTransformManipulator2.h"
#include "manipulator/UniversalTransformManipulator2Drag.h"
#include "manipulator/UniversalTransformManipulator2Handles.h"
#include "manipulator/detail/ContainerReference.h"
#include "manipulator/detail/MessageSending.h"
#include "manipulator/detail/PivotMarks.h"
#include "manipulator/detail/TargetFrame.h"
#include "manipulator/detail/ValueText.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

#include <QtCore/QString>

#include <algorithm>
#include <unordered_set>

namespace nbec::manipulator {

namespace {

using Mode = UniversalTransformManipulator2::ManipulatorMode;
using Active = UniversalTransformManipulator2::ActiveMode;
using NodeIds = std::unordered_set<osg::UInt32>;

/// Half the length of a mark's lines, in gizmo units.
constexpr float kMarkReach = 0.15F;

bool hasSelectedAncestor(const osg::NodePtr& node, const NodeIds& selected)
{
    for (osg::NodePtr above = node->getParent(); above != osg::NullFC; above = above->getParent()) {
        if (selected.count(above.getFieldContainerId()) > 0) {
            return true;
        }
    }
    return false;
}

/// Text of the values that a handle edits in a mode. Deliberate: the universal mode shows none,
/// whatever the handle, rings show theirs in mode rotate only, scale handles in mode scale only.
QString describe(const osg::NodePtr& node, Active handle, Mode mode, bool worldSpace)
{
    if (handle >= Active::RotateX && handle <= Active::RotateZ) {
        return mode == Mode::Rotate
            ? detail::describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Rotation ("),
                                     nbNodeUtils::getTransformNodeRotation(node))
            : QString();
    }
    if (handle >= Active::ScaleX) {
        return mode == Mode::Scale
            ? detail::describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Scale ("),
                                     nbNodeUtils::getTransformNodeScale(node))
            : QString();
    }
    switch (mode) {
    case Mode::Translate:
    case Mode::Clipping:
    case Mode::TranslateRotate:
    case Mode::TranslateRotateYZ:
    case Mode::TranslateRotateScale:
        return detail::describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Translation ("),
                                      nbTransformModel::getTranslation(node, worldSpace));
    case Mode::RotatePivot:
        return detail::describeValues(
            QT_TRANSLATE_NOOP("nbForegroundTextContext", "Rotate Pivot ("),
            nbTransformModel::getRotationPivot(node, worldSpace));
    case Mode::ScalePivot:
        return detail::describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Scale Pivot ("),
                                      nbTransformModel::getScalePivot(node, worldSpace));
    default:
        return QString();
    }
}

}  // namespace

// == Nodes

void UniversalTransformManipulator2::setNode(const osg::NodePtr& node)
{
    NodeManipulator::setNode(node);
    transformationInfos.clear();
    isPlaced = false;
    prepared = false;  // a drag goes on from here with the new nodes
    marks->hide();
    if (isActive()) {
        showActiveManipulator();
    }
}

void UniversalTransformManipulator2::setNode(const osg::NodePtr& node,
                                             const std::vector<osg::NodePtr>& nodes)
{
    setNode(node);
    if (node == osg::NullFC) {
        return;
    }
    NodeIds selected = { node.getFieldContainerId() };
    for (const osg::NodePtr& further : nodes) {
        selected.insert(detail::containerId(further));
    }
    NodeIds taken = { node.getFieldContainerId() };
    for (const osg::NodePtr& further : nodes) {
        if (further == osg::NullFC || nbNodeUtils::hasParent(node, further) ||
            hasSelectedAncestor(further, selected) ||
            !taken.insert(further.getFieldContainerId()).second) {
            continue;
        }
        NodeTransformationInfo info;
        info.index = static_cast<osg::UInt32>(transformationInfos.size() + 1);
        info.nodeId = further.getFieldContainerId();
        transformationInfos.push_back(info);
    }
    if (!transformationInfos.empty()) {
        marks->make(multiselection.get(), transformationInfos.size(),
                    handles->getLineMaterial(HandleColor::Yellow));
        updateManipulator();
    }
}

bool UniversalTransformManipulator2::centerPivot()
{
    const osg::NodePtr selected = getNode();
    const osg::NodePtr node =
        selected != osg::NullFC ? makeTransform(detail::editedNode(selected)) : selected;
    if (node == osg::NullFC) {
        return false;
    }
    detail::setBothPivots(node, calculateObjectCenter(node, false));
    updateManipulator();
    detail::sendTransformationChanged();
    return true;
}

// == Marks of the further nodes

void UniversalTransformManipulator2::placeMarks()
{
    const bool atScalePivot = mode == ManipulatorMode::Scale || mode == ManipulatorMode::ScalePivot;
    const bool areResolved = resolvedTargets.size() == marks->size() + 1;
    detail::ParentMatrix parents;
    marks->startPlacing();
    for (std::size_t i = 0; i < marks->size(); ++i) {
        const osg::NodePtr node = areResolved
            ? resolvedTargets[i + 1]
            : detail::resolveContainer<osg::NodePtr>(transformationInfos[i].nodeId);
        if (node == osg::NullFC) {
            marks->hide(i);
            continue;
        }
        const auto transform = osg::Transform3DPtr::dcast(node->getCore());
        marks->place(i,
                     transform == osg::NullFC
                         ? anchorWorld(node)
                         : parents.toWorld(node, detail::pivotInParent(transform, atScalePivot)));
    }
}

void UniversalTransformManipulator2::updateMarks(float size, bool arePlaced)
{
    if (!arePlaced) {
        placeMarks();
    }
    marks->draw(size * kMarkReach);
}

bool areApart(const std::vector<osg::NodePtr>& targets)
{
    NodeIds ids;
    for (const osg::NodePtr& node : targets) {
        ids.insert(detail::containerId(node));
    }
    return std::all_of(targets.begin(), targets.end(), [&ids](const osg::NodePtr& node) {
        return node != osg::NullFC && node->getCore() != osg::NullFC &&
            node->getCore()->getParents().size() == 1 && !hasSelectedAncestor(node, ids);
    });
}

// == On-screen text

bool UniversalTransformManipulator2::setDescription(const osg::NodePtr& node)
{
    static detail::ValueText notifier("transformInfo");
    const QString text = node != osg::NullFC && descriptionEnabled
        ? describe(node, activeHandle, mode, !m_LocalSpaceManipulator)
        : QString();
    notifier.show(text);
    return !text.isEmpty();
}

}  // namespace nbec::manipulator
