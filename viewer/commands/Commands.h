// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/texts/FileRules.h"

#include <QDir>
#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <functional>
#include <map>
#include <optional>
#include <utility>

namespace viewer {

/// What the viewer can do and tell, by name: the way of panels, sessions and tests to the same
/// operations.
///
/// Names are "area.operation", such as "plates.addPicture". A command takes one JSON value and
/// either does everything or, with one line of reason, nothing. A value is read without any effect.
class Commands
{
public:
    /// Does a command. @return false with one line in `error`, nothing changed
    using Run = std::function<bool(const QJsonValue& value, QString& error)>;
    using Read = std::function<QJsonValue()>;

    using Listener = std::function<void(const QString& name)>;

    /// Adds a command, or replaces that of the name.
    void add(const QString& name, Run run) { commands[name] = std::move(run); }

    /// Sets a switch or a number. @return false with one line in `error`, nothing changed
    using SetSwitch = std::function<bool(bool on, QString& error)>;
    using SetNumber = std::function<bool(double number, QString& error)>;

    /// Adds a command that takes true or false.
    /// @param isOn  tells how it is; then null does the other; empty: null is refused
    void addSwitch(const QString& name, SetSwitch set, std::function<bool()> isOn = {});
    /// The same of one that nothing hinders.
    void addSwitch(const QString& name, std::function<void(bool on)> set,
                   std::function<bool()> isOn = {});
    /// Adds a command that takes one of some words. @param choose  gets the place of the word
    void addChoice(const QString& name, const QStringList& words,
                   std::function<bool(int place, QString& error)> choose);
    /// Adds a command that takes a number from least to most.
    void addNumber(const QString& name, double least, double most, SetNumber set);

    /// Adds a value, or replaces that of the name.
    void addValue(const QString& name, Read read) { values[name] = std::move(read); }

    /// Removes every command and value whose name begins so; for owners that end before this.
    void remove(const QString& prefix);

    /// Runs a command, then tells the listener.
    /// @return false with one line in `error` for an unknown name, a command that refused, and
    /// while
    ///         something is dragged
    bool run(const QString& name, const QJsonValue& value, QString& error);
    /// @return nothing for an unknown name
    std::optional<QJsonValue> value(const QString& name) const;
    /// Names of all commands, sorted.
    QStringList names() const;
    /// Names of all values, sorted.
    QStringList valueNames() const;

    /// Sets who is told of every command that was done; empty for nobody.
    void setListener(Listener newListener) { listener = std::move(newListener); }

    /// Sets the folder that relative file names in values are looked up in; the current one at
    /// first.
    void setFolder(const QDir& newFolder) { folder = newFolder; }

    /// Absolute path of a file named in a value.
    QString filePath(const QString& name) const;

    /// Sets the only folder that values may name files to be written in; the current one at first.
    void setOutputFolder(const QDir& newFolder) { outputFolder = newFolder; }

    /// Path of a file to be written that is named in a value, see pathInside().
    QString outputPath(const QString& name, const QString& ending, QString& error) const
    {
        return pathInside(outputFolder, name, ending, error);
    }

    /// Sets what tells that something is being dragged: nothing else is done then, as it could take
    /// away what is dragged.
    void setBusy(std::function<bool()> newBusy) { isBusy = std::move(newBusy); }

private:
    std::map<QString, Run> commands;
    std::map<QString, Read> values;
    Listener listener;
    std::function<bool()> isBusy;
    QDir folder;
    QDir outputFolder;
};

/// Whether a value is what was expected: numbers, also within arrays and objects, may differ by the
/// tolerance; everything else is equal. An object may have entries that were not asked for.
bool isNear(const QJsonValue& found, const QJsonValue& expected, double tolerance);

/// Short text of a value for a message, such as "[1, 2.5]".
QString textOf(const QJsonValue& value);

}  // namespace viewer
