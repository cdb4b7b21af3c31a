// SPDX-License-Identifier: MIT
#include "OpenStep.h"

#include <QtCore/QCoreApplication>

#include <utility>

namespace {

constexpr char kContext[] = "Manipulator";

/// Title of a step that nobody named.
constexpr char kUnnamed[] = QT_TRANSLATE_NOOP("Manipulator", "Edit");

}  // namespace

void OpenStep::offerTitle(const QString& text)
{
    if (title.isEmpty() && literalTitle == nullptr) {
        title = text;
    }
}

void OpenStep::offerTitle(const char* text)
{
    if (title.isEmpty() && literalTitle == nullptr) {
        literalTitle = text;
    }
}

QString OpenStep::getTitle() const
{
    if (!title.isEmpty()) {
        return title;
    }
    return QCoreApplication::translate(kContext, literalTitle != nullptr ? literalTitle : kUnnamed);
}

StepRecords OpenStep::close()
{
    StepRecords changed;
    for (std::unique_ptr<nbUndoRecord>& record : records) {
        if (record->close()) {
            changed.push_back(std::move(record));
        }
    }
    // After the conversions, so that they are undone before these.
    if (std::unique_ptr<nbUndoRecord> record = transforms.makeRecord(); record != nullptr) {
        changed.push_back(std::move(record));
    }
    return changed;
}

void OpenStep::cancel()
{
    transforms.restoreStart();
    undoAll(records);
}

void OpenStep::clear()
{
    transforms.clear();
    records.clear();
    met.clear();
    title.clear();
    literalTitle = nullptr;
    ++number;
}

void undoAll(const StepRecords& records)
{
    for (auto record = records.rbegin(); record != records.rend(); ++record) {
        (*record)->undo();
    }
}

void redoAll(const StepRecords& records)
{
    for (const auto& record : records) {
        record->redo();
    }
}
