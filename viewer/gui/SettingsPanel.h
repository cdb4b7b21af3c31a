// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/gui/Panel.h"

namespace viewer {

class Settings;

/// The settings of the program.
class SettingsPanel : public Panel
{
    Q_OBJECT

public:
    SettingsPanel(Stage& stage, const Settings& settings);

    /// Opens a dialogue with them.
    static void open(Stage& stage, const Settings& settings, QWidget& window);
};

}  // namespace viewer
