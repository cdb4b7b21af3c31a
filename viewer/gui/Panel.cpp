// SPDX-License-Identifier: MIT
#include "viewer/gui/Panel.h"

#include "viewer/gui/VectorEdit.h"
#include "viewer/loading/PictureDecoding.h"
#include "viewer/stage/Stage.h"
#include "viewer/texts/Text.h"

#include <nbKernelServices/nbUndoService.h>

#include <QAbstractButton>
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QJsonArray>
#include <QSignalBlocker>
#include <QSlider>

namespace viewer {
namespace {

constexpr double kPercent = 100.0;

/// Keys are for the view, whatever was clicked last.
template <class Widget>
Widget* named(Widget* widget, const QString& command)
{
    widget->setObjectName(command);
    widget->setFocusPolicy(Qt::TabFocus);
    return widget;
}

}  // namespace

QString shownName(const QString& name)
{
    constexpr int kMost = 40;
    const QString line = name.simplified();
    return line.isEmpty()     ? Text::tr("(no name)")
        : line.size() > kMost ? line.left(kMost - 1) + QChar(0x2026)
                              : line;
}

bool Panel::run(const QString& command, const QJsonValue& value)
{
    QString error;
    const bool isDone = shownStage.commands().run(command, value, error);
    if (!isDone) {
        emit problem(error);
        refresh();
    }
    return isDone;
}

QJsonValue Panel::value(const QString& name) const
{
    return shownStage.commands().value(name).value_or(QJsonValue());
}

void Panel::refresh()
{
    for (const Field& field : fields) {
        const QJsonValue shown = value(field.value);
        field.widget->setEnabled(!shown.isNull());
        const QSignalBlocker blocker(field.widget);
        field.display(shown);
    }
}

void Panel::bind(QWidget* field, const QString& value,
                 std::function<void(const QJsonValue&)> display)
{
    fields.push_back({ field, value.isEmpty() ? field->objectName() : value, std::move(display) });
}

QCheckBox* Panel::addSwitch(const QString& command, const QString& label, const QString& value)
{
    auto* box = named(new QCheckBox(label, this), command);
    connect(box, &QCheckBox::clicked, this, [this, command](bool on) { run(command, on); });
    bind(box, value, [box](const QJsonValue& on) { box->setChecked(on.toBool()); });
    return box;
}

QComboBox* Panel::addChoice(const QString& command, const Choices& choices, const QString& value)
{
    auto* box = named(new QComboBox(this), command);
    for (const auto& [word, text] : choices) {
        box->addItem(text, word.toVariant());
    }
    connect(box, QOverload<int>::of(&QComboBox::activated), this,
            [this, box, command] { run(command, QJsonValue::fromVariant(box->currentData())); });
    bind(box, value,
         [box](const QJsonValue& word) { box->setCurrentIndex(box->findData(word.toVariant())); });
    return box;
}

VectorEdit* Panel::addNumbers(const QString& command, const QStringList& names,
                              const NumberBox::Style& style, const QString& value)
{
    auto* edit = new VectorEdit(names, style, this);
    edit->setObjectName(command);
    const bool isOne = names.size() == 1;
    connect(edit, &VectorEdit::edited, this, [this, command, isOne](const QJsonArray& numbers) {
        run(command, isOne ? numbers.first() : QJsonValue(numbers));
    });
    connect(edit, &VectorEdit::scrubbed, this, [](bool isOn) {
        // The whole drag is one step.
        isOn ? nbUndoService::the()->beginGroup() : nbUndoService::the()->endGroup();
    });
    bind(edit, value, [edit](const QJsonValue& numbers) {
        edit->display(numbers.isDouble() ? QJsonArray { numbers } : numbers.toArray());
    });
    return edit;
}

QSlider* Panel::addSlider(const QString& command, Range range, const QString& value)
{
    auto* slider = named(new QSlider(Qt::Horizontal, this), command);
    slider->setRange(0, static_cast<int>(kPercent));
    connect(slider, &QSlider::valueChanged, this, [this, slider, command, range] {
        const auto [least, most] = range();
        run(command, least + (most - least) * slider->value() / kPercent);
    });
    bind(slider, value, [slider, range](const QJsonValue& number) {
        const auto [least, most] = range();
        slider->setValue(qRound((number.toDouble() - least) / (most - least) * kPercent));
    });
    return slider;
}

QAbstractButton* Panel::addButton(QBoxLayout* row, QAbstractButton* button, const QString& name,
                                  const QString& text, std::function<void()> press)
{
    named(button, name)->setText(text);
    connect(button, &QAbstractButton::clicked, this, std::move(press));
    row->addWidget(button);
    return button;
}

QString Panel::askForPicture(const QString& title)
{
    return QFileDialog::getOpenFileName(this, title, {}, pictureFileFilter());
}

}  // namespace viewer
