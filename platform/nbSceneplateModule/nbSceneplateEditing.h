// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGSceneplate/Sceneplate.h>
#include <nbUtils/nbFunctionRef.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGVector.h>

#include <functional>
#include <string>
#include <vector>

/// Edits of scene plates as a person makes them, each a step of undo with a title (within a group
/// or scope of nbUndoService a part of that). Nodes that are no plates are passed over. What
/// changes something marks the scene as modified.
class NB_PLATFORM_API nbSceneplateEditing
{
public:
    nbSceneplateEditing() = delete;

    /// The plates below nbScenegraph::getSceneplateRoot(), hidden ones too, as they lie on each
    /// other: the foremost first, those in front of the scene before those behind.
    static std::vector<osg::NodePtr> getStack();

    /// Hangs a plate into the scene, before all others of its side (in front of or behind the
    /// scene).
    /// @param node  with a Sceneplate core and no parent; the scene holds it from then on
    /// @return false for null and for a node that is no plate
    static bool add(const osg::NodePtr& node);

    /// Takes plates out of the scene.
    /// @return how many
    static std::size_t remove(const std::vector<osg::NodePtr>& nodes);

    /// Edits plates.
    /// @param title  of the step, as shown to a person
    /// @param edit   called for each plate within an edit of all its fields
    static void edit(const std::vector<osg::NodePtr>& nodes, const char* title,
                     nbFunctionRef<void(osg::Sceneplate&)> edit);

    static void rename(const osg::NodePtr& node, const std::string& name);

    /// Changes the anchor and keeps the plates where they are in a view of this size.
    static void setAnchor(const std::vector<osg::NodePtr>& nodes, osg::Int32 anchor, int widthPx,
                          int heightPx);

    /// Moves plates one place forward (steps 1) or backward (-1) among those of their side, as a
    /// block if they lie next to each other; numbers the side anew, the rearmost 0.
    /// @return false, without a step, if none of them can move
    static bool restack(const std::vector<osg::NodePtr>& nodes, int steps);

    // == Arranging: by the upright boxes around plates as they are drawn in a view

    /// What of a box is brought in line.
    enum class Side : int
    {
        Low = -1,  ///< left or top
        Middle = 0,
        High = 1  ///< right or bottom
    };

    /// Brings plates in line with that side of the box around all of them; one plate alone with
    /// that side of the view. @param axis  0 across, 1 down
    static void align(const std::vector<osg::NodePtr>& nodes, osg::UInt32 axis, Side side,
                      int widthPx, int heightPx);

    /// Makes the gaps between neighbours along an axis equal; the outermost plates stay.
    /// @return false for fewer than three plates
    static bool distribute(const std::vector<osg::NodePtr>& nodes, osg::UInt32 axis, int widthPx,
                           int heightPx);

    /// Moves plates by device pixels, y down.
    static void move(const std::vector<osg::NodePtr>& nodes, const osg::Vec2f& wayPx, int heightPx);

    /// Hangs copies of plates into the scene, in front of all others, a little below and right of
    /// the originals. @param nameOf  called with the name of an original for that of its copy
    /// @return the copies, in the order of the plates
    static std::vector<osg::NodePtr>
    duplicate(const std::vector<osg::NodePtr>& nodes,
              const std::function<std::string(const std::string&)>& nameOf);
};
