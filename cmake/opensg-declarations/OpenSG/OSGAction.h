// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGNodePtr.h>

namespace osg {
class Action
{
public:
    enum ResultE
    {
        Continue,
        Skip,
        Quit
    };

    struct Functor
    { };

    virtual ~Action();
};
template <class Result, class CorePtr, class Node, class Argument, class Core, class Base>
Action::Functor osgTypedMethodFunctor2BaseCPtrRef(Result (Core::*method)(Base));
}  // namespace osg
