// SPDX-License-Identifier: MIT
#pragma once

/// Hears the messages that pause the preview of materials, of which there may be several hearers
/// though a message has one receiver. The receivers are registered with the first hearer and
/// removed with the last; a new hearer registers them again should they be gone.
class PreviewMessages
{
public:
    PreviewMessages();
    virtual ~PreviewMessages();

    PreviewMessages(const PreviewMessages&) = delete;
    PreviewMessages& operator=(const PreviewMessages&) = delete;

    /// "setMatRenderEnabled" with its attribute. One without it is logged and not told.
    virtual void previewEnabled(bool enabled) = 0;

    /// "updateMatRender".
    virtual void previewUpdateWanted() { }
};
