// SPDX-License-Identifier: MIT
#include "viewer/gui/Panel.h"

#include "viewer/stage/Stage.h"

#include <QSlider>

namespace viewer {

bool Panel::run(const QString& command, const QJsonValue& value, Commands::Moment moment)
{
    QString error;
    const bool isDone = shownStage.commands().run(command, value, error, moment);
    if (!isDone) {
        emit problem(error);
        refresh();
    }
    return isDone;
}

void Panel::connectSlider(const QSlider& slider, const QString& command,
                          const std::function<QJsonValue(int)>& valueOf)
{
    connect(&slider, &QSlider::valueChanged, this, [this, &slider, command, valueOf](int position) {
        run(command, valueOf(position),
            slider.isSliderDown() ? Commands::Moment::Passing : Commands::Moment::Final);
    });
    connect(&slider, &QSlider::sliderReleased, this,
            [this, &slider, command, valueOf] { run(command, valueOf(slider.value())); });
}

}  // namespace viewer
