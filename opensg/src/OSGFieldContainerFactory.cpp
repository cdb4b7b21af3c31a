// SPDX-License-Identifier: MIT
#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGLog.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodeCore.h>

#include <utility>

#include "FactoryTables.h"

namespace osg {

FieldContainerFactory* FieldContainerFactory::the()
{
    static FieldContainerFactory* const factory = new FieldContainerFactory;
    return factory;
}

FieldContainerFactory::FieldContainerFactory()
    : tables(new Tables)
{ }

void FieldContainerFactory::initializePendingTypes()
{
    FieldContainerType* waiting = std::exchange(tables->pending, nullptr);
    FieldContainerType* inOrder = nullptr;
    while (waiting != nullptr) {
        FieldContainerType* const type = waiting;
        waiting = std::exchange(type->nextPending, inOrder);
        inOrder = type;
    }
    while (inOrder != nullptr) {
        FieldContainerType* const type = inOrder;
        inOrder = std::exchange(type->nextPending, nullptr);
        initialize(*type);
    }
}

void FieldContainerFactory::initialize(FieldContainerType& type)
{
    if (!tables->typeById.emplace(type.id, &type).second) {
        return;
    }
    if (type.parent != nullptr) {
        initialize(*type.parent);
    }
    if (!tables->typeByName.emplace(type.name, &type).second) {
        SWARNING << "FieldContainerFactory: a second type has the name " << type.name
                 << "; by name only the first one is found" << std::endl;
    }
    type.prototype = type.createContainer();
    addRefCP(type.prototype);
}

void FieldContainerFactory::terminate()
{
    const std::unordered_map<UInt32, FieldContainerType*> types = std::move(tables->typeById);
    tables->typeById.clear();
    tables->typeByName.clear();
    for (const auto& entry : types) {
        clearRefCP(entry.second->prototype);
        addPendingType(*entry.second);
    }
}

void FieldContainerFactory::addPendingType(FieldContainerType& type)
{
    type.nextPending = tables->pending;
    tables->pending = &type;
}

void FieldContainerFactory::removeType(FieldContainerType& type)
{
    clearRefCP(type.prototype);
    tables->typeById.erase(type.id);
    const auto named = tables->typeByName.find(type.name);
    if (named != tables->typeByName.end() && named->second == &type) {
        tables->typeByName.erase(named);
    }
    FieldContainerType** link = &tables->pending;
    while (*link != nullptr && *link != &type) {
        link = &(*link)->nextPending;
    }
    if (*link != nullptr) {
        *link = type.nextPending;
    }
}

UInt32 FieldContainerFactory::registerContainer(FieldContainer* container)
{
    tables->living.insert(++tables->lastId, container);
    return tables->lastId;
}

void FieldContainerFactory::unregisterContainer(FieldContainer* container)
{
    tables->living.erase(container->getFieldContainerId());
}

FieldContainerPtr FieldContainerFactory::getContainer(UInt32 id) const
{
    return FieldContainerPtr(tables->living.find(id));
}

FieldContainerType* FieldContainerFactory::findType(const Char8* name) const
{
    if (name == nullptr) {
        return nullptr;
    }
    const auto found = tables->typeByName.find(name);
    return found != tables->typeByName.end() ? found->second : nullptr;
}

FieldContainerType* FieldContainerFactory::findType(UInt32 typeId) const
{
    const auto found = tables->typeById.find(typeId);
    return found != tables->typeById.end() ? found->second : nullptr;
}

UInt32 FieldContainerFactory::getNumTypes() const
{
    return static_cast<UInt32>(tables->typeById.size());
}

FieldContainerPtr FieldContainerFactory::createFieldContainer(const Char8* name) const
{
    const FieldContainerType* const type = findType(name);
    return type != nullptr ? type->createContainer() : FieldContainerPtr();
}

NodePtr FieldContainerFactory::createNode(const Char8* name) const
{
    const FieldContainerType* const type = findType(name);
    return type != nullptr && type->isNode() ? NodePtr::dcast(type->createContainer()) : NodePtr();
}

NodeCorePtr FieldContainerFactory::createNodeCore(const Char8* name) const
{
    const FieldContainerType* const type = findType(name);
    return type != nullptr && type->isNodeCore() ? NodeCorePtr::dcast(type->createContainer())
                                                 : NodeCorePtr();
}

AttachmentPtr FieldContainerFactory::createAttachment(const Char8* name) const
{
    const FieldContainerType* const type = findType(name);
    return type != nullptr && type->isAttachment() ? AttachmentPtr::dcast(type->createContainer())
                                                   : AttachmentPtr();
}

bool osgInit(Int32, Char8**, UInt16, UInt16, UInt16)
{
    FieldContainerFactory::the()->initializePendingTypes();
    return true;
}

bool osgExit()
{
    FieldContainerFactory::the()->terminate();
    return true;
}

}  // namespace osg
