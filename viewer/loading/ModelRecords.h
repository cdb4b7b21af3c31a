// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/loading/ModelData.h"

#include <QByteArray>

#include <functional>

namespace viewer {

/// How the program that reads model files tells what it reads: records, each a kind, the length of
/// its content and the content, in the order of this list. A loading ends with Done or Failure.
enum class ModelRecord : std::uint8_t
{
    Progress,
    Warning,
    Material,
    Mesh,
    Nodes,
    Done,
    Failure
};

/// Nodes below each other that a model may have.
constexpr int kDeepestNode = 1000;
/// Content of a record.
constexpr qint64 kMostRecordBytes = 1LL << 30;

QByteArray progressRecord(double fraction);
/// @param kind  Warning, or Failure
QByteArray textRecord(ModelRecord kind, const QString& text);
/// Hands out the records of a model one after the other, up to Done.
void writeModel(const ModelData& model, const std::function<void(const QByteArray&)>& write);

/// Puts a model together from records that may be anything: whoever wrote them has read a
/// stranger's file. Counts, indices, sizes and numbers are those of a model, or it is refused.
class ModelAssembly
{
public:
    /// Takes what has come, which may end anywhere. @return false for what is no model
    bool take(const QByteArray& bytes);

    /// Whether Done or Failure has come.
    bool isComplete() const { return complete; }

    double progress() const { return fraction; }

    /// What Failure said; "" while there was none.
    const QString& failure() const { return failed; }

    /// The model, once.
    ModelData takeModel() { return std::move(model); }

private:
    bool takeRecord(ModelRecord kind, const QByteArray& content);

    QByteArray waiting;
    ModelData model;
    QString failed;
    double fraction = 0.0;
    bool complete = false;
};

}  // namespace viewer
