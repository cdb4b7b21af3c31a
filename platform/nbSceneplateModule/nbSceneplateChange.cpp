// SPDX-License-Identifier: MIT
#include "nbSceneplateChange.h"

#include <nbOpenSGExt/nbContainerId.h>
#include <nbOpenSGExt/nbIsFinite.h>
#include <nbOpenSGExt/nbSameBits.h>
#include <nbOpenSGSceneplate/nbSceneplateLayout.h>
#include <nbOpenSGSceneplate/nbSceneplateList.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbUtils/nbLog.h>
#include <nbUtils/nbMessage.h>

#include <QtGui/QVector2D>

#include <algorithm>
#include <cmath>
#include <string>

namespace {

constexpr double kDegree = 3.14159265358979323846 / 180.0;

/// View that a frame is measured in where there is none.
constexpr int kNominalSizePx = 1000;

/// @return false for a value of another type, which nbMessage has reported
template <class Value>
bool readIfThere(const nbMessage& message, const char* name, Value& value)
{
    return !message.has(name) || nbMessage::get(message, name, value);
}

bool refuse(const std::string& what)
{
    nbLog::warning("sceneplateChanged: " + what + "; the scene plates stay as they are");
    return false;
}

}  // namespace

bool nbSceneplateChange::read(const nbMessage& message, nbSceneplateChange& change)
{
    nbSceneplateChange found;
    QVector2D offset;
    if (!readIfThere(message, "scaleFactor", found.scaleFactor) ||
        !readIfThere(message, "offset", offset) ||
        !readIfThere(message, "rotation", found.rotation)) {
        return false;
    }
    found.offset = osg::Vec2f(offset.x(), offset.y());
    if (!std::isfinite(found.scaleFactor) || !(found.scaleFactor > 0.0F)) {
        return refuse("a \"scaleFactor\" of " + std::to_string(found.scaleFactor));
    }
    if (!nbIsFinite(found.offset) || !std::isfinite(found.rotation)) {
        return refuse("an \"offset\" or a \"rotation\" that is not finite");
    }
    change = found;
    return true;
}

bool nbSceneplateChange::isNone() const
{
    return !isScaling() && offset.x() == 0.0F && offset.y() == 0.0F && rotation == 0.0F;
}

bool nbSceneplateChange::isScaling() const
{
    return scaleFactor != 1.0F || sizeFactors.x() != 1.0F || sizeFactors.y() != 1.0F;
}

const char* nbSceneplateChange::getTitle() const
{
    if (rotation != 0.0F) {
        return QT_TRANSLATE_NOOP("Manipulator", "Turn scene plates");
    }
    return isScaling() ? QT_TRANSLATE_NOOP("Manipulator", "Scale scene plates")
                       : QT_TRANSLATE_NOOP("Manipulator", "Move scene plates");
}

nbSceneplateStart::nbSceneplateStart(const std::vector<osg::NodePtr>& plates, int widthPx,
                                     int heightPx)
{
    const bool hasArea = widthPx > 0 && heightPx > 0;
    const int width = hasArea ? widthPx : kNominalSizePx;
    const int height = hasArea ? heightPx : kNominalSizePx;
    std::vector<osg::SceneplatePtr> cores;
    cores.reserve(plates.size());
    for (const osg::NodePtr& node : plates) {
        cores.push_back(nbSceneplateList::plateOf(node));
    }
    const osg::Pnt2f pivot = nbSceneplateLayout::frame(cores, width, height).centre;
    for (std::size_t i = 0; i < plates.size(); ++i) {
        if (cores[i] == osg::NullFC) {
            continue;
        }
        const osg::Vec2f armPx = nbSceneplateLayout::centre(cores[i], width, height) - pivot;
        starts.push_back({ plates[i].getFieldContainerId(), cores[i]->getPosition(),
                           cores[i]->getSize(), cores[i]->getScale(), cores[i]->getRotation(),
                           nbSceneplateLayout::toOffset(armPx, height) });
    }
}

bool nbSceneplateStart::isOf(const std::vector<osg::NodePtr>& plates) const
{
    return std::equal(starts.begin(), starts.end(), plates.begin(), plates.end(),
                      [](const Plate& start, const osg::NodePtr& node) {
                          return node != osg::NullFC && start.nodeId == node.getFieldContainerId();
                      });
}

bool nbSceneplateStart::apply(const nbSceneplateChange& change) const
{
    std::vector<Plate> targets;
    for (const Plate& start : starts) {
        targets.push_back(changed(start, change));
    }
    const bool isPossible = std::all_of(targets.begin(), targets.end(), [](const Plate& target) {
        return nbIsFinite(target.position) && nbIsFinite(target.size) && target.size.x() > 0.0F &&
            target.size.y() > 0.0F && std::isfinite(target.scale) && target.scale > 0.0F;
    });
    if (!isPossible) {
        return refuse("too large a change");
    }
    bool isAnyChanged = false;
    for (const Plate& target : targets) {
        isAnyChanged |= write(target);
    }
    return isAnyChanged;
}

/// Position' = position + offset + (s R - 1) arm, with s the factor and R the turn.
nbSceneplateStart::Plate nbSceneplateStart::changed(const Plate& start,
                                                    const nbSceneplateChange& change)
{
    // Without a turn exactly the factor, so that a mere shift keeps all distances bit for bit.
    const double along = change.scaleFactor * std::cos(change.rotation * kDegree);
    const double across = change.scaleFactor * std::sin(change.rotation * kDegree);
    const double shiftX = (along - 1.0) * start.arm.x() - across * start.arm.y();
    const double shiftY = across * start.arm.x() + (along - 1.0) * start.arm.y();
    Plate target = start;
    target.position =
        osg::Vec2f(static_cast<float>(start.position.x() + change.offset.x() + shiftX),
                   static_cast<float>(start.position.y() + change.offset.y() + shiftY));
    target.scale = start.scale * change.scaleFactor;
    target.size = osg::Vec2f(start.size.x() * change.sizeFactors.x(),
                             start.size.y() * change.sizeFactors.y());
    if (change.rotation != 0.0F) {
        constexpr double kWholeTurnDeg = 360.0;
        const double turned = static_cast<double>(start.rotation) + change.rotation;
        target.rotation = static_cast<float>(std::remainder(turned, kWholeTurnDeg));
    }
    return target;
}

bool nbSceneplateStart::write(const Plate& target)
{
    const osg::SceneplatePtr plate =
        nbSceneplateList::plateOf(resolveContainer<osg::NodePtr>(target.nodeId));
    if (plate == osg::NullFC) {
        return false;
    }
    if (nbSameValues(plate->getPosition(), target.position) &&
        nbSameValues(plate->getSize(), target.size) && plate->getScale() == target.scale &&
        plate->getRotation() == target.rotation) {
        return false;
    }
    const nbEdit edit(plate,
                      osg::Sceneplate::PositionFieldMask | osg::Sceneplate::SizeFieldMask |
                          osg::Sceneplate::ScaleFieldMask | osg::Sceneplate::RotationFieldMask);
    plate->setPosition(target.position);
    plate->setSize(target.size);
    plate->setScale(target.scale);
    plate->setRotation(target.rotation);
    return true;
}
