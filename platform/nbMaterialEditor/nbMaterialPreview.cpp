// SPDX-License-Identifier: MIT
#include "nbMaterialPreview.h"

#include <nbMaterialEditor/detail/PreviewMessages.h>
#include <nbUtils/nbGuard.h>

#include <utility>

struct nbMaterialPreview::Impl final : public PreviewMessages
{
    std::function<void()> callback;
    bool paused = false;
    bool refreshOwed = false;
    std::size_t resumes = 0;
    std::size_t refreshes = 0;

    void previewEnabled(bool enabled) override
    {
        resumes += enabled ? 1 : 0;
        paused = !enabled;
        if (enabled && std::exchange(refreshOwed, false)) {
            refresh();
        }
    }

    void previewUpdateWanted() override { refresh(); }

    void refresh()
    {
        if (paused) {
            refreshOwed = true;
            return;
        }
        ++refreshes;
        if (callback) {
            nbGuarded("nbMaterialPreview: the refresh callback", callback);
        }
    }
};

nbMaterialPreview::nbMaterialPreview()
    : impl(std::make_unique<Impl>())
{ }

nbMaterialPreview::~nbMaterialPreview() = default;

void nbMaterialPreview::setRefreshCallback(std::function<void()> callback)
{
    impl->callback = std::move(callback);
}

void nbMaterialPreview::refresh()
{
    impl->refresh();
}

bool nbMaterialPreview::isPaused() const
{
    return impl->paused;
}

std::size_t nbMaterialPreview::getResumeCount() const
{
    return impl->resumes;
}

std::size_t nbMaterialPreview::getRefreshCount() const
{
    return impl->refreshes;
}
