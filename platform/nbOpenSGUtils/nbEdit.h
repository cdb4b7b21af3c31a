// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>

/// Opens an edit of a container and closes it with the scope.
/// A null container opens nothing. The container must outlive the scope.
class nbEdit
{
public:
    /// @param container  what is edited; null allowed
    /// @param mask       fields that the edit touches
    [[nodiscard]] nbEdit(const osg::FieldContainerPtr& container, osg::BitVector mask)
        : edited(container)
        , fields(mask)
    {
        osg::beginEditCP(edited, fields);
    }

    ~nbEdit() { osg::endEditCP(edited, fields); }

    nbEdit(const nbEdit&) = delete;
    nbEdit& operator=(const nbEdit&) = delete;

private:
    osg::FieldContainerPtr edited;
    osg::BitVector fields;
};
