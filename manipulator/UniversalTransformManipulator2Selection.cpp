// SPDX-License-Identifier: MIT
#include "manipulator/UniversalTransformManipulator2.h"
#include "manipulator/UniversalTransformManipulator2Drag.h"
#include "manipulator/UniversalTransformManipulator2Handles.h"
#include "manipulator/detail/ContainerReference.h"
#include "manipulator/detail/EditBracket.h"
#include "manipulator/detail/HandleNodes.h"
#include "manipulator/detail/MessageSending.h"
#include "manipulator/detail/NodeVisibility.h"
#include "manipulator/detail/TargetFrame.h"
#include "manipulator/detail/ValueText.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGGeometry.h>

#include <QtCore/QString>

#include <unordered_set>

namespace nbec::manipulator {

namespace {

using Mode = UniversalTransformManipulator2::ManipulatorMode;
using Active = UniversalTransformManipulator2::ActiveMode;
using NodeIds = std::unordered_set<osg::UInt32>;

/// Half the length of a mark's lines, in gizmo units.
constexpr float kMarkReach = 0.15F;
constexpr osg::UInt32 kPointsPerMark = 6;

/// Three lines along the axes. @param points  six  @param reach  half their length; 0 shows nothing
void drawCross(osg::Pnt3f* points, const osg::Pnt3f& center, float reach)
{
    const float x = center.x();
    const float y = center.y();
    const float z = center.z();
    points++->setValues(x - reach, y, z);
    points++->setValues(x + reach, y, z);
    points++->setValues(x, y - reach, z);
    points++->setValues(x, y + reach, z);
    points++->setValues(x, y, z - reach);
    points++->setValues(x, y, z + reach);
}

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
    prepared = false;  // a drag goes on from here with the new nodes
    if (marks != osg::NullFC) {
        detail::showNode(marks.get(), false);
    }
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
        createMarks();
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

void UniversalTransformManipulator2::createMarks()
{
    const osg::GeoPTypesPtr types = osg::GeoPTypesUI8::create();
    const osg::GeoPLengthsPtr lengths = osg::GeoPLengthsUI32::create();
    const osg::GeoPositionsPtr positions = osg::GeoPositions3f::create();
    const auto count = static_cast<osg::UInt32>(transformationInfos.size()) * kPointsPerMark;
    types->push_back(GL_LINES);
    lengths->push_back(count);
    positions->resize(count);
    const osg::GeometryPtr crosses = osg::Geometry::create();
    {
        const detail::EditBracket edit(crosses, osg::FieldBits::AllFields);
        crosses->setTypes(types);
        crosses->setLengths(lengths);
        crosses->setPositions(positions);
        crosses->setMaterial(handles->getLineMaterial(HandleColor::Yellow));
    }
    const detail::EditBracket edit(multiselection.get(), osg::Node::ChildrenFieldMask);
    if (marks != osg::NullFC) {
        multiselection->subChild(marks.get());
    }
    marks = detail::makeNode(crosses);
    multiselection->addChild(marks.get());
}

void UniversalTransformManipulator2::updateMarks(float size)
{
    const osg::GeometryPtr crosses = osg::GeometryPtr::dcast(marks->getCore());
    const auto positions = osg::GeoPositions3fPtr::dcast(crosses->getPositions());
    const detail::EditBracket edit(positions, osg::GeoPositions3f::GeoPropDataFieldMask);
    auto& points = positions->getField();
    const bool atScalePivot = mode == ManipulatorMode::Scale || mode == ManipulatorMode::ScalePivot;
    detail::ParentMatrix parents;
    const bool areResolved = resolvedTargets.size() == transformationInfos.size() + 1;
    for (std::size_t i = 0; i < transformationInfos.size(); ++i) {
        const osg::NodePtr node = areResolved
            ? resolvedTargets[i + 1]
            : detail::resolveContainer<osg::NodePtr>(transformationInfos[i].nodeId);
        osg::Pnt3f center;
        float reach = 0.0F;
        if (node != osg::NullFC) {
            const auto transform = osg::Transform3DPtr::dcast(node->getCore());
            center = transform == osg::NullFC
                ? anchorWorld(node)
                : parents.toWorld(node, detail::pivotInParent(transform, atScalePivot));
            reach = size * kMarkReach;
        }
        drawCross(&points[i * kPointsPerMark], center, reach);
    }
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
