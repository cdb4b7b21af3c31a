// SPDX-License-Identifier: MIT
#include "viewer/plates/PlateField.h"

#include <QJsonArray>

#include <cmath>

namespace viewer {
namespace {

using osg::Sceneplate;

/// Larger numbers are no plates that a person could see.
constexpr double kMost = 1000.0;

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

/// Sizes below this cannot be grabbed any more.
constexpr double kLeastSize = 1e-3;

const char* const kPairExpected = "expected an array of two numbers";
const char* const kSwitchExpected = "expected true or false";

const std::vector<PlateField> kFields {
    { "front", QT_TRANSLATE_NOOP("Manipulator", "Scene plates to the front or back"),
      kSwitchExpected,
      [](const QJsonValue& value, Sceneplate* plate) {
          if (plate != nullptr) {
              plate->setFront(value.toBool());
          }
          return value.isBool();
      },
      [](const Sceneplate& plate) { return QJsonValue(plate.getFront()); } },
    { "visible", QT_TRANSLATE_NOOP("Manipulator", "Show or hide scene plates"), kSwitchExpected,
      [](const QJsonValue& value, Sceneplate* plate) {
          if (plate != nullptr) {
              plate->setVisible(value.toBool());
          }
          return value.isBool();
      },
      [](const Sceneplate& plate) { return QJsonValue(plate.getVisible()); } },
    { "opacity", QT_TRANSLATE_NOOP("Manipulator", "Opacity of scene plates"),
      "expected a number from 0 to 1",
      [](const QJsonValue& value, Sceneplate* plate) {
          if (plate != nullptr) {
              plate->setOpacity(static_cast<float>(value.toDouble()));
          }
          return isNumber(value, 0.0) && value.toDouble() <= 1.0;
      },
      [](const Sceneplate& plate) { return QJsonValue(static_cast<double>(plate.getOpacity())); } },
    { "position", QT_TRANSLATE_NOOP("Manipulator", "Move scene plates"), kPairExpected,
      [](const QJsonValue& value, Sceneplate* plate) {
          osg::Vec2f pair;
          const bool isPair = acceptPair(value, -kMost, pair);
          if (plate != nullptr) {
              plate->setPosition(pair);
          }
          return isPair;
      },
      [](const Sceneplate& plate) { return QJsonValue(pairOf(plate.getPosition())); } },
    { "size", QT_TRANSLATE_NOOP("Manipulator", "Size of scene plates"),
      "expected an array of two numbers, at least 0.001",
      [](const QJsonValue& value, Sceneplate* plate) {
          osg::Vec2f pair;
          const bool isPair = acceptPair(value, kLeastSize, pair);
          if (plate != nullptr) {
              plate->setSize(pair);
          }
          return isPair;
      },
      [](const Sceneplate& plate) { return QJsonValue(pairOf(plate.getSize())); } },
    { "scale", QT_TRANSLATE_NOOP("Manipulator", "Scale scene plates"),
      "expected a number of at least 0.001",
      [](const QJsonValue& value, Sceneplate* plate) {
          if (plate != nullptr) {
              plate->setScale(static_cast<float>(value.toDouble()));
          }
          return isNumber(value, kLeastSize);
      },
      [](const Sceneplate& plate) { return QJsonValue(static_cast<double>(plate.getScale())); } },
    { "rotation", QT_TRANSLATE_NOOP("Manipulator", "Turn scene plates"),
      "expected a number of degrees",
      [](const QJsonValue& value, Sceneplate* plate) {
          if (plate != nullptr) {
              plate->setRotation(static_cast<float>(value.toDouble()));
          }
          return isNumber(value, -kMost);
      },
      [](const Sceneplate& plate) {
          return QJsonValue(static_cast<double>(plate.getRotation()));
      } },
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
