// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGSceneplate/Sceneplate.h>

#include <QColor>
#include <QJsonValue>
#include <QString>

#include <array>
#include <functional>
#include <optional>
#include <vector>

namespace viewer {

class JsonInput;

/// One property of a plate as commands name it.
struct PlateField
{
    const char* name;  ///< behind "plates."
    const char* title;  ///< of the step of undo
    const char* expected;  ///< what a value has to be
    /// Whether a value is one; with a plate, also sets it.
    std::function<bool(const QJsonValue& value, osg::Sceneplate* plate)> accept;
    std::function<QJsonValue(const osg::Sceneplate& plate)> read;
};

/// All that are set by themselves, in the order of a panel; name and anchor are not among them.
const std::vector<PlateField>& plateFields();

/// Words for the places of the view, by Sceneplate::AnchorPlace.
constexpr std::array<const char*, 9> kAnchorNames { "bottomLeft", "bottom", "bottomRight",
                                                    "left",       "centre", "right",
                                                    "topLeft",    "top",    "topRight" };

/// Word for a place of the view, such as "topLeft"; "centre" for an unknown one.
QString anchorName(osg::Int32 anchor);
/// @return nothing for an unknown word
std::optional<osg::Int32> anchorFromName(const QString& name);

/// Reads two finite numbers. @return false, vector untouched, if it is something else
bool readPair(const QJsonValue& value, osg::Vec2f& pair);

/// "#rrggbb" or "#aarrggbb" or the name of a colour.
bool readJson(JsonInput& in, const QJsonValue& json, const QString& path, QColor& color);
QColor colorOf(const osg::Color4f& color);
osg::Color4f colorOf(const QColor& color);

}  // namespace viewer
