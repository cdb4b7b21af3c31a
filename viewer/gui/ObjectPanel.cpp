// SPDX-License-Identifier: MIT
#include "viewer/gui/ObjectPanel.h"

#include "viewer/gui/VectorEdit.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>

namespace viewer {
namespace {

using Measure = nbValueExpression::Measure;

struct RowTable
{
    const char* command;
    const char* label;
    double step;
    Measure measure;
};

constexpr RowTable kRows[] = {
    { "object.translation", QT_TRANSLATE_NOOP("viewer::ObjectPanel", "Translation"), 0.1,
      Measure::Length },
    { "object.rotation", QT_TRANSLATE_NOOP("viewer::ObjectPanel", "Rotation, °"), 5.0,
      Measure::Angle },
    { "object.scale", QT_TRANSLATE_NOOP("viewer::ObjectPanel", "Scale"), 0.1, Measure::Number },
    { "object.rotatePivot", QT_TRANSLATE_NOOP("viewer::ObjectPanel", "Rotate pivot"), 0.1,
      Measure::Length },
    { "object.scalePivot", QT_TRANSLATE_NOOP("viewer::ObjectPanel", "Scale pivot"), 0.1,
      Measure::Length },
};

}  // namespace

ObjectPanel::ObjectPanel(Stage& stage)
    : Panel(stage)
    , nameLabel(new QLabel(this))
{
    auto* form = new QFormLayout(this);
    nameLabel->setTextFormat(Qt::PlainText);
    form->addRow(nameLabel);
    for (const RowTable& row : kRows) {
        NumberBox::Style style;
        style.step = row.step;
        style.measure = row.measure;
        VectorEdit* edit = addNumbers(row.command, { tr("X"), tr("Y"), tr("Z") }, style);
        edit->tellChangesAlone();
        form->addRow(tr(row.label), edit);
        if (row.measure == Measure::Number) {
            edit->addLink(tr("Keep proportions"));
        }
    }
    form->addRow(addSwitch("object.visible", tr("Visible")));
    form->addRow(addSwitch("object.locked", tr("Locked")));
}

void ObjectPanel::refresh()
{
    Panel::refresh();
    const QJsonValue name = value("object.name");
    nameLabel->setText(name.isNull() ? tr("Nothing selected") : shownName(name.toString()));
}

}  // namespace viewer
