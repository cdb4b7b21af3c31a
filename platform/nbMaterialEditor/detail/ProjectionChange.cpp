// SPDX-License-Identifier: MIT
#include "ProjectionChange.h"

#include <nbMaterialEditor/detail/ProjectionPlacing.h>

#include <algorithm>
#include <cmath>

namespace {

bool isFinite(float value)
{
    return std::isfinite(value);
}

bool isFinite(bool)
{
    return true;
}

template <class Vector>
bool isFinite(const Vector& value)
{
    const auto* const values = value.getValues();
    return std::all_of(values, values + sizeof(Vector) / sizeof(*values),
                       [](float v) { return std::isfinite(v); });
}

/// Reads the attributes of one message until one of them is wrong.
class Reader
{
public:
    Reader(const nbMessage& read, std::string& wrong)
        : message(read)
        , reason(wrong)
    { }

    template <class Value>
    void read(const char* name, std::optional<Value>& target)
    {
        const boost::any* const stored = message.find(name);
        if (stored == nullptr) {
            return;
        }
        const Value* const value = boost::any_cast<Value>(stored);
        if (value == nullptr) {
            reason = std::string("the attribute '") + name + "' has a wrong type";
        } else if (!isFinite(*value)) {
            reason = std::string("the attribute '") + name + "' is not finite";
        } else {
            target = *value;
            ++count;
        }
    }

    bool isGood()
    {
        if (reason.empty() && count == 0) {
            reason = "no attribute says what has changed";
        }
        return reason.empty();
    }

private:
    const nbMessage& message;
    std::string& reason;
    int count = 0;
};

}  // namespace

std::optional<ProjectionChange> ProjectionChange::read(const nbMessage& message,
                                                       std::string& reason)
{
    ProjectionChange change;
    std::optional<bool> clamping;
    reason.clear();
    Reader reader(message, reason);
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
            start.translation + turned(start, osg::Vec3f(offset->x(), offset->y(), 0.f));
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
