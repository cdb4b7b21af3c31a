// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QDoubleSpinBox;
class QFormLayout;

namespace viewer {

class GizmoController;

/// Spin boxes for the steps of snapping and for the size of the gizmo.
class StepsPanel : public QWidget
{
    Q_OBJECT

public:
    /// @param gizmoController  what is edited; outlives this
    explicit StepsPanel(GizmoController& gizmoController, QWidget* parent = nullptr);

    /// Shows the values of now.
    void refresh();

signals:
    void edited();

private:
    QDoubleSpinBox* addBox(QFormLayout& form, const char* name, const QString& label, double least,
                           double most, double step);

    GizmoController& gizmo;
    QDoubleSpinBox* translation = nullptr;
    QDoubleSpinBox* rotation = nullptr;
    QDoubleSpinBox* scale = nullptr;
    QDoubleSpinBox* size = nullptr;
};

}  // namespace viewer
