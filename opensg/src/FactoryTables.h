// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGFieldContainerFactory.h>

#include <string>
#include <unordered_map>
#include <vector>

#include "IdTable.h"

namespace osg {

/// What the factory keeps.
struct FieldContainerFactory::Tables
{
    IdTable living;
    UInt32 lastId = 0;
    /// Types that wait for initialisation, the latest first, linked through nextPending.
    FieldContainerType* pending = nullptr;
    std::unordered_map<std::string, FieldContainerType*> typeByName;
    std::unordered_map<UInt32, FieldContainerType*> typeById;
    /// Containers whose count fell to 0 while another one was being destroyed.
    std::vector<FieldContainer*> doomed;
    bool destroying = false;
};

}  // namespace osg
