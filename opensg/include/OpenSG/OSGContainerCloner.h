// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>

#include <string>
#include <vector>

namespace osg {

/// One deep copy in the making: decides what the copies share with their originals.
/// Two references to one container become two copies, as in OpenSG.
class ContainerCloner
{
public:
    /// @param shareTypes  names of types, between commas or blanks; what is of such a type or
    ///                    derived from it is shared. An unknown name is logged and ignored.
    explicit ContainerCloner(const std::string& shareTypes);

    /// What a copied field refers to: the source itself if it is null or shared, otherwise a deep
    /// copy.
    template <class Pointer>
    Pointer copyOf(const Pointer& source)
    {
        return isShared(source) ? source : Pointer::dcast(copy(source));
    }

    /// A deep copy, whatever is shared below it. Null gives null.
    FieldContainerPtr copy(const FieldContainerPtr& source);

private:
    bool isShared(const FieldContainerPtr& source) const;

    std::vector<const FieldContainerType*> sharedTypes;
};

/// A copy of the container and of what it owns, except for the types named as in ContainerCloner.
/// A node is copied with its subtree. The result has count 0 and no holder.
FieldContainerPtr deepClone(const FieldContainerPtr& source, const std::string& shareTypes = "");

}  // namespace osg
