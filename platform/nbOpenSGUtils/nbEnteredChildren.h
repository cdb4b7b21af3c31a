// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSwitch.h>

/// Calls visit(child) for the children that a traversal enters: all of them, or what a Switch core
/// chooses. visit returns false to stop. @return false if it was stopped
template <class Visit>
bool nbForEachEnteredChild(const osg::NodePtr& node, Visit visit)
{
    const osg::UInt32 count = node->getNChildren();
    osg::UInt32 first = 0;
    osg::UInt32 end = count;
    if (const osg::SwitchPtr chooser = osg::SwitchPtr::dcast(node->getCore());
        chooser != osg::NullFC) {
        const osg::Int32 choice = chooser->getChoice();
        if (choice != osg::Switch::ALL) {
            const bool isChild = choice >= 0 && static_cast<osg::UInt32>(choice) < count;
            first = isChild ? static_cast<osg::UInt32>(choice) : 0;
            end = isChild ? first + 1 : 0;
        }
    }
    for (osg::UInt32 i = first; i < end; ++i) {
        if (!visit(node->getChild(i))) {
            return false;
        }
    }
    return true;
}
