// SPDX-License-Identifier: MIT
#include "viewer/gui/ObjectPanel.h"

#include "viewer/gui/VectorEdit.h"
#include "viewer/stage/Stage.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>

namespace viewer {
namespace {

struct RowTable
{
    const char* command;
    const char* label;
    double step;
    nbValueExpression::Measure measure;
};

using Measure = nbValueExpression::Measure;

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

const char* const kVisible = "object.visible";
const char* const kLocked = "object.locked";

void display(QCheckBox* box, const QJsonValue& value)
{
    const QSignalBlocker blocker(box);
    box->setEnabled(value.isBool());
    box->setChecked(value.toBool());
}

}  // namespace

ObjectPanel::ObjectPanel(Stage& stage, QWidget* parent)
    : Panel(stage, parent)
    , nameLabel(new QLabel(this))
    , visible(new QCheckBox(tr("Visible"), this))
    , locked(new QCheckBox(tr("Locked"), this))
{
    auto* form = new QFormLayout(this);
    form->addRow(nameLabel);
    for (const RowTable& row : kRows) {
        VectorEdit::Style style;
        style.step = row.step;
        style.measure = row.measure;
        auto* edit = new VectorEdit({ tr("X"), tr("Y"), tr("Z") }, style, this);
        edit->setObjectName(QLatin1String(row.command));
        form->addRow(tr(row.label), edit);
        connect(
            edit, &VectorEdit::edited, this,
            [this, command = row.command](const QJsonArray& v) { run(QLatin1String(command), v); });
        rows.push_back({ row.command, edit });
    }
    for (const auto& [box, command] :
         { std::pair(visible, kVisible), std::pair(locked, kLocked) }) {
        form->addRow(box);
        connect(box, &QCheckBox::toggled, this,
                [this, name = command](bool on) { run(QLatin1String(name), on); });
    }
    refresh();
}

void ObjectPanel::refresh()
{
    const Commands& commands = stage().commands();
    const auto valueOf = [&commands](const char* name) {
        return commands.value(QLatin1String(name)).value_or(QJsonValue());
    };
    const QString name = valueOf("object.name").toString();
    nameLabel->setText(name.isEmpty() ? tr("Nothing selected") : name);
    for (const Row& row : rows) {
        row.edit->display(valueOf(row.command).toArray());
    }
    display(visible, valueOf(kVisible));
    display(locked, valueOf(kLocked));
}

}  // namespace viewer
