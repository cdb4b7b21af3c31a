// SPDX-License-Identifier: MIT
#include <OpenSG/OSGContainerCloner.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGLog.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGOwnedFields.h>

#include <algorithm>
#include <sstream>

namespace osg {

ContainerCloner::ContainerCloner(const std::string& shareTypes)
{
    std::string words(shareTypes);
    std::replace(words.begin(), words.end(), ',', ' ');
    std::istringstream names(words);
    for (std::string name; names >> name;) {
        const FieldContainerType* const type = FieldContainerFactory::the()->findType(name.c_str());
        if (type != nullptr) {
            sharedTypes.push_back(type);
        } else {
            SWARNING << "deepClone: no type is called " << name << std::endl;
        }
    }
}

bool ContainerCloner::isShared(const FieldContainerPtr& source) const
{
    return source == NullFC ||
        std::any_of(sharedTypes.begin(), sharedTypes.end(), [&](const FieldContainerType* type) {
               return source->getType().isDerivedFrom(*type);
           });
}

FieldContainerPtr ContainerCloner::copy(const FieldContainerPtr& source)
{
    if (source == NullFC) {
        return NullFC;
    }
    const NodePtr node = NodePtr::dcast(source);
    if (node != NullFC) {
        return node->copyTree(this);
    }
    const FieldContainerPtr result = source->shallowCopy();
    result->cloneReferences(*this);
    return result;
}

FieldContainerPtr deepClone(const FieldContainerPtr& source, const std::string& shareTypes)
{
    return ContainerCloner(shareTypes).copy(source);
}

void countOwned(const FieldContainerPtr& value, FieldContainer& owner)
{
    if (value != NullFC) {
        addRefCP(value);
        value->ownerAdded(owner);
    }
}

void releaseOwned(const FieldContainerPtr& value, FieldContainer& owner)
{
    if (value != NullFC) {
        value->ownerRemoved(owner);
        subRefCP(value);
    }
}

}  // namespace osg
