// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>

namespace nbec::manipulator::detail {

/// Edit of a container from construction to the end of the scope (beginEditCP, endEditCP).
class EditBracket
{
public:
    /// @param edited  container that is edited, must outlive the bracket; null does nothing
    /// @param fields  mask of the fields that change
    [[nodiscard]] EditBracket(const osg::FieldContainerPtr& edited, osg::BitVector fields)
        : container(edited)
        , mask(fields)
    {
        osg::beginEditCP(container, mask);
    }

    EditBracket(const EditBracket&) = delete;
    EditBracket& operator=(const EditBracket&) = delete;

    ~EditBracket() { osg::endEditCP(container, mask); }

private:
    osg::FieldContainerPtr container;
    osg::BitVector mask;
};

}  // namespace nbec::manipulator::detail
