// SPDX-License-Identifier: MIT
#include "nbTextureValues.h"

#include <nbOpenSGUtils/nbEdit.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

// The scene graph's own comparison of vectors has a tolerance.

/// Five vectors.
constexpr std::size_t kTriplanarNumbers = 15;

std::array<float, kTriplanarNumbers> triplanarOf(const nbTextureValues& v)
{
    std::array<float, kTriplanarNumbers> numbers {};
    auto* next = numbers.begin();
    for (const osg::Vec3f* vector :
         { &v.triplanarRotation, &v.triplanarOffsetU, &v.triplanarOffsetV, &v.triplanarRepeatU,
           &v.triplanarRepeatV }) {
        next = std::copy_n(vector->getValues(), 3, next);
    }
    return numbers;
}

auto othersOf(const nbTextureValues& v)
{
    return std::array { v.offset.x(),      v.offset.y(),      v.repeat.x(),      v.repeat.y(),
                        v.rotate,          v.tireCenter.x(),  v.tireCenter.y(),  v.tireCenter.z(),
                        v.tireScaleU,      v.tireScaleHeight, v.tireScaleRadius, v.planarAngles.x(),
                        v.planarAngles.y() };
}

/// What must not be zero.
auto sizesOf(const nbTextureValues& v)
{
    const osg::Vec3f& u = v.triplanarRepeatU;
    const osg::Vec3f& w = v.triplanarRepeatV;
    return std::array {
        v.repeat.x(),      v.repeat.y(),     u.x(), u.y(), u.z(), w.x(), w.y(), w.z(), v.tireScaleU,
        v.tireScaleHeight, v.tireScaleRadius
    };
}

template <std::size_t Count>
bool areFinite(const std::array<float, Count>& numbers)
{
    return std::all_of(numbers.begin(), numbers.end(), [](float n) { return std::isfinite(n); });
}

}  // namespace

nbTextureValues nbTextureValues::of(const osg::ColorComponentSettings& settings)
{
    nbTextureValues values;
    values.offset = settings.getOffset();
    values.repeat = settings.getRepeat();
    values.rotate = settings.getRotate();
    values.triplanarRotation = settings.getTriplanarRotation();
    values.triplanarOffsetU = settings.getTriplanarOffsetU();
    values.triplanarOffsetV = settings.getTriplanarOffsetV();
    values.triplanarRepeatU = settings.getTriplanarRepeatU();
    values.triplanarRepeatV = settings.getTriplanarRepeatV();
    values.tireCenter = settings.getTireCenter();
    values.tireScaleU = settings.getTireScaleU();
    values.tireScaleHeight = settings.getTireScaleHeight();
    values.tireScaleRadius = settings.getTireScaleRadius();
    values.tireAutoParameter = settings.getTireAutoParameter();
    values.planarAngles = settings.getPlanarAngles();
    return values;
}

void nbTextureValues::applyTo(const osg::ColorComponentSettingsPtr& settings) const
{
    const nbEdit edit(settings, osg::FieldBits::AllFields);
    settings->setOffset(offset);
    settings->setRepeat(repeat);
    settings->setRotate(rotate);
    settings->setTriplanarRotation(triplanarRotation);
    settings->setTriplanarOffsetU(triplanarOffsetU);
    settings->setTriplanarOffsetV(triplanarOffsetV);
    settings->setTriplanarRepeatU(triplanarRepeatU);
    settings->setTriplanarRepeatV(triplanarRepeatV);
    settings->setTireCenter(tireCenter);
    settings->setTireScaleU(tireScaleU);
    settings->setTireScaleHeight(tireScaleHeight);
    settings->setTireScaleRadius(tireScaleRadius);
    settings->setTireAutoParameter(tireAutoParameter);
    settings->setPlanarAngles(planarAngles);
}

bool nbTextureValues::isSound() const
{
    const auto sizes = sizesOf(*this);
    return areFinite(triplanarOf(*this)) && areFinite(othersOf(*this)) &&
        std::all_of(sizes.begin(), sizes.end(), [](float size) { return std::isnormal(size); });
}

bool nbTextureValues::hasSameTriplanar(const nbTextureValues& other) const
{
    return triplanarOf(*this) == triplanarOf(other);
}

bool nbTextureValues::operator==(const nbTextureValues& other) const
{
    return hasSameTriplanar(other) && othersOf(*this) == othersOf(other) &&
        tireAutoParameter == other.tireAutoParameter;
}
