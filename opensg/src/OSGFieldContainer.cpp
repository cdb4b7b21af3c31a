// SPDX-License-Identifier: MIT
#include <OpenSG/OSGChangeCount.h>
#include <OpenSG/OSGContainerCloner.h>
#include <OpenSG/OSGFieldContainer.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGNode.h>

#include "FactoryTables.h"

namespace osg {

namespace detail {

UInt64 editCount = 0;
UInt64 sharedChangeCount = 0;

}  // namespace detail

FieldContainerType FieldContainer::classType("FieldContainer", nullptr, nullptr);

UInt32 FieldContainer::getClassTypeId()
{
    return classType.getId();
}

const Char8* FieldContainer::getTypeName() const
{
    return getType().getCName();
}

UInt32 FieldContainer::getTypeId() const
{
    return getType().getId();
}

FieldContainer::FieldContainer()
    : id(FieldContainerFactory::the()->registerContainer(this))
{ }

FieldContainer::FieldContainer(const FieldContainer&)
    : FieldContainer()
{ }

FieldContainer::~FieldContainer() = default;

void FieldContainer::ownerAdded(FieldContainer&) { }

void FieldContainer::ownerRemoved(FieldContainer&) { }

void FieldContainer::cloneReferences(ContainerCloner&) { }

void FieldContainer::noteEdit()
{
    ++detail::sharedChangeCount;
}

bool FieldContainer::releaseOne()
{
    if (--refCount > 0 || dying) {
        return false;
    }
    destroy(this);
    return true;
}

// What dies with a container is destroyed after it, one by one, so that a deep tree needs no deep
// stack. All is gone when the outermost call returns.
void FieldContainer::destroy(FieldContainer* container)
{
    FieldContainerFactory* const factory = FieldContainerFactory::the();
    FieldContainerFactory::Tables& tables = *factory->tables;
    container->dying = true;
    factory->unregisterContainer(container);
    if (tables.destroying) {
        tables.doomed.push_back(container);
        return;
    }
    tables.destroying = true;
    delete container;
    while (!tables.doomed.empty()) {
        FieldContainer* const next = tables.doomed.back();
        tables.doomed.pop_back();
        delete next;
    }
    tables.destroying = false;
}

// == Counting

void addRefCP(const FieldContainerPtr& container)
{
    if (container != NullFC) {
        ++container->refCount;
    }
}

void subRefCP(const FieldContainerPtr& container)
{
    if (container != NullFC) {
        container->releaseOne();
    }
}

void subRefCP(FieldContainerPtr& container)
{
    if (container != NullFC && container->releaseOne()) {
        container = NullFC;
    }
}

void clearRefCP(FieldContainerPtr& container)
{
    const FieldContainerPtr old = container;
    container = NullFC;
    subRefCP(old);
}

// == Edits

void changedCP(const FieldContainerPtr& container, BitVector whichField, UInt32 origin)
{
    if (container == NullFC) {
        return;
    }
    ++detail::editCount;
    ++container->changeCount;
    container->noteEdit();
    container->changed(whichField, origin);
}

}  // namespace osg
