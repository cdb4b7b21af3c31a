// SPDX-License-Identifier: MIT
#include "viewer/gui/VectorEdit.h"

#include "viewer/gui/ThemeIcon.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QToolButton>

namespace viewer {

VectorEdit::VectorEdit(const QStringList& names, const Style& style, QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const QString& name : names) {
        auto* box = new NumberBox(style, this);
        box->setAccessibleName(name);
        box->setToolTip(name);
        box->setButtonSymbols(QAbstractSpinBox::NoButtons);
        connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                [this, changed = boxes.size()] { tell(changed); });
        connect(box, &NumberBox::scrubbed, this, &VectorEdit::scrubbed);
        layout->addWidget(box);
        boxes.push_back(box);
    }
}

void VectorEdit::addLink(const QString& tip)
{
    link = new QToolButton(this);
    link->setCheckable(true);
    link->setIcon(themeIcon("link"));
    link->setToolTip(tip);
    link->setAccessibleName(tip);
    layout()->addWidget(link);
}

void VectorEdit::tell(std::size_t changed)
{
    const double number = boxes[changed]->number();
    if (link != nullptr && link->isChecked() && changed < shown.size() && shown[changed] != 0.0) {
        const double factor = number / shown[changed];
        for (std::size_t i = 0; i < boxes.size(); ++i) {
            boxes[i]->display(i == changed ? number : shown[i] * factor);
        }
    }
    QJsonArray values;
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const double each = boxes[i]->number();
        const bool isKept = changesAlone && i != changed && i < shown.size() && each == shown[i];
        values.append(isKept ? QJsonValue() : QJsonValue(each));
    }
    emit edited(values);
}

void VectorEdit::display(const QJsonArray& values)
{
    const bool isKnown = values.size() == static_cast<int>(boxes.size());
    shown.clear();
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        boxes[i]->setEnabled(isKnown);
        if (isKnown) {
            shown.push_back(values.at(static_cast<int>(i)).toDouble());
            boxes[i]->display(shown.back());
        } else {
            const QSignalBlocker blocker(boxes[i]);
            boxes[i]->clear();
        }
    }
}

}  // namespace viewer
