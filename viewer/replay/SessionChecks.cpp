// SPDX-License-Identifier: MIT
#include "viewer/replay/SessionChecks.h"

#include "viewer/commands/Commands.h"
#include "viewer/loading/BuiltModel.h"
#include "viewer/stage/Stage.h"

#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <QJsonArray>
#include <QUndoStack>

namespace viewer {
namespace {

/// Collects what is not as it should be at one checkpoint.
class Checker
{
public:
    explicit Checker(const QString& checkpointName)
        : name(checkpointName)
    { }

    void expect(const QString& what, const QJsonValue& expected, const QJsonValue& found,
                double tolerance = 0.0)
    {
        if (!isNear(found, expected, tolerance)) {
            fail(QStringLiteral("%1 is %2 instead of %3")
                     .arg(what, textOf(found), textOf(expected)));
        }
    }

    void expectVector(const QString& what, const std::optional<std::array<double, 3>>& expected,
                      const osg::Vec3f& found, double tolerance)
    {
        if (expected) {
            expect(what, QJsonArray { (*expected)[0], (*expected)[1], (*expected)[2] },
                   QJsonArray { found[0], found[1], found[2] }, tolerance);
        }
    }

    void fail(const QString& text)
    {
        failures.append(QStringLiteral("checkpoint \"%1\": %2").arg(name, text));
    }

    QStringList failures;

private:
    QString name;
};

void checkNode(Checker& checker, const SessionNodeExpectation& node)
{
    const osg::NodePtr found = findObject(nbScenegraph::getRootNode(), node.node.toStdString());
    if (found == osg::NullFC) {
        checker.fail(QStringLiteral("there is no node \"%1\"").arg(node.node));
        return;
    }
    const QString of = QStringLiteral(" of \"%1\"").arg(node.node);
    checker.expectVector(QStringLiteral("translation") + of, node.translation,
                         nbNodeUtils::getTransformNodeTranslation(found), node.tolerance);
    checker.expectVector(QStringLiteral("rotation") + of, node.rotationDeg,
                         nbNodeUtils::getTransformNodeRotation(found), node.tolerance);
    checker.expectVector(QStringLiteral("scale") + of, node.scale,
                         nbNodeUtils::getTransformNodeScale(found), node.tolerance);
}

void checkValues(Checker& checker, const SessionExpectation& expectation, const Commands& commands)
{
    for (auto entry = expectation.values.begin(); entry != expectation.values.end(); ++entry) {
        const std::optional<QJsonValue> found = commands.value(entry.key());
        if (found) {
            checker.expect(entry.key(), entry.value(), *found, expectation.tolerance);
        } else {
            checker.fail(QStringLiteral("there is no value \"%1\"").arg(entry.key()));
        }
    }
}

}  // namespace

QStringList findFailures(const SessionStep& checkpoint, Stage& stage)
{
    const SessionExpectation& expectation = checkpoint.expectation;
    Checker checker(checkpoint.name);
    const auto expect = [&checker](const char* what, const auto& expected,
                                   const QJsonValue& found) {
        if (expected) {
            checker.expect(what, *expected, found);
        }
    };
    expect("hover", expectation.hover, QString::fromStdString(stage.hoveredHandle()));
    expect("selection", expectation.selection, QString::fromStdString(stage.selectedName()));
    expect("orthographic", expectation.orthographic, stage.pose().orthographic);
    expect("undoSteps", expectation.undoSteps, nbUndoService::the()->getStack()->index());
    for (const SessionNodeExpectation& node : expectation.nodes) {
        checkNode(checker, node);
    }
    checkValues(checker, expectation, stage.commands());
    return checker.failures;
}

}  // namespace viewer
