// SPDX-License-Identifier: MIT
#include "viewer/gui/VectorEdit.h"

#include <QHBoxLayout>
#include <QSignalBlocker>

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
        connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, [this] {
            QJsonArray values;
            for (const NumberBox* each : boxes) {
                values.append(each->number());
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
        boxes[i]->setEnabled(isKnown);
        if (isKnown) {
            boxes[i]->display(values.at(static_cast<int>(i)).toDouble());
        } else {
            const QSignalBlocker blocker(boxes[i]);
            boxes[i]->clear();
        }
    }
}

}  // namespace viewer
