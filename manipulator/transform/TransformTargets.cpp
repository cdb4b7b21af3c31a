// SPDX-License-Identifier: MIT
#include "manipulator/transform/TransformTargets.h"

#include "manipulator/course/ValueText.h"
#include "manipulator/scene/TargetFrame.h"

#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGExt/nbContainerId.h>
#include <nbOpenSGUtils/nbNodePermission.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbTransform/nbTransformModel.h>

#include <QtCore/QCoreApplication>

#include <unordered_set>

namespace nbec::manipulator::transform {

namespace {

using NodeIds = std::unordered_set<osg::UInt32>;

constexpr osg::Int32 kTransformPermission = 19;

bool hasSelectedAncestor(const osg::NodePtr& node, const NodeIds& selected)
{
    for (osg::NodePtr above = node->getParent(); above != osg::NullFC; above = above->getParent()) {
        if (selected.count(above.getFieldContainerId()) > 0) {
            return true;
        }
    }
    return false;
}

osg::Transform3DPtr transformOf(const osg::NodePtr& node)
{
    return node != osg::NullFC ? osg::Transform3DPtr::dcast(node->getCore())
                               : osg::Transform3DPtr();
}

}  // namespace

void TransformTargets::set(const osg::NodePtr& node, const std::vector<osg::NodePtr>& further)
{
    ids = { containerId(node) };
    if (node == osg::NullFC) {
        return;
    }
    NodeIds selected = { node.getFieldContainerId() };
    for (const osg::NodePtr& each : further) {
        selected.insert(containerId(each));
    }
    NodeIds taken = { node.getFieldContainerId() };
    for (const osg::NodePtr& each : further) {
        if (each != osg::NullFC && !nbNodeUtils::hasParent(node, each) &&
            !hasSelectedAncestor(each, selected) &&
            taken.insert(each.getFieldContainerId()).second) {
            ids.push_back(each.getFieldContainerId());
        }
    }
}

osg::NodePtr TransformTargets::get(std::size_t index) const
{
    return resolveContainer<osg::NodePtr>(ids[index]);
}

std::vector<osg::NodePtr> TransformTargets::edited() const
{
    std::vector<osg::NodePtr> nodes;
    nodes.reserve(ids.size());
    for (std::size_t i = 0; i < ids.size(); ++i) {
        nodes.push_back(get(i));
    }
    nodes.front() = nodes.front() != osg::NullFC ? editedNode(nodes.front()) : nodes.front();
    return nodes;
}

bool TransformTargets::isLocked(std::size_t index) const
{
    const osg::NodePtr node = get(index);
    return node != osg::NullFC && !nbNodePermission::allows(node, kTransformPermission);
}

osg::NodePtr TransformTargets::makeEditable(std::size_t index) const
{
    const osg::NodePtr node = get(index);
    if (node == osg::NullFC) {
        return node;
    }
    const osg::NodePtr edited = index == 0 ? editedNode(node) : node;
    return isLocked(index) ? edited : makeTransform(edited);
}

void TransformTargets::capture()
{
    captured.clear();
    for (const osg::NodePtr& node : edited()) {
        const osg::Transform3DPtr core = transformOf(node);
        captured.push_back(core != osg::NullFC ? nbTransformState::of(*core) : nbTransformState());
    }
}

void TransformTargets::restore() const
{
    const std::vector<osg::NodePtr> nodes = edited();
    for (std::size_t i = 0; i < nodes.size() && i < captured.size(); ++i) {
        if (const osg::Transform3DPtr core = transformOf(nodes[i]); core != osg::NullFC) {
            captured[i].applyTo(core);
        }
    }
}

QString TransformTargets::describe(const HandleAction& action, ManipulatorMode mode,
                                   bool worldSpace, const osg::Vec3f& anglesDeg) const
{
    using Mode = ManipulatorMode;
    if (first() == osg::NullFC) {
        return QString();
    }
    const osg::NodePtr node = editedNode(first());
    if (action.isTurn()) {
        return mode == Mode::Rotate
            ? describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Rotation ("), anglesDeg)
            : QString();
    }
    if (action.kind == DragParameters::Kind::Factor) {
        return mode == Mode::Scale
            ? describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Scale ("),
                             nbNodeUtils::getTransformNodeScale(node))
            : QString();
    }
    switch (mode) {
    case Mode::Translate:
    case Mode::Clipping:
    case Mode::TranslateRotate:
    case Mode::TranslateRotateYZ:
    case Mode::TranslateRotateScale:
        return describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Translation ("),
                              nbTransformModel::getTranslation(node, worldSpace));
    case Mode::RotatePivot:
        return describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Rotate Pivot ("),
                              nbTransformModel::getRotationPivot(node, worldSpace));
    case Mode::ScalePivot:
        return describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Scale Pivot ("),
                              nbTransformModel::getScalePivot(node, worldSpace));
    default:
        return QString();
    }
}

}  // namespace nbec::manipulator::transform
