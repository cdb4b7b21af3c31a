// SPDX-License-Identifier: MIT
#include "viewer/stage/ObjectCommands.h"

#include "viewer/commands/JsonReader.h"
#include "viewer/commands/SceneLimits.h"
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
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbEulerUtils.h>
#include <nbOpenSGUtils/nbNodePermission.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbTransform/nbTransformModel.h>

#include <QJsonArray>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace viewer {
namespace {

/// A switch of objects: visible, locked.
struct ObjectSwitch
{
    const char* name;
    const char* title;
    bool (*get)(const osg::NodePtr&);
    void (*set)(const osg::NodePtr&, bool);
};

const ObjectSwitch kSwitches[] = {
    { "object.visible", QT_TRANSLATE_NOOP("Manipulator", "Show or hide"),
      [](const osg::NodePtr& node) { return node->getActive(); },
      [](const osg::NodePtr& node, bool on) {
          const nbEdit edit(node, osg::Node::TravMaskFieldMask);
          node->setActive(on);
      } },
    { "object.locked", QT_TRANSLATE_NOOP("Manipulator", "Lock or unlock"),
      [](const osg::NodePtr& node) {
          return !nbNodePermission::allows(node, nbNodePermission::Transform);
      },
      [](const osg::NodePtr& node, bool on) {
          nbNodePermission::setAllowed(node, nbNodePermission::Transform, !on);
      } },
};

/// A vector of objects: how the transform model sets and tells it.
struct ObjectVector
{
    const char* name;
    osg::UInt32 (*set)(osg::UInt32 count, nbTransformModel::ValueFunction values);
    osg::Vec3f (*get)(const osg::NodePtr& node);
    bool areFactors = false;
};

/// In the frame of the parent.
template <auto set>
osg::UInt32 setInParent(osg::UInt32 count, nbTransformModel::ValueFunction values)
{
    return (nbTransformModel::the()->*set)(count, false, values);
}

/// Until the first edit the pivots of an object are where that will put them, and where the gizmo
/// stands: in the middle of its bounds.
template <auto get>
osg::Vec3f pivotInParent(const osg::NodePtr& node)
{
    const osg::DynamicVolume& volume = node->getVolume(true);
    if (osg::Transform3DPtr::dcast(node->getCore()) != osg::NullFC || volume.isEmpty()) {
        return get(node, false);
    }
    osg::Pnt3f middle;
    volume.getCenter(middle);
    return middle - osg::Pnt3f();
}

/// Of a rotation that is kept without angles those nearest to none: 0, 110, 0 and not 180, 70, 180.
osg::Vec3f rotationOf(const osg::NodePtr& node)
{
    const osg::Vec3f angles = nbNodeUtils::getTransformNodeRotation(node);
    const auto core = osg::Transform3DPtr::dcast(node->getCore());
    if (core != osg::NullFC && core->getRotationMode() != osg::Transform3D::QuaternionMode) {
        return angles;
    }
    const int order =
        core == osg::NullFC ? 0 : nbEulerUtils::getOrderFromString(core->getEulerRotationOrder());
    return nbEulerUtils::toVec3f(nbEulerUtils::toDegrees(
        nbEulerUtils::nearest(nbEulerUtils::fromDegrees(angles, order), { 0.0, 0.0, 0.0, order })));
}

const ObjectVector kVectors[] = {
    { "object.translation", &setInParent<&nbTransformModel::setTranslation>,
      [](const osg::NodePtr& node) { return nbTransformModel::getTranslation(node, false); } },
    { "object.rotation",
      [](osg::UInt32 count, nbTransformModel::ValueFunction values) {
          return nbTransformModel::the()->setRotation(count, values);
      },
      &rotationOf },
    { "object.scale",
      [](osg::UInt32 count, nbTransformModel::ValueFunction values) {
          return nbTransformModel::the()->setScale(count, values);
      },
      [](const osg::NodePtr& node) { return nbNodeUtils::getTransformNodeScale(node); }, true },
    { "object.rotatePivot", &setInParent<&nbTransformModel::setRotationPivot>,
      &pivotInParent<&nbTransformModel::getRotationPivot> },
    { "object.scalePivot", &setInParent<&nbTransformModel::setScalePivot>,
      &pivotInParent<&nbTransformModel::getScalePivot> },
};

/// The selected objects. @return empty with one line in `error` if there are none
std::vector<osg::NodePtr> selectedIn(const Stage& stage, QString& error)
{
    const std::vector<osg::NodePtr> objects = stage.selectedObjects();
    error = objects.empty() ? Text::tr("nothing is selected") : error;
    return objects;
}

QJsonArray jsonOf(const osg::Vec3f& v)
{
    return { v[0], v[1], v[2] };
}

bool readVector(const QJsonValue& value, osg::Vec3f& vector)
{
    const QJsonArray array = value.toArray();
    for (int i = 0; i < 3; ++i) {
        const double number = array.at(i).toDouble(NAN);
        vector[static_cast<osg::UInt32>(i)] =
            isSceneNumber(number) ? static_cast<float>(number) : NAN;
    }
    return array.size() == 3 && std::isfinite(vector[0] + vector[1] + vector[2]);
}

bool setVector(Stage& stage, const ObjectVector& row, const QJsonValue& value, QString& error)
{
    const std::vector<osg::NodePtr> objects = selectedIn(stage, error);
    JsonReader reader(error);
    std::vector<osg::Vec3f> vectors;
    for (const osg::NodePtr& object : objects) {
        osg::Vec3f v;
        if (!readVector(withoutGaps(value, jsonOf(row.get(object))), v)) {
            return reader.fail(row.name, "expected an array of 3 numbers");
        }
        if (row.areFactors && !(isScale(v[0]) && isScale(v[1]) && isScale(v[2]))) {
            return reader.fail(row.name, "expected numbers other than 0");
        }
        vectors.push_back(v);
    }
    const osg::UInt32 count =
        row.set(static_cast<osg::UInt32>(objects.size()), [&objects, &vectors](osg::UInt32 i) {
            return nbTransformModel::Value { { objects[i], -1 }, vectors[i] };
        });
    if (count == 0 && !objects.empty()) {
        error = Text::tr("the selected object is locked or cannot take this value");
    }
    return count > 0;
}

bool setSwitch(Stage& stage, const ObjectSwitch& row, bool on, QString& error)
{
    const std::vector<osg::NodePtr> objects = selectedIn(stage, error);
    const nbScopedUndo scope(row.title);
    for (const osg::NodePtr& object : objects) {
        recordValue(object, row.get, row.set);
        row.set(object, on);
    }
    return !objects.empty();
}

bool selectPaths(Stage& /*stage*/, const QJsonValue& value, QString& error)
{
    JsonReader reader(error);
    if (!value.isArray()) {
        return reader.fail("scene.select", "expected an array of paths");
    }
    std::vector<osg::NodePtr> objects;
    const QJsonArray paths = value.toArray();
    for (const QJsonValue& path : paths) {
        objects.push_back(objectAt(path.toString()));
        if (objects.back() == osg::NullFC) {
            return reader.fail("scene.select",
                               QStringLiteral("there is no object \"%1\"").arg(path.toString()));
        }
    }
    nbSelection::set(objects);
    return true;
}

/// Value of the object selected last, or null without one.
template <class Function>
Commands::Read ofSelected(Stage& stage, Function read)
{
    return [&stage, read] {
        const osg::NodePtr object = stage.selectedObject();
        return object == osg::NullFC ? QJsonValue() : QJsonValue(read(object));
    };
}

// == Which objects there are

/// The selected objects without those below others of them.
std::vector<osg::NodePtr> topmost(const Stage& stage, QString& error)
{
    const std::vector<osg::NodePtr> selected = selectedIn(stage, error);
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

void recordChildren(const osg::NodePtr& parent)
{
    nbUndoService::the()->record(
        std::make_unique<nbChildrenRecord>(std::vector<osg::NodePtr> { parent }));
}

/// What is selected comes back with the step that is taken back.
void recordSelection()
{
    using Nodes = std::vector<osg::NodeRefPtr>;
    recordValue(
        nbScenegraph::getRootNode(),
        [](const osg::NodePtr& /*root*/) {
            const std::vector<osg::NodePtr> nodes = nbSelection::getNodes();
            return Nodes(nodes.begin(), nodes.end());
        },
        [](const osg::NodePtr& /*root*/, const Nodes& nodes) {
            nbSelection::set(std::vector<osg::NodePtr>(nodes.begin(), nodes.end()));
        });
}

bool deleteSelected(Stage& stage, const QJsonValue& /*value*/, QString& error)
{
    const std::vector<osg::NodePtr> objects = topmost(stage, error);
    if (!mayEdit(objects, error)) {
        return false;
    }
    const nbScopedUndo scope(Text::tr("Delete"));
    recordSelection();
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
    const std::vector<osg::NodePtr> objects = topmost(stage, error);
    if (std::any_of(objects.begin(), objects.end(), &isClipPlaneOrFrame)) {
        error = Text::tr("a clip plane cannot be duplicated");
        return false;
    }
    if (objects.empty()) {
        return false;
    }
    const nbScopedUndo scope(Text::tr("Duplicate"));
    recordSelection();
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

void setName(const osg::NodePtr& node, const std::string& name)
{
    nbNodeUtils::setName(node, name);
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
    const nbScopedUndo scope(Text::tr("Rename"));
    recordValue(object, &nbNodeUtils::getName, &setName);
    setName(object, name.toStdString());
    return true;
}

}  // namespace

bool mayEdit(const std::vector<osg::NodePtr>& objects, QString& error)
{
    for (const osg::NodePtr& object : objects) {
        if (!nbNodePermission::allows(object, nbNodePermission::Transform)) {
            error = Text::tr("\"%1\" is locked")
                        .arg(QString::fromStdString(nbNodeUtils::getName(object)));
            return false;
        }
    }
    return !objects.empty();
}

QString pathOf(const osg::NodePtr& object)
{
    QStringList numbers;
    osg::NodePtr at = object;
    while (at != osg::NullFC) {
        const osg::NodePtr parent = objectOf(at->getParent());
        const std::vector<osg::NodePtr> siblings = childObjects(parent);
        const auto place = std::find(siblings.begin(), siblings.end(), at);
        if (place == siblings.end()) {
            return {};
        }
        numbers.prepend(QString::number(place - siblings.begin()));
        at = parent;
    }
    return numbers.join('/');
}

osg::NodePtr objectAt(const QString& path)
{
    osg::NodePtr at;
    for (const QString& number : path.split('/')) {
        const std::vector<osg::NodePtr> children = childObjects(at);
        bool isNumber = false;
        const std::size_t i = number.toUInt(&isNumber);
        if (!isNumber || i >= children.size()) {
            return {};
        }
        at = children[i];
    }
    return at;
}

void addObjectCommands(Stage& stage)
{
    Commands& commands = stage.commands();
    using Edit = bool (*)(Stage&, const QJsonValue&, QString&);
    const std::pair<const char*, Edit> edits[] = { { "scene.select", &selectPaths },
                                                   { "scene.delete", &deleteSelected },
                                                   { "scene.duplicate", &duplicateSelected },
                                                   { "object.name", &rename } };
    commands.add("scene.export", [&commands](const QJsonValue& value, QString& error) {
        const QString path = commands.outputPath(value.toString(), QString(), error);
        return !path.isEmpty() && exportModels(path, error);
    });
    for (const auto& [name, run] : edits) {
        commands.add(name, [&stage, edit = run](const QJsonValue& value, QString& error) {
            return edit(stage, value, error);
        });
    }
    commands.addValue("object.name", ofSelected(stage, [](const osg::NodePtr& node) {
                          return QString::fromStdString(nbNodeUtils::getName(node));
                      }));
    for (const ObjectVector& row : kVectors) {
        commands.add(row.name, [&stage, &row](const QJsonValue& value, QString& error) {
            return setVector(stage, row, value, error);
        });
        commands.addValue(row.name, ofSelected(stage, [&row](const osg::NodePtr& node) {
                              return jsonOf(row.get(node));
                          }));
    }
    for (const ObjectSwitch& row : kSwitches) {
        commands.addSwitch(row.name, [&stage, &row](bool on, QString& error) {
            return setSwitch(stage, row, on, error);
        });
        commands.addValue(row.name, ofSelected(stage, row.get));
    }
}

}  // namespace viewer
