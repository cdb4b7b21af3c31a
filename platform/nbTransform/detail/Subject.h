// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernelServices/nbTransformTable.h>
#include <nbUtils/nbLog.h>

#include <OpenSG/OSGNode.h>

#include <string>

namespace nbtransform {

/// One target in the middle of its edit.
struct Subject
{
    osg::NodePtr node;
    osg::Transform3DPtr core;
    /// Null if nothing is recorded.
    nbTransformEntry* entry;
};

/// What kept targets of a call from their values.
struct Faults
{
    osg::UInt32 notFinite = 0;
    osg::UInt32 flattened = 0;

    void log(const char* what) const
    {
        if (notFinite > 0) {
            write(what, notFinite, "a value that is not finite or leads to such a one");
        }
        if (flattened > 0) {
            write(what, flattened, "a parent that is flattened to a scale of 0");
        }
    }

private:
    static void write(const char* what, osg::UInt32 count, const char* why)
    {
        nbLog::warning("nbTransformModel: \"" + std::string(what) + "\" left " +
                       std::to_string(count) + " node(s) as they are, because of " + why);
    }
};

}  // namespace nbtransform
