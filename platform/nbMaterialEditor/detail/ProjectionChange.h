// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGUtils/nbTransformState.h>
#include <nbUtils/nbMessage.h>

#include <OpenSG/OSGVector.h>

#include <optional>
#include <string>

/// What a message "::changedPlanarManipulator" asks for. Lengths are in the object's space, totals
/// since the drag's start.
struct ProjectionChange
{
    std::optional<osg::Vec3f> transVec;  ///< displacement of the centre
    std::optional<osg::Vec2f> offset;  ///< the same within the projection's plane
    std::optional<float> rotate;  ///< radians; the projection turns by minus this
    std::optional<osg::Vec3f> scale;  ///< absolute
    bool clamping = false;  ///< the Z extent is switched on

    /// Reads a message. Attributes that the change does not know are passed over.
    /// @param reason  receives what is wrong with a message that cannot be read
    /// @return nothing if an attribute has a wrong type or a value that is not finite, or if there
    /// is none of them
    static std::optional<ProjectionChange> read(const nbMessage& message, std::string& reason);

    /// The projection after the change.
    /// @param start    as it was when the drag began
    /// @param present  as it is: what the change does not mention stays so
    nbTransformState applyTo(const nbTransformState& start, const nbTransformState& present) const;
};
