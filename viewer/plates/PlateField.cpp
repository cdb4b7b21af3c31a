// SPDX-License-Identifier: MIT
#include "viewer/plates/PlateField.h"

#include "viewer/commands/JsonInput.h"

#include <QJsonArray>

#include <algorithm>
#include <cmath>

namespace viewer {
namespace {

using osg::Sceneplate;

/// Larger numbers are no plates that a person could see.
constexpr double kMost = 1000.0;

constexpr double kNoLeast = -kMost;
/// What is smaller cannot be grabbed any more.
constexpr double kLeastSize = 0.001;

std::optional<bool> readSwitch(const QJsonValue& value)
{
    return value.isBool() ? std::make_optional(value.toBool()) : std::nullopt;
}

std::optional<osg::Color4f> readColor(const QJsonValue& value)
{
    const QColor color(value.toString());
    return color.isValid() ? std::make_optional(colorOf(color)) : std::nullopt;
}

auto numberReader(double least, double most = kMost)
{
    return [least, most](const QJsonValue& value) {
        const double number = value.toDouble(NAN);
        return number >= least && number <= most ? std::make_optional(static_cast<float>(number))
                                                 : std::nullopt;
    };
}

auto pairReader(double least)
{
    return [least](const QJsonValue& value) {
        osg::Vec2f pair;
        const bool isPair = readPair(value, pair) && std::min(pair.x(), pair.y()) >= least &&
            std::max(pair.x(), pair.y()) <= kMost;
        return isPair ? std::make_optional(pair) : std::nullopt;
    };
}

QJsonValue jsonOf(bool on)
{
    return on;
}

QJsonValue jsonOf(float number)
{
    return number;
}

QJsonValue jsonOf(const osg::Vec2f& pair)
{
    return QJsonArray { pair.x(), pair.y() };
}

QJsonValue jsonOf(const osg::Color4f& color)
{
    return colorOf(color).name(QColor::HexArgb);
}

/// @param readValue  std::optional<Type> (const QJsonValue&)
template <class Type, class ReadValue>
PlateField field(const char* name, const char* title, const char* expected,
                 void (Sceneplate::*set)(const Type&), const Type& (Sceneplate::*get)() const,
                 ReadValue readValue)
{
    return { name, title, expected,
             [=](const QJsonValue& value, Sceneplate* plate) {
                 const std::optional<Type> found = readValue(value);
                 if (plate != nullptr && found) {
                     (plate->*set)(*found);
                 }
                 return found.has_value();
             },
             [get](const Sceneplate& plate) { return jsonOf((plate.*get)()); } };
}

const std::vector<PlateField> kFields {
    field("front", QT_TRANSLATE_NOOP("Manipulator", "Scene plates to the front or back"),
          "expected true or false", &Sceneplate::setFront, &Sceneplate::getFront, &readSwitch),
    field("visible", QT_TRANSLATE_NOOP("Manipulator", "Show or hide scene plates"),
          "expected true or false", &Sceneplate::setVisible, &Sceneplate::getVisible, &readSwitch),
    field("opacity", QT_TRANSLATE_NOOP("Manipulator", "Opacity of scene plates"),
          "expected a number from 0 to 1", &Sceneplate::setOpacity, &Sceneplate::getOpacity,
          numberReader(0.0, 1.0)),
    field("position", QT_TRANSLATE_NOOP("Manipulator", "Move scene plates"),
          "expected an array of two numbers", &Sceneplate::setPosition, &Sceneplate::getPosition,
          pairReader(kNoLeast)),
    field("size", QT_TRANSLATE_NOOP("Manipulator", "Size of scene plates"),
          "expected an array of two numbers, at least 0.001", &Sceneplate::setSize,
          &Sceneplate::getSize, pairReader(kLeastSize)),
    field("scale", QT_TRANSLATE_NOOP("Manipulator", "Scale scene plates"),
          "expected a number of at least 0.001", &Sceneplate::setScale, &Sceneplate::getScale,
          numberReader(kLeastSize)),
    field("rotation", QT_TRANSLATE_NOOP("Manipulator", "Turn scene plates"),
          "expected a number of degrees", &Sceneplate::setRotation, &Sceneplate::getRotation,
          numberReader(kNoLeast)),
    field("color", QT_TRANSLATE_NOOP("Manipulator", "Colour of scene plates"),
          "expected a colour such as \"#ff8000\"", &Sceneplate::setColor, &Sceneplate::getColor,
          &readColor),
};

}  // namespace

const std::vector<PlateField>& plateFields()
{
    return kFields;
}

QString anchorName(osg::Int32 anchor)
{
    const bool isKnown = anchor >= 0 && anchor < static_cast<osg::Int32>(kAnchorNames.size());
    const osg::Int32 place = isKnown ? anchor : osg::Int32(Sceneplate::Centre);
    return QLatin1String(kAnchorNames.at(static_cast<std::size_t>(place)));
}

std::optional<osg::Int32> anchorFromName(const QString& name)
{
    const auto found = std::find(kAnchorNames.begin(), kAnchorNames.end(), name);
    return found == kAnchorNames.end()
        ? std::nullopt
        : std::make_optional(static_cast<osg::Int32>(found - kAnchorNames.begin()));
}

bool readPair(const QJsonValue& value, osg::Vec2f& pair)
{
    const QJsonArray array = value.toArray();
    if (array.size() != 2 || !array.at(0).isDouble() || !array.at(1).isDouble()) {
        return false;
    }
    const osg::Vec2f found(static_cast<float>(array.at(0).toDouble()),
                           static_cast<float>(array.at(1).toDouble()));
    const bool isFinite = std::isfinite(found.x()) && std::isfinite(found.y());
    pair = isFinite ? found : pair;
    return isFinite;
}

bool readJson(JsonInput& in, const QJsonValue& json, const QString& path, QColor& color)
{
    color = QColor(json.toString());
    return color.isValid() || in.fail(path, "unknown colour");
}

osg::Color4f colorOf(const QColor& color)
{
    return { static_cast<float>(color.redF()), static_cast<float>(color.greenF()),
             static_cast<float>(color.blueF()), static_cast<float>(color.alphaF()) };
}

QColor colorOf(const osg::Color4f& color)
{
    const auto bounded = [](float part) { return qBound(0.0, double(part), 1.0); };
    return QColor::fromRgbF(bounded(color.red()), bounded(color.green()), bounded(color.blue()),
                            bounded(color.alpha()));
}

}  // namespace viewer
