// SPDX-License-Identifier: MIT
/// @file
/// A quick answer to "may anything have changed?", on both scene graphs.
#pragma once

#include <ChangeCount.h>

namespace osg {
namespace glue {

/// Equal stamps mean that no edit ended between them.
inline UInt64 editStamp()
{
    return getEditCount();
}

/// How many edits have placed handles for one of several views alone; one number a process.
__attribute__((visibility("default"))) inline UInt64 editsForOneView = 0;

/// Equal stamps mean that between them no edit ended that all views show.
inline UInt64 viewStamp()
{
    return editStamp() - editsForOneView;
}

/// From construction to destruction handles are placed for one of several views, which is no reason
/// to draw another one.
class EditsForOneView
{
public:
    /// @param on  otherwise they count as usual
    explicit EditsForOneView(bool on)
        : isOn(on)
    { }

    EditsForOneView(const EditsForOneView&) = delete;
    EditsForOneView& operator=(const EditsForOneView&) = delete;

    ~EditsForOneView()
    {
        if (isOn) {
            editsForOneView += editStamp() - start;
        }
    }

private:
    bool isOn;
    UInt64 start = editStamp();
};

}  // namespace glue
}  // namespace osg
