// SPDX-License-Identifier: MIT
#include "Notifier.h"

#include <algorithm>
#include <cmath>

namespace nbec::notification {

namespace {

/// Of a vector or colour.
template <class Value>
bool isFinite(const Value& value)
{
    return std::all_of(&value[0], &value[0] + sizeof(Value) / sizeof(value[0]),
                       [](float number) { return std::isfinite(number); });
}

template <class Value>
bool same(const Value& a, const Value& b)
{
    return std::equal(&a[0], &a[0] + sizeof(Value) / sizeof(a[0]), &b[0]);
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
