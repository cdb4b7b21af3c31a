// SPDX-License-Identifier: MIT
#pragma once

#include <nbInteraction/SelectionTool.h>

#include <OpenSG/OSGNode.h>

namespace viewer {

/// Selects by click or by a rectangle, which takes what lies in it as a whole, and knows which
/// object lies under the resting pointer, while the scene graph allows preselection.
class PreselectionTool : public nbec::interaction::SelectionTool
{
public:
    bool hoverTool(nbec::interaction::ToolInteractionContext* context,
                   const std::string& hint) override;
    bool stopHoverTool(nbec::interaction::ToolInteractionContext* context,
                       const std::string& hint) override;

    /// A drag that begins beside every object draws a rectangle.
    bool startTool(nbec::interaction::ToolInteractionContext* context,
                   const std::string& hint) override;
    bool processTool(nbec::interaction::ToolInteractionContext* context,
                     const std::string& hint) override;
    bool stopTool(nbec::interaction::ToolInteractionContext* context,
                  const std::string& hint) override;

    /// The object under the pointer; null if there is none, if it is gone, or while preselection is
    /// off.
    osg::NodePtr getPreselected() const;

private:
    void preselect(const osg::NodePtr& object);

    osg::UInt32 preselectedId = 0;
    bool isBesideAll = false;  ///< the press
};

}  // namespace viewer
