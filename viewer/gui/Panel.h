// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/gui/NumberBox.h"

#include <QJsonValue>
#include <QWidget>

#include <functional>
#include <utility>
#include <vector>

class QAbstractButton;
class QBoxLayout;
class QCheckBox;
class QComboBox;
class QSlider;

namespace viewer {

class Stage;
class VectorEdit;

/// A panel at the side of the window. What a person does in it runs as a command of the stage, so
/// that a session can do the same.
///
/// A field belongs to a command and to the value that it sets; both have the same name unless told
/// otherwise. It is named after the command, shows the value, and is off where that is null.
class Panel : public QWidget
{
    Q_OBJECT

public:
    /// @param targetStage  outlives this
    explicit Panel(Stage& targetStage)
        : shownStage(targetStage)
    { }

    /// Shows how things are; called when it is shown and after everything that may have changed
    /// them. Does nothing that a person would take for an edit.
    virtual void refresh();

    /// Whether the panel is of a fixed height, so that a window with little room has to scroll it.
    virtual bool needsScrolling() const { return true; }

signals:
    /// What could not be done, one line.
    void problem(const QString& text);

protected:
    using Choices = std::vector<std::pair<QJsonValue, QString>>;
    /// Least and greatest number that a slider can set now.
    using Range = std::function<std::pair<double, double>()>;

    Stage& stage() const { return shownStage; }

    /// Runs a command of the stage; a refusal becomes a problem(), and the panel shows again what
    /// is. @return whether it was done
    bool run(const QString& command, const QJsonValue& value = {});
    /// Null for an unknown name.
    QJsonValue value(const QString& name) const;

    // == Fields

    /// A switch. @param label  beside the box
    QCheckBox* addSwitch(const QString& command, const QString& label, const QString& value = {});
    /// A choice of words. @param choices  what the command gets, and what a person reads
    QComboBox* addChoice(const QString& command, const Choices& choices, const QString& value = {});
    /// Numbers, as an array; one is no array.
    VectorEdit* addNumbers(const QString& command, const QStringList& names,
                           const NumberBox::Style& style, const QString& value = {});
    /// A slider.
    QSlider* addSlider(const QString& command, Range range, const QString& value = {});
    /// Has a widget show a value; "" for that of its name.
    void bind(QWidget* field, const QString& value, std::function<void(const QJsonValue&)> display);
    /// Puts a button into a row.
    QAbstractButton* addButton(QBoxLayout* row, QAbstractButton* button, const QString& name,
                               const QString& text, std::function<void()> press);
    /// Asks for a picture. @return "" for none
    QString askForPicture(const QString& title);

private:
    struct Field
    {
        QWidget* widget;
        QString value;
        std::function<void(const QJsonValue&)> display;
    };

    Stage& shownStage;
    std::vector<Field> fields;
};

/// A name as a label shows it: one line that is no wider than a panel; a word for none.
QString shownName(const QString& name);

/// Sets a text that may be there already.
template <class Label>
void setTextOf(Label* label, const QString& text)
{
    if (label->text() != text) {
        label->setText(text);
    }
}

}  // namespace viewer
