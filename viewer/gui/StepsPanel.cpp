// SPDX-License-Identifier: MIT
#include "viewer/gui/StepsPanel.h"

#include "viewer/stage/GizmoController.h"

#include <nbTransform/nbTransformModel.h>

#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QSignalBlocker>

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
constexpr int kDecimals = 3;

void display(QDoubleSpinBox* box, double value)
{
    const QSignalBlocker blocker(box);
    box->setValue(value);
}

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

QDoubleSpinBox* StepsPanel::addBox(QFormLayout& form, const char* name, const QString& label,
                                   double least, double most, double step)
{
    auto* box = new QDoubleSpinBox(this);
    box->setObjectName(QLatin1String(name));
    box->setDecimals(kDecimals);
    box->setRange(least, most);
    box->setSingleStep(step);
    box->setLocale(QLocale::c());
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
    display(translation, model->getTranslationPrecision());
    display(rotation, model->getRotationPrecision());
    display(scale, model->getScalePrecision());
    display(size, static_cast<double>(gizmo.size()));
}

}  // namespace viewer
