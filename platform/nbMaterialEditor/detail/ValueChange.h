// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGUberMaterial/nbTextureValues.h>
#include <nbUtils/nbMessage.h>

#include <string>

/// What the messages of the manipulators of other than planar projections ask for. All values in
/// them are absolute; a scale is the reciprocal of a repeat. Attributes that a message does not
/// know are passed over.
namespace nbValueChange {

/// Reads a message and carries it out.
/// @param message  of one kind of manipulator
/// @param start    values when the drag began: a scale that was theirs gives their very repeat
/// @param values   changed by what the message has; undefined on failure
/// @param reason   receives what is wrong with a message
/// @return false if an attribute has a wrong type or a value that is not finite or, for a scale,
/// without a finite reciprocal, or if there is none of them
using Read = bool (*)(const nbMessage& message, const nbTextureValues& start,
                      nbTextureValues& values, std::string& reason);

/// "XOffset", "YOffset", "ZOffset", "XScale", "YScale", "ZScale" (Vec2f), "rotate" (Vec3f).
bool readTriplanar(const nbMessage& message, const nbTextureValues& start, nbTextureValues& values,
                   std::string& reason);

/// "offset", "scale" (Vec2f), "rotate" (float).
bool readUv(const nbMessage& message, const nbTextureValues& start, nbTextureValues& values,
            std::string& reason);

/// "center" (Vec3f), "ScaleHeight", "ScaleRadius", "ScaleU" (float), "autoParameter" (bool).
bool readTire(const nbMessage& message, const nbTextureValues& start, nbTextureValues& values,
              std::string& reason);

}  // namespace nbValueChange
