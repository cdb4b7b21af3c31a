// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <cstddef>
#include <functional>
#include <memory>

/// Receives "setMatRenderEnabled" and "updateMatRender" for a preview of a material that would be
/// too slow, or flicker, while a manipulator changes the material.
///
/// "setMatRenderEnabled" (attribute "enabled", bool) pauses and resumes: the last one holds,
/// however many there were, since manipulators pause both when they get an object and when a drag
/// starts. "updateMatRender" refreshes: at once, or while paused when it is resumed. An attribute
/// of another type is logged and changes nothing. Belongs to the user-interface thread.
class NB_PLATFORM_API nbMaterialPreview
{
public:
    nbMaterialPreview();
    ~nbMaterialPreview();

    nbMaterialPreview(const nbMaterialPreview&) = delete;
    nbMaterialPreview& operator=(const nbMaterialPreview&) = delete;

    /// Draws the preview anew. Called with every refresh; nothing at the start.
    void setRefreshCallback(std::function<void()> callback);

    /// Refreshes as "updateMatRender" does, for changes that come by other ways.
    void refresh();

    bool isPaused() const;

    // Numbers since construction, by which a host sees that pauses are ended.
    std::size_t getResumeCount() const;  ///< messages with "enabled" true
    std::size_t getRefreshCount() const;  ///< refreshes that were carried out

private:
    struct Impl;
    std::unique_ptr<Impl> impl;
};
