// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <string>

/// Editor object of the host that mirrors the settings of one component of a material, such as a
/// panel that shows them. Manipulators keep a pointer to it for the host; nobody but the host owns
/// it.
class NB_PLATFORM_API nbStateChunkBase
{
public:
    nbStateChunkBase() = default;
    virtual ~nbStateChunkBase();

    nbStateChunkBase(const nbStateChunkBase&) = delete;
    nbStateChunkBase& operator=(const nbStateChunkBase&) = delete;

    /// Called after an editor changed values of a component, for a manipulator or otherwise; undo
    /// and redo are not told. Does nothing here.
    virtual void componentChanged(const std::string& component);
};
