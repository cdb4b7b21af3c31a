// SPDX-License-Identifier: MIT
#include "viewer/loading/ModelSources.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

namespace viewer {
namespace {

/// Number of an object that an edit put between one and its children.
constexpr QChar kBetween = u'-';

}  // namespace

void ModelSources::add(const BuiltModel& model)
{
    sources[model.root.get().getFieldContainerId()] = { model.file, model.builtIn };
    addNames(model.root.get());
    addPlaces(model.root.get(), { model.root.get().getFieldContainerId(), QString() });
}

void ModelSources::setPlace(const osg::NodePtr& object, const Place& place)
{
    places[object.getFieldContainerId()] = place;
    members[place.root].push_back(object.getFieldContainerId());
}

void ModelSources::addPlaces(const osg::NodePtr& object, const Place& place)
{
    setPlace(object, place);
    int number = 0;
    for (const osg::NodePtr& child : childObjects(object)) {
        const QString above = place.path.isEmpty() ? QString() : place.path + '/';
        addPlaces(child, { place.root, above + QString::number(number++) });
    }
}

void ModelSources::addCopy(const osg::NodePtr& original, const osg::NodePtr& copy,
                           const QString& path)
{
    const auto found = places.find(original.getFieldContainerId());
    if (found == places.end()) {
        return;
    }
    const osg::UInt32 id = copy.getFieldContainerId();
    if (const Source* source = find(original)) {
        sources[id] = *source;
        copyPlaces(original, copy, {}, { id, QString() });
        return;
    }
    QString own = path;
    if (own.isEmpty()) {
        const int last = found->second.path.lastIndexOf('/') + 1;
        const int mark = found->second.path.indexOf('+', last);
        own = found->second.path.left(mark) + '+' + QString::number(lastCopy + 1);
    }
    lastCopy = qMax(lastCopy, own.section('+', -1).toUInt());
    copyPlaces(original, copy, found->second.path, { found->second.root, own });
}

void ModelSources::copyPlaces(const osg::NodePtr& original, const osg::NodePtr& copy,
                              const QString& from, const Place& to)
{
    names[copy.getFieldContainerId()] = nameOf(original);
    const auto known = places.find(original.getFieldContainerId());
    if (known != places.end()) {
        setPlace(copy, { to.root, to.path + known->second.path.mid(from.size()) });
    }
    for (osg::UInt32 i = 0; i < original->getNChildren(); ++i) {
        copyPlaces(original->getChild(i), copy->getChild(i), from, to);
    }
}

QString ModelSources::pathOf(const osg::NodePtr& object) const
{
    const auto found = places.find(object.getFieldContainerId());
    if (found != places.end()) {
        return found->second.path;
    }
    const osg::NodePtr above = nbNodeUtils::resolveToTransformNode(object->getParent());
    const QString path = above == osg::NullFC ? QString() : pathOf(above);
    return path.isEmpty() ? QString(kBetween) : path + '/' + kBetween;
}

osg::NodePtr ModelSources::objectBelow(const osg::NodePtr& object, const QString& path) const
{
    for (const osg::NodePtr& child : childObjects(object)) {
        const QString own = pathOf(child);
        if (own == path) {
            return child;
        }
        if (own.endsWith(kBetween) || path.startsWith(own + '/')) {
            if (const osg::NodePtr found = objectBelow(child, path); found != osg::NullFC) {
                return found;
            }
        }
    }
    return {};
}

std::map<QString, std::string> ModelSources::objectsOf(const osg::NodePtr& root) const
{
    std::map<QString, std::string> objects;
    const auto found = members.find(root.getFieldContainerId());
    if (found != members.end()) {
        for (const osg::UInt32 id : found->second) {
            objects[places.at(id).path] = names.at(id);
        }
    }
    return objects;
}

const ModelSources::Source* ModelSources::find(const osg::NodePtr& root) const
{
    const auto found = sources.find(root.getFieldContainerId());
    return found == sources.end() ? nullptr : &found->second;
}

std::string ModelSources::nameOf(const osg::NodePtr& node) const
{
    const auto found = names.find(node.getFieldContainerId());
    return found == names.end() ? std::string() : found->second;
}

void ModelSources::addNames(const osg::NodePtr& node)
{
    names[node.getFieldContainerId()] = nbNodeUtils::getName(node);
    for (osg::UInt32 i = 0; i < node->getNChildren(); ++i) {
        addNames(node->getChild(i));
    }
}

}  // namespace viewer
