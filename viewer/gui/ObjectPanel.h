// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/gui/Panel.h"

class QLabel;

namespace viewer {

/// Properties of the selected objects: place, turn, scale, pivots, visibility and lock. Shows those
/// of the object selected last and edits all.
class ObjectPanel : public Panel
{
    Q_OBJECT

public:
    explicit ObjectPanel(Stage& stage);

    void refresh() final;

private:
    QLabel* nameLabel;
};

}  // namespace viewer
