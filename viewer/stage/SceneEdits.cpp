// SPDX-License-Identifier: MIT
#include "viewer/stage/SceneEdits.h"

#include "viewer/loading/BuiltModel.h"
#include "viewer/loading/ModelExport.h"
#include "viewer/loading/NodeChildren.h"
#include "viewer/stage/ClipPlanes.h"
#include "viewer/stage/Stage.h"
#include "viewer/stage/ValueRecord.h"
#include "viewer/texts/Text.h"

#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbChildrenRecord.h>
#include <nbKernelServices/nbScopedUndo.h>
#include <nbOpenSGSelection/nbSelection.h>
#include <nbOpenSGUtils/nbNodePermission.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <QRegularExpression>

#include <algorithm>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace viewer {
namespace {

/// The selected objects without those below others of them.
std::vector<osg::NodePtr> topmost(const Stage& stage)
{
    const std::vector<osg::NodePtr> selected = stage.selectedObjects();
    std::vector<osg::NodePtr> top;
    std::copy_if(selected.begin(), selected.end(), std::back_inserter(top),
                 [&selected](const osg::NodePtr& node) {
                     return std::none_of(
                         selected.begin(), selected.end(), [&node](const osg::NodePtr& other) {
                             return other != node && nbNodeUtils::hasParent(node, other);
                         });
                 });
    return top;
}

bool mayEdit(const std::vector<osg::NodePtr>& objects, QString& error)
{
    for (const osg::NodePtr& object : objects) {
        if (!nbNodePermission::allows(object, nbNodePermission::Transform)) {
            error = Text::tr("\"%1\" is locked")
                        .arg(QString::fromStdString(nbNodeUtils::getName(object)));
            return false;
        }
    }
    if (objects.empty()) {
        error = Text::tr("nothing is selected");
    }
    return !objects.empty();
}

void recordChildren(const osg::NodePtr& parent)
{
    nbUndoService::the()->record(
        std::make_unique<nbChildrenRecord>(std::vector<osg::NodePtr> { parent }));
}

bool deleteSelected(Stage& stage, const QJsonValue& /*value*/, QString& error)
{
    const std::vector<osg::NodePtr> objects = topmost(stage);
    if (!mayEdit(objects, error)) {
        return false;
    }
    const nbScopedUndo scope(Text::tr("Delete"));
    stage.select(osg::NullFC);
    for (const osg::NodePtr& object : objects) {
        if (removeClipPlane(object)) {
            continue;
        }
        recordChildren(object->getParent());
        takeFromParent(object);
    }
    return true;
}

/// Such as "Vase 2": the first number that no object has.
std::string nameOfCopy(const std::string& original)
{
    static const QRegularExpression kNumber(" [0-9]+$");
    const std::string stem = QString::fromStdString(original).remove(kNumber).toStdString();
    int number = 2;
    std::string name;
    do {
        name = stem + ' ' + std::to_string(number++);
    } while (findObject(nbScenegraph::getRootNode(), name) != osg::NullFC);
    return name;
}

bool duplicateSelected(Stage& stage, const QJsonValue& /*value*/, QString& error)
{
    const std::vector<osg::NodePtr> objects = topmost(stage);
    if (objects.empty() || std::any_of(objects.begin(), objects.end(), &isClipPlaneOrFrame)) {
        error = objects.empty() ? Text::tr("nothing is selected")
                                : Text::tr("a clip plane cannot be duplicated");
        return false;
    }
    const nbScopedUndo scope(Text::tr("Duplicate"));
    std::vector<osg::NodePtr> copies;
    for (const osg::NodePtr& object : objects) {
        const osg::NodePtr copy = copyOfObject(object);
        nbNodeUtils::setName(copy, nameOfCopy(nbNodeUtils::getName(object)));
        const osg::NodePtr parent = object->getParent();
        recordChildren(parent);
        stage.addCopy(object, copy, parent);
        copies.push_back(copy);
    }
    nbSelection::set(copies);
    return true;
}

bool rename(Stage& stage, const QJsonValue& value, QString& error)
{
    const osg::NodePtr object = stage.selectedObject();
    const QString name = value.toString().trimmed();
    if (object == osg::NullFC || name.isEmpty()) {
        error = object == osg::NullFC ? Text::tr("nothing is selected")
                                      : Text::tr("a name has at least one letter");
        return false;
    }
    const auto set = [](const osg::NodePtr& node, const std::string& to) {
        nbNodeUtils::setName(node, to);
    };
    const nbScopedUndo scope(Text::tr("Rename"));
    recordValue(
        object, [](const osg::NodePtr& node) { return nbNodeUtils::getName(node); }, set);
    set(object, name.toStdString());
    return true;
}

}  // namespace

void addSceneEdits(Stage& stage)
{
    const auto add = [&stage](const char* name, auto edit) {
        stage.commands().add(name, [&stage, edit](const QJsonValue& value, QString& error) {
            return edit(stage, value, error);
        });
    };
    stage.commands().add("scene.export", [&stage](const QJsonValue& value, QString& error) {
        const QString path = stage.commands().outputPath(value.toString(), QString(), error);
        return !path.isEmpty() && exportModels(path, error);
    });
    add("scene.delete", &deleteSelected);
    add("scene.duplicate", &duplicateSelected);
    add("object.name", &rename);
}

}  // namespace viewer
