// SPDX-License-Identifier: MIT
#include "viewer/replay/SessionStage.h"

#include "viewer/commands/Commands.h"
#include "viewer/loading/BuiltModel.h"
#include "viewer/stage/Stage.h"
#include "viewer/stage/StageTool.h"

#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGBoxVolume.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGPrimitiveIterator.h>

#include <QJsonArray>
#include <QUndoStack>

#include <algorithm>
#include <cmath>
#include <tuple>
#include <vector>

namespace viewer {
namespace {

bool fail(const QString& reason, QString& error)
{
    error = reason;
    return false;
}

/// Adds the pixels of a geometry's vertices and of the middles between neighbours.
void addPixels(Stage& stage, const osg::NodePtr& node, std::vector<osg::Pnt2f>& pixels)
{
    const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(node->getCore());
    if (geometry == osg::NullFC) {
        return;
    }
    const osg::Matrix toWorld = node->getToWorld();
    for (auto primitive = geometry->beginPrimitives(); primitive != geometry->endPrimitives();
         ++primitive) {
        for (osg::UInt32 i = 0; i < primitive.getLength(); ++i) {
            const osg::Pnt3f corner = primitive.getPosition(static_cast<osg::Int32>(i));
            const osg::Pnt3f previous =
                i > 0 ? primitive.getPosition(static_cast<osg::Int32>(i - 1)) : corner;
            for (const osg::Pnt3f& local : { corner, corner + (previous - corner) * 0.5F }) {
                osg::Pnt3f world = local;
                toWorld.multMatrixPnt(local, world);
                osg::Pnt2f px;
                if (stage.project(world, px)) {
                    pixels.push_back(px);
                }
            }
        }
    }
}

void collectHandle(Stage& stage, const osg::NodePtr& node, const std::string& name,
                   std::vector<osg::Pnt2f>& pixels)
{
    if (node == osg::NullFC || !node->getActive()) {
        return;
    }
    if (nbNodeUtils::getName(node) == name) {
        addPixels(stage, node, pixels);
    }
    for (osg::UInt32 i = 0; i < node->getNChildren(); ++i) {
        collectHandle(stage, node->getChild(i), name, pixels);
    }
}

/// Sorts by the distance to the middle of all, in sixteenths of a pixel; ties keep their order. So
/// the answer is always the same, also for a ring, of which rounding alone would choose a point.
void sortFromTheMiddle(std::vector<osg::Pnt2f>& pixels)
{
    osg::Vec2f sum(0.0F, 0.0F);
    for (const osg::Pnt2f& px : pixels) {
        sum += px.subZero();
    }
    const float share = 1.0F / static_cast<float>(std::max<std::size_t>(pixels.size(), 1));
    const osg::Pnt2f middle(sum[0] * share, sum[1] * share);
    const auto distance = [&middle](const osg::Pnt2f& px) {
        return std::lround(middle.dist(px) * 16.0F);
    };
    std::stable_sort(pixels.begin(), pixels.end(),
                     [&distance](const osg::Pnt2f& a, const osg::Pnt2f& b) {
                         return distance(a) < distance(b);
                     });
}

bool resolveHandle(const QString& name, Stage& stage, osg::Pnt2f& px, QString& error)
{
    const std::string handle = name.toStdString();
    if (stage.activeTool() != nullptr && stage.activeTool()->findHandle(handle, px)) {
        return true;
    }
    std::vector<osg::Pnt2f> pixels;
    collectHandle(stage, stage.handles(), handle, pixels);
    if (pixels.empty()) {
        return fail(QStringLiteral("there is no handle \"%1\"").arg(name), error);
    }
    sortFromTheMiddle(pixels);
    for (const osg::Pnt2f& candidate : pixels) {
        if (stage.handleAt(candidate) == handle) {
            px = candidate;
            return true;
        }
    }
    return fail(QStringLiteral("handle \"%1\" cannot be hit from here").arg(name), error);
}

bool resolveNode(const QString& name, Stage& stage, osg::Pnt2f& px, QString& error)
{
    const osg::NodePtr node = findObject(nbScenegraph::getRootNode(), name.toStdString());
    const osg::BoxVolume bounds = nbNodeUtils::getWorldBounds(node);
    if (node == osg::NullFC || bounds.isEmpty()) {
        return fail(QStringLiteral("there is no node \"%1\" with a surface").arg(name), error);
    }
    const osg::Pnt3f centre = bounds.getMin() + (bounds.getMax() - bounds.getMin()) * 0.5F;
    return stage.project(centre, px) ||
        fail(QStringLiteral("node \"%1\" lies behind the eye").arg(name), error);
}

// == Checkpoints

void expect(const QString& what, const QJsonValue& expected, const QJsonValue& found,
            double tolerance, QStringList& failures)
{
    if (!isNear(found, expected, tolerance)) {
        failures.append(
            QStringLiteral("%1 is %2 instead of %3").arg(what, textOf(found), textOf(expected)));
    }
}

void checkNode(const SessionNodeExpectation& node, QStringList& failures)
{
    const osg::NodePtr found = findObject(nbScenegraph::getRootNode(), node.node.toStdString());
    if (found == osg::NullFC) {
        failures.append(QStringLiteral("there is no node \"%1\"").arg(node.node));
        return;
    }
    const std::tuple<const char*, std::optional<std::array<double, 3>>, osg::Vec3f> rows[] = {
        { "translation", node.translation, nbNodeUtils::getTransformNodeTranslation(found) },
        { "rotation", node.rotationDeg, nbNodeUtils::getTransformNodeRotation(found) },
        { "scale", node.scale, nbNodeUtils::getTransformNodeScale(found) },
    };
    for (const auto& [what, wanted, is] : rows) {
        if (wanted) {
            expect(QStringLiteral("%1 of \"%2\"").arg(what, node.node),
                   QJsonArray { (*wanted)[0], (*wanted)[1], (*wanted)[2] },
                   QJsonArray { is[0], is[1], is[2] }, node.tolerance, failures);
        }
    }
}

void checkValues(const SessionExpectation& expectation, const Commands& commands,
                 QStringList& failures)
{
    for (auto entry = expectation.values.begin(); entry != expectation.values.end(); ++entry) {
        const std::optional<QJsonValue> found = commands.value(entry.key());
        if (found) {
            expect(entry.key(), entry.value(), *found, expectation.tolerance, failures);
        } else {
            failures.append(QStringLiteral("there is no value \"%1\"").arg(entry.key()));
        }
    }
}

}  // namespace

bool beginSession(Stage& stage, const Session& session, QString& error)
{
    stage.gizmo().resetSettings();
    if (session.camera) {
        stage.setPose(*session.camera);
    }
    if (session.selection && !stage.selectByName(session.selection->toStdString())) {
        error = QStringLiteral("the session begins with \"%1\" selected, which is not there")
                    .arg(*session.selection);
        return false;
    }
    const bool isKnown =
        session.manipulator.isEmpty() || stage.showManipulator(session.manipulator.toStdString());
    if (!isKnown) {
        error = QStringLiteral("manipulator: unknown name \"%1\"").arg(session.manipulator);
    }
    return isKnown;
}

bool resolveTarget(const SessionTarget& target, Stage& stage, osg::Pnt2f& px, QString& error)
{
    bool isFound = true;
    osg::Pnt2f place(0.0F, 0.0F);
    switch (target.kind) {
    case SessionTarget::Kind::Pixel:
        break;
    case SessionTarget::Kind::Pointer:
        place = stage.view().getMousePosition();
        break;
    case SessionTarget::Kind::Handle:
        isFound = resolveHandle(target.name, stage, place, error);
        break;
    case SessionTarget::Kind::Node:
        isFound = resolveNode(target.name, stage, place, error);
        break;
    case SessionTarget::Kind::World:
        isFound =
            stage.project(target.world, place) || fail("the point lies behind the eye", error);
        break;
    }
    if (isFound) {
        px = osg::Pnt2f(place[0] + static_cast<float>(target.offsetPx.x()),
                        place[1] + static_cast<float>(target.offsetPx.y()));
    }
    return isFound;
}

QStringList findFailures(const SessionStep& checkpoint, Stage& stage)
{
    const SessionExpectation& expectation = checkpoint.expectation;
    QStringList failures;
    const auto compare = [&failures](const char* what, const auto& expected,
                                     const QJsonValue& found) {
        if (expected) {
            expect(what, *expected, found, 0.0, failures);
        }
    };
    compare("hover", expectation.hover, QString::fromStdString(stage.hoveredHandle()));
    compare("selection", expectation.selection, QString::fromStdString(stage.selectedName()));
    compare("orthographic", expectation.orthographic, stage.pose().orthographic);
    compare("undoSteps", expectation.undoSteps, nbUndoService::the()->getStack()->index());
    for (const SessionNodeExpectation& node : expectation.nodes) {
        checkNode(node, failures);
    }
    checkValues(expectation, stage.commands(), failures);
    for (QString& failure : failures) {
        failure.prepend(QStringLiteral("checkpoint \"%1\": ").arg(checkpoint.name));
    }
    return failures;
}

}  // namespace viewer
