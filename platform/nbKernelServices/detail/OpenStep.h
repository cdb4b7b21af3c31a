// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernelServices/nbTransformTable.h>
#include <nbKernelServices/nbUndoRecord.h>

#include <QtCore/QString>

#include <memory>
#include <unordered_set>
#include <vector>

/// Records of a step, in the order of the edits.
using StepRecords = std::vector<std::unique_ptr<nbUndoRecord>>;

/// The step that is being recorded.
class OpenStep
{
public:
    nbTransformTable& getTransforms() { return transforms; }

    void add(std::unique_ptr<nbUndoRecord> entry) { records.push_back(std::move(entry)); }

    /// Remembers a container. @return whether it was not known yet
    bool meet(osg::UInt32 containerId) { return met.insert(containerId).second; }

    /// Names the step unless it has a name. A literal is translated only when it is asked for.
    void offerTitle(const QString& text);
    void offerTitle(const char* text);

    /// The name; a general one if none was offered.
    QString getTitle() const;

    /// Never 0; another one after each clear.
    osg::UInt64 getNumber() const { return number; }

    bool isEmpty() const { return records.empty() && transforms.isEmpty(); }

    /// Closes all records and hands over those that hold a change; to be followed by clear.
    StepRecords close();

    /// Takes all back; to be followed by clear.
    void cancel();

    void clear();

private:
    nbTransformTable transforms;
    StepRecords records;
    std::unordered_set<osg::UInt32> met;
    QString title;
    const char* literalTitle = nullptr;
    osg::UInt64 number = 1;
};

/// Undoes or redoes records in the right order.
void undoAll(const StepRecords& records);
void redoAll(const StepRecords& records);
