// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGFieldContainerPtr.h>

#include <utility>
#include <vector>

namespace osg {
class ChangeList
{
public:
    typedef std::pair<UInt32, BitVector> ChangeEntry;
    static void setReadWriteDefault(bool readWrite = true);
    void setReadOnly(bool readOnly);
    void clearAll();
    std::vector<ChangeEntry>::size_type sizeChanged();
    std::vector<ChangeEntry>::const_iterator beginChanged() const;
    std::vector<ChangeEntry>::const_iterator endChanged() const;
    std::vector<UInt32>::const_iterator beginDestroyed() const;
    std::vector<UInt32>::const_iterator endDestroyed() const;
};
}  // namespace osg
