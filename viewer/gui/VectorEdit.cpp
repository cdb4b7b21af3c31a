// SPDX-License-Identifier: MIT
#include "viewer/gui/VectorEdit.h"

#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QSignalBlocker>

namespace viewer {

VectorEdit::VectorEdit(const QStringList& names, const Style& style, QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const QString& name : names) {
        auto* box = new QDoubleSpinBox(this);
        box->setAccessibleName(name);
        box->setToolTip(name);
        box->setRange(style.least, style.most);
        box->setSingleStep(style.step);
        box->setDecimals(style.decimals);
        box->setButtonSymbols(QAbstractSpinBox::NoButtons);
        // Numbers have a point whatever the country, and half a number is no edit.
        box->setLocale(QLocale::c());
        box->setKeyboardTracking(false);
        box->setMinimumWidth(box->fontMetrics().horizontalAdvance(QStringLiteral("-0000.000")));
        connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, [this] {
            QJsonArray values;
            for (const QDoubleSpinBox* each : boxes) {
                values.append(each->value());
            }
            emit edited(values);
        });
        layout->addWidget(box);
        boxes.push_back(box);
    }
}

void VectorEdit::display(const QJsonArray& values)
{
    const bool isKnown = values.size() == static_cast<int>(boxes.size());
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        QDoubleSpinBox* box = boxes[i];
        const QSignalBlocker blocker(box);
        box->setEnabled(isKnown);
        if (!isKnown) {
            box->clear();
        } else if (!box->hasFocus() || box->value() != values.at(static_cast<int>(i)).toDouble()) {
            box->setValue(values.at(static_cast<int>(i)).toDouble());
        }
    }
}

}  // namespace viewer
