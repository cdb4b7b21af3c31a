// SPDX-License-Identifier: MIT
#include "viewer/gui/StepsPanel.h"

#include "viewer/gui/NumberBox.h"
#include "viewer/stage/GizmoController.h"

#include <nbTransform/nbTransformModel.h>

#include <QFormLayout>

namespace viewer {
namespace {

constexpr double kMostUnits = 1e6;
constexpr double kMostDegrees = 360.0;
constexpr double kMostFactor = 100.0;
constexpr double kLeastSize = 8.0;
constexpr double kMostSize = 199.0;
/// By which the arrows of the boxes change them.
constexpr double kStepUnits = 0.1;
constexpr double kStepDegrees = 5.0;
constexpr double kStepFactor = 0.05;
constexpr double kStepSize = 4.0;

}  // namespace

StepsPanel::StepsPanel(GizmoController& gizmoController, QWidget* parent)
    : QWidget(parent)
    , gizmo(gizmoController)
{
    auto* form = new QFormLayout(this);
    translation =
        addBox(*form, "translationStep", tr("Step of translation"), 0.0, kMostUnits, kStepUnits);
    rotation =
        addBox(*form, "rotationStep", tr("Step of rotation, °"), 0.0, kMostDegrees, kStepDegrees);
    scale = addBox(*form, "scaleStep", tr("Step of scale"), 0.0, kMostFactor, kStepFactor);
    size = addBox(*form, "gizmoSize", tr("Size of the gizmo"), kLeastSize, kMostSize, kStepSize);
    refresh();
}

NumberBox* StepsPanel::addBox(QFormLayout& form, const char* name, const QString& label,
                              double least, double most, double step)
{
    NumberBox::Style style;
    style.step = step;
    style.least = least;
    style.most = most;
    auto* box = new NumberBox(style, this);
    box->setObjectName(QLatin1String(name));
    form.addRow(label, box);
    connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, [this, box](double v) {
        nbTransformModel* model = nbTransformModel::the();
        if (box == translation) {
            model->setTranslationPrecision(v);
        } else if (box == rotation) {
            model->setRotationPrecision(v);
        } else if (box == scale) {
            model->setScalePrecision(v);
        } else {
            gizmo.setSize(static_cast<float>(v));
        }
        emit edited();
    });
    return box;
}

void StepsPanel::refresh()
{
    const nbTransformModel* model = nbTransformModel::the();
    translation->display(model->getTranslationPrecision());
    rotation->display(model->getRotationPrecision());
    scale->display(model->getScalePrecision());
    size->display(static_cast<double>(gizmo.size()));
}

}  // namespace viewer
