// SPDX-License-Identifier: MIT
#include <OpenSG/OSGContainerCensus.h>
#include <OpenSG/OSGFieldContainer.h>

#include <cstdint>

#include "FactoryTables.h"

namespace osg {

ContainerCensus ContainerCensus::take()
{
    ContainerCensus census;
    FieldContainerFactory::the()->tables->living.forEach([&](FieldContainer* container) {
        const FieldContainerType& type = container->getType();
        if (type.getPrototype() != FieldContainerPtr(container)) {
            ++census.countByType[type.getCName()];
        }
    });
    return census;
}

UInt32 ContainerCensus::total() const
{
    UInt32 sum = 0;
    for (const auto& entry : countByType) {
        sum += entry.second;
    }
    return sum;
}

UInt32 ContainerCensus::count(const std::string& typeName) const
{
    const auto found = countByType.find(typeName);
    return found != countByType.end() ? found->second : 0;
}

std::string ContainerCensus::differenceTo(const ContainerCensus& earlier) const
{
    std::map<std::string, std::int64_t> difference;
    for (const auto& entry : countByType) {
        difference[entry.first] += entry.second;
    }
    for (const auto& entry : earlier.countByType) {
        difference[entry.first] -= entry.second;
    }
    std::string text;
    for (const auto& entry : difference) {
        if (entry.second != 0) {
            text += (text.empty() ? "" : ", ") + entry.first + (entry.second > 0 ? " +" : " ") +
                std::to_string(entry.second);
        }
    }
    return text;
}

}  // namespace osg
