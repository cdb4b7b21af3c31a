// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QJsonValue>
#include <QString>

#include <functional>
#include <utility>
#include <vector>

namespace viewer {

class MainWindow;

/// Something that a person sets once for the program.
struct Setting
{
    const char* name;  ///< of the command and value, behind "settings."
    const char* label;  ///< untranslated
    std::function<QJsonValue()> read;
    std::function<void(const QJsonValue&)> set;
    double least = 0.0;  ///< of a number
    double most = 0.0;  ///< of a number; else 0
    double step = 0.0;
    /// Of a choice, with their untranslated texts; else empty.
    std::vector<std::pair<QString, QString>> words = {};
};

/// The settings of the program, each a command and a value, see docs/commands.md. With a person
/// there they are kept from one start to the next.
class Settings
{
    Q_DECLARE_TR_FUNCTIONS(viewer::Settings)

public:
    /// @param targetWindow  with its stage; outlives this and the commands
    Settings(MainWindow& targetWindow, bool areKept);

    /// Sets what was kept, where it was.
    void restore();

    const std::vector<Setting>& all() const { return settings; }

private:
    void addWindow();
    void addHandles();
    void addFurtherHandles();
    void addSteps();
    void addCommand(const Setting& setting);

    MainWindow& window;
    bool kept;
    std::vector<Setting> settings;
};

}  // namespace viewer
