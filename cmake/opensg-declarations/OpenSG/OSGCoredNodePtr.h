// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGNodePtr.h>

namespace osg {
template <class Core>
class CoredNodePtr
{
public:
    static CoredNodePtr create();
    CoredNodePtr();
    CoredNodePtr(const NodePtr& node);
    NodePtr node();
    typename Core::Ptr core();
    operator NodePtr();
    typename Core::Ptr operator->();
};
}  // namespace osg
