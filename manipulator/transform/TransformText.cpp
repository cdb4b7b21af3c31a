// SPDX-License-Identifier: MIT
#include "manipulator/transform/TransformText.h"

#include "manipulator/course/ValueText.h"

#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbTransform/nbTransformModel.h>

#include <QtCore/QCoreApplication>

namespace nbec::manipulator::transform {

namespace {

using Mode = ManipulatorMode;

}  // namespace

QString describeTransform(const osg::NodePtr& node, const HandleAction& action,
                          ManipulatorMode mode, bool worldSpace, const osg::Vec3f& anglesDeg)
{
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
