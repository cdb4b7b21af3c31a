// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QFormLayout;

namespace viewer {

class GizmoController;
class NumberBox;

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
    NumberBox* addBox(QFormLayout& form, const char* name, const QString& label, double least,
                      double most, double step);

    GizmoController& gizmo;
    NumberBox* translation = nullptr;
    NumberBox* rotation = nullptr;
    NumberBox* scale = nullptr;
    NumberBox* size = nullptr;
};

}  // namespace viewer
