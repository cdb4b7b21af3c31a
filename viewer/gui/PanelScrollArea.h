// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

namespace viewer {

/// Frame around the content of a dock: scrolls it up and down where there is no room, so that a
/// window can be small. It is as wide as the content has ever needed, so that rows which come and
/// go do not make the view beside it change its size.
class PanelScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    /// @param content  becomes a child
    explicit PanelScrollArea(QWidget* content, QWidget* parent = nullptr);

    /// Takes note of the width that the content needs now.
    void measure();

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    /// Follows the content when its rows change.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int widest = 0;
};

}  // namespace viewer
