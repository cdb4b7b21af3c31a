// SPDX-License-Identifier: MIT
#pragma once

#include <nbSceneplateModule/nbSceneplateUndo.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGVector.h>

#include <vector>

class nbMessage;

/// What "sceneplateChanged" asks for: a change of the selected plates as one, absolute from the
/// start of the drag.
struct NB_PLATFORM_API nbSceneplateChange
{
    float scaleFactor = 1.0F;  ///< > 0, about the centre of the frame around the plates
    osg::Vec2f offset { 0.0F, 0.0F };  ///< heights of the view, y up
    float rotation = 0.0F;  ///< degrees, counter-clockwise on screen, about that centre
    /// Of each plate's width and height along its own axes, > 0; in no message.
    osg::Vec2f sizeFactors { 1.0F, 1.0F };

    /// Reads "scaleFactor" (float), "offset" (QVector2D) and "rotation" (float); what is missing
    /// changes nothing.
    /// @return false, and one line in the log, for a value of another type, one that is not finite,
    /// and a factor that is not above 0
    static bool read(const nbMessage& message, nbSceneplateChange& change);

    bool isNone() const;
    bool isScaling() const;

    /// What a person calls it, for a step of undo.
    const char* getTitle() const;
};

/// Plates as they were when a change began, with the frame around them.
class NB_PLATFORM_API nbSceneplateStart
{
public:
    nbSceneplateStart() = default;

    /// Keeps the present state of plates.
    /// @param widthPx, heightPx  the view that the person looks at, which the frame depends on;
    /// without area: a square one
    nbSceneplateStart(const std::vector<osg::NodePtr>& plates, int widthPx, int heightPx);

    /// Whether it was made for the same plates in the same order.
    bool isOf(const std::vector<osg::NodePtr>& plates) const;

    /// Gives the plates that still exist the values that the change makes of those at the start.
    /// Where the result would not be finite nothing happens to any of them.
    /// @return whether a value has changed
    bool apply(const nbSceneplateChange& change) const;

private:
    struct Plate
    {
        osg::UInt32 nodeId = 0;
        osg::Vec2f position;
        osg::Vec2f size;
        float scale = 1.0F;
        float rotation = 0.0F;
        /// From the centre of the frame to the plate's, heights of the view, y up.
        osg::Vec2f arm;
    };

    static Plate changed(const Plate& start, const nbSceneplateChange& change);
    static bool write(const Plate& target);

    std::vector<Plate> starts;
};
