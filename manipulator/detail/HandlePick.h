// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <string_view>

namespace nbec::manipulator {
class ManipulatorInteractionContext;
}  // namespace nbec::manipulator

namespace nbec::manipulator::detail {

/// Picks the handle under the pointer: the context's picker with its filter set to handles for this
/// pick and back to the scene after it.
/// @param ctx  may be null
/// @return the handle's node, null without a context, a picker or a hit
osg::NodePtr pickHandle(ManipulatorInteractionContext* ctx);

/// The first row of a handle table whose name is exactly that of a node; rows without a name are
/// passed over.
/// @param rows  container of rows with a member "name", a C string or null
/// @param node  as picked, may be null
/// @return null if there is none
template <class Rows>
const typename Rows::value_type* findHandleRow(const Rows& rows, const osg::NodePtr& node)
{
    const char* const name = node != osg::NullFC ? osg::getName(node) : nullptr;
    if (name == nullptr) {
        return nullptr;
    }
    for (const auto& row : rows) {
        if (row.name != nullptr && std::string_view(name) == row.name) {
            return &row;
        }
    }
    return nullptr;
}

}  // namespace nbec::manipulator::detail
