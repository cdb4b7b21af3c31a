// SPDX-License-Identifier: MIT
#include "viewer/plates/PlateField.h"

#include <QJsonArray>

#include <cmath>

namespace viewer {
namespace {

using osg::Sceneplate;

/// Larger numbers are no plates that a person could see.
constexpr double kMost = 1000.0;
constexpr double kThousand = 1000.0;

bool isNumber(const QJsonValue& value, double least)
{
    return value.isDouble() && value.toDouble() >= least && value.toDouble() <= kMost;
}

bool acceptPair(const QJsonValue& value, double least, osg::Vec2f& pair)
{
    return readPair(value, pair) && static_cast<double>(pair.x()) >= least &&
        static_cast<double>(pair.y()) >= least && static_cast<double>(pair.x()) <= kMost &&
        static_cast<double>(pair.y()) <= kMost;
}

QJsonArray pairOf(const osg::Vec2f& pair)
{
    return { static_cast<double>(pair.x()), static_cast<double>(pair.y()) };
}

template <class Type>
using Setter = void (Sceneplate::*)(const Type&);
template <class Type>
using Getter = const Type& (Sceneplate::*)() const;

template <Setter<bool> set, Getter<bool> get>
PlateField switchField(const char* name, const char* title)
{
    return { name, title, "expected true or false",
             [](const QJsonValue& value, Sceneplate* plate) {
                 if (plate != nullptr) {
                     (plate->*set)(value.toBool());
                 }
                 return value.isBool();
             },
             [](const Sceneplate& plate) { return QJsonValue((plate.*get)()); } };
}

/// @param least  in thousandths
template <Setter<osg::Real32> set, Getter<osg::Real32> get, int least>
PlateField numberField(const char* name, const char* title, const char* expected)
{
    return { name, title, expected,
             [](const QJsonValue& value, Sceneplate* plate) {
                 if (plate != nullptr) {
                     (plate->*set)(static_cast<float>(value.toDouble()));
                 }
                 return isNumber(value, least / kThousand);
             },
             [](const Sceneplate& plate) {
                 return QJsonValue(static_cast<double>((plate.*get)()));
             } };
}

template <Setter<osg::Vec2f> set, Getter<osg::Vec2f> get, int least>
PlateField pairField(const char* name, const char* title, const char* expected)
{
    return { name, title, expected,
             [](const QJsonValue& value, Sceneplate* plate) {
                 osg::Vec2f pair;
                 const bool isPair = acceptPair(value, least / kThousand, pair);
                 if (plate != nullptr) {
                     (plate->*set)(pair);
                 }
                 return isPair;
             },
             [](const Sceneplate& plate) { return QJsonValue(pairOf((plate.*get)())); } };
}

/// In thousandths; what is smaller cannot be grabbed any more.
constexpr int kLeastSize = 1;
constexpr int kNoLeast = -1000000;

const std::vector<PlateField> kFields {
    switchField<&Sceneplate::setFront, &Sceneplate::getFront>(
        "front", QT_TRANSLATE_NOOP("Manipulator", "Scene plates to the front or back")),
    switchField<&Sceneplate::setVisible, &Sceneplate::getVisible>(
        "visible", QT_TRANSLATE_NOOP("Manipulator", "Show or hide scene plates")),
    { "opacity", QT_TRANSLATE_NOOP("Manipulator", "Opacity of scene plates"),
      "expected a number from 0 to 1",
      [](const QJsonValue& value, Sceneplate* plate) {
          if (plate != nullptr) {
              plate->setOpacity(static_cast<float>(value.toDouble()));
          }
          return isNumber(value, 0.0) && value.toDouble() <= 1.0;
      },
      [](const Sceneplate& plate) { return QJsonValue(static_cast<double>(plate.getOpacity())); } },
    pairField<&Sceneplate::setPosition, &Sceneplate::getPosition, kNoLeast>(
        "position", QT_TRANSLATE_NOOP("Manipulator", "Move scene plates"),
        "expected an array of two numbers"),
    pairField<&Sceneplate::setSize, &Sceneplate::getSize, kLeastSize>(
        "size", QT_TRANSLATE_NOOP("Manipulator", "Size of scene plates"),
        "expected an array of two numbers, at least 0.001"),
    numberField<&Sceneplate::setScale, &Sceneplate::getScale, kLeastSize>(
        "scale", QT_TRANSLATE_NOOP("Manipulator", "Scale scene plates"),
        "expected a number of at least 0.001"),
    numberField<&Sceneplate::setRotation, &Sceneplate::getRotation, kNoLeast>(
        "rotation", QT_TRANSLATE_NOOP("Manipulator", "Turn scene plates"),
        "expected a number of degrees"),
    { "color", QT_TRANSLATE_NOOP("Manipulator", "Colour of scene plates"),
      "expected a colour such as \"#ff8000\"",
      [](const QJsonValue& value, Sceneplate* plate) {
          const std::optional<osg::Color4f> color = readPlateColor(value);
          if (plate != nullptr && color) {
              plate->setColor(*color);
          }
          return color.has_value();
      },
      [](const Sceneplate& plate) {
          return QJsonValue(colorOf(plate.getColor()).name(QColor::HexArgb));
      } },
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
    for (std::size_t i = 0; i < kAnchorNames.size(); ++i) {
        if (name == QLatin1String(kAnchorNames.at(i))) {
            return static_cast<osg::Int32>(i);
        }
    }
    return std::nullopt;
}

bool readPair(const QJsonValue& value, osg::Vec2f& pair)
{
    const QJsonArray array = value.toArray();
    if (array.size() != 2 || !array.at(0).isDouble() || !array.at(1).isDouble()) {
        return false;
    }
    const osg::Vec2f found(static_cast<float>(array.at(0).toDouble()),
                           static_cast<float>(array.at(1).toDouble()));
    if (!std::isfinite(found.x()) || !std::isfinite(found.y())) {
        return false;
    }
    pair = found;
    return true;
}

std::optional<osg::Color4f> readPlateColor(const QJsonValue& value)
{
    const QColor color(value.toString());
    if (!color.isValid()) {
        return std::nullopt;
    }
    return osg::Color4f(static_cast<float>(color.redF()), static_cast<float>(color.greenF()),
                        static_cast<float>(color.blueF()), static_cast<float>(color.alphaF()));
}

QColor colorOf(const osg::Color4f& color)
{
    const auto bounded = [](float part) { return qBound(0.0, static_cast<double>(part), 1.0); };
    return QColor::fromRgbF(bounded(color.red()), bounded(color.green()), bounded(color.blue()),
                            bounded(color.alpha()));
}

}  // namespace viewer
