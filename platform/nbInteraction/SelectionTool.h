// SPDX-License-Identifier: MIT
#pragma once

#include <nbInteraction/AbstractInteractionTool.h>

#include <OpenSG/OSGVector.h>

namespace nbec::interaction {

/// Selects the scene node under the pointer by a click.
///
/// A click is a press and a release at most a few pixels apart. The hint of the press says what
/// becomes of the current selection (nbSelection): "select" and "selectThrough" replace it, beside
/// every object they clear it; "add" adds the node, "toggle" adds or takes it out, and both leave
/// the selection alone beside every object. A drag, and a press that was interrupted or cancelled,
/// select nothing. Other hints are refused.
class NB_PLATFORM_API SelectionTool : public AbstractInteractionTool
{
public:
    /// Largest distance of press and release of a click, logical pixels.
    static constexpr float kClickTolerance = 4.0F;

    bool startTool(ToolInteractionContext* context, const std::string& hint) override;

    bool processTool(ToolInteractionContext* /*context*/, const std::string& /*hint*/) override
    {
        return pressed;
    }

    bool stopTool(ToolInteractionContext* context, const std::string& hint) override;

    /// The tool picks by itself, once per click. @return false
    bool isPickHint(const std::string& /*hint*/) const override { return false; }

private:
    bool isClick(const osg::Pnt2f& releasePx) const;

    osg::Pnt2f pressPx { 0.0F, 0.0F };
    bool pressed = false;
};

}  // namespace nbec::interaction
