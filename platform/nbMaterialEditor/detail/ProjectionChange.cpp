// SPDX-License-Identifier: MIT
#include "ProjectionChange.h"

#include <nbMaterialEditor/detail/AttributeReader.h>
#include <nbMaterialEditor/detail/ProjectionPlacing.h>

std::optional<ProjectionChange> ProjectionChange::read(const nbMessage& message,
                                                       std::string& reason)
{
    ProjectionChange change;
    std::optional<bool> clamping;
    reason.clear();
    AttributeReader reader(message, reason);
    reader.read("transVec", change.transVec);
    reader.read("offset", change.offset);
    reader.read("rotate", change.rotate);
    reader.read("scale", change.scale);
    reader.read("clamping", clamping);
    if (!reader.isGood()) {
        return std::nullopt;
    }
    change.clamping = clamping.value_or(false);
    return change;
}

nbTransformState ProjectionChange::applyTo(const nbTransformState& start,
                                           const nbTransformState& present) const
{
    nbTransformState result = present;
    if (transVec) {
        result.translation = start.translation + *transVec;
    } else if (offset) {
        result.translation =
            start.translation + turned(start, osg::Vec3f(offset->x(), offset->y(), 0.0F));
    }
    if (rotate) {
        // Deliberate: the sender's angle runs opposite to the projection's.
        turnAboutOwnZ(start, -*rotate, result);
    }
    if (scale) {
        result.scale = *scale;
    }
    return result;
}
