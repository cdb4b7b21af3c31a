// SPDX-License-Identifier: MIT
#include "Notifier.h"

#include <cmath>

namespace nbec::notification {

namespace {

bool isFinite(const osg::Vec2f& value)
{
    return std::isfinite(value[0]) && std::isfinite(value[1]);
}

bool isFinite(const osg::Color3f& value)
{
    return std::isfinite(value[0]) && std::isfinite(value[1]) && std::isfinite(value[2]);
}

bool same(const osg::Vec2f& a, const osg::Vec2f& b)
{
    return a[0] == b[0] && a[1] == b[1];
}

bool same(const osg::Color3f& a, const osg::Color3f& b)
{
    return a[0] == b[0] && a[1] == b[1] && a[2] == b[2];
}

template <class Value>
void assignFinite(Value& target, const Value& value)
{
    if (isFinite(value)) {
        target = value;
    }
}

}  // namespace

bool NotifierSettings::operator==(const NotifierSettings& other) const
{
    return textSize == other.textSize && same(lineColor, other.lineColor) &&
        same(backColor, other.backColor) && same(textColor, other.textColor) &&
        same(textPosition, other.textPosition) && same(textAreaFrom, other.textAreaFrom) &&
        same(textAreaTo, other.textAreaTo);
}

Notifier::~Notifier() = default;

void Notifier::setTextSize(float size)
{
    if (std::isfinite(size) && size > 0.0F) {
        settings.textSize = size;
    }
}

void Notifier::setLineColor(const osg::Color3f& color)
{
    assignFinite(settings.lineColor, color);
}

void Notifier::setBackColor(const osg::Color3f& color)
{
    assignFinite(settings.backColor, color);
}

void Notifier::setTextColor(const osg::Color3f& color)
{
    assignFinite(settings.textColor, color);
}

void Notifier::setTextPosition(const osg::Vec2f& position)
{
    assignFinite(settings.textPosition, position);
}

void Notifier::setTextArea(const osg::Vec2f& from, const osg::Vec2f& to)
{
    if (isFinite(from) && isFinite(to)) {
        settings.textAreaFrom = from;
        settings.textAreaTo = to;
    }
}

}  // namespace nbec::notification
