// SPDX-License-Identifier: MIT
#include <nbOpenSGUberViewport/nbEdgeSnap.h>

#include <algorithm>
#include <cmath>

namespace {

/// Brightness of a photograph as it lies in a view.
class Brightness
{
public:
    Brightness(const osg::ImagePtr& image, const nbPhotographFit& photographFit)
        : fit(photographFit)
        , width(image->getWidth())
        , height(image->getHeight())
        , bytes(image->getBpp())
        , colours(std::min<osg::UInt32>(bytes, 3) == 2 ? 1 : std::min<osg::UInt32>(bytes, 3))
        , data(image->getDataType() == osg::Image::OSG_UINT8_IMAGEDATA ? image->getData() : nullptr)
    { }

    bool exists() const
    {
        return data != nullptr && width > 0 && height > 0 && bytes >= 1 && bytes <= 4 &&
            fit.width > 0.0F && fit.height > 0.0F;
    }

    /// 0 to 1, between pixels in proportion; beyond the border as at it.
    float at(const osg::Pnt2f& place) const
    {
        const float x = (place.x() - fit.left) / fit.width * static_cast<float>(width) - 0.5F;
        const float y = (place.y() - fit.bottom) / fit.height * static_cast<float>(height) - 0.5F;
        const float left = std::floor(x);
        const float below = std::floor(y);
        const auto mixed = [](float a, float b, float part) { return a + part * (b - a); };
        const auto row = [&](float ofRow) {
            return mixed(pixel(left, ofRow), pixel(left + 1.0F, ofRow), x - left);
        };
        return mixed(row(below), row(below + 1.0F), y - below);
    }

private:
    float pixel(float x, float y) const
    {
        constexpr float kBrightest = 255.0F;
        const auto column = static_cast<int>(std::clamp(x, 0.0F, static_cast<float>(width - 1)));
        const auto line = static_cast<int>(std::clamp(y, 0.0F, static_cast<float>(height - 1)));
        const osg::UInt8* const texel = data +
            (static_cast<std::size_t>(line) * static_cast<std::size_t>(width) +
             static_cast<std::size_t>(column)) *
                bytes;
        unsigned sum = 0;
        for (osg::UInt32 i = 0; i < colours; ++i) {
            sum += texel[i];
        }
        return static_cast<float>(sum) / (kBrightest * static_cast<float>(colours));
    }

    nbPhotographFit fit;
    osg::Int32 width;
    osg::Int32 height;
    osg::UInt32 bytes;
    osg::UInt32 colours;
    const osg::UInt8* data;
};

/// Mean difference of the two sides of a line.
float strengthOf(const Brightness& brightness, const nbViewLine& line, const osg::Vec2f& across)
{
    constexpr int kSamples = 64;
    float sum = 0.0F;
    for (int i = 0; i < kSamples; ++i) {
        const float part = (static_cast<float>(i) + 0.5F) / kSamples;
        const osg::Pnt2f place = line.first + (line.second - line.first) * part;
        sum += brightness.at(place + across) - brightness.at(place - across);
    }
    return std::abs(sum) / kSamples;
}

}  // namespace

nbViewLine nbEdgeSnap::onto(const osg::ImagePtr& image, const nbPhotographFit& fit,
                            const nbViewLine& line, bool movesFirst, bool movesSecond)
{
    constexpr float kShortestPx = 8.0F;
    constexpr float kStepPx = 0.25F;
    const osg::Vec2f along = line.second - line.first;
    const float length = along.length();
    if (image == osg::NullFC || !(length >= kShortestPx) || !std::isfinite(length)) {
        return line;
    }
    const Brightness brightness(image, fit);
    if (!brightness.exists()) {
        return line;
    }
    const osg::Vec2f across(-along.y() / length, along.x() / length);
    nbViewLine best = line;
    float strongest = kFaintest;
    const int steps = static_cast<int>(kReachPx / kStepPx);
    for (int i = 0; i <= 2 * steps; ++i) {
        // From the line outwards, so that of equal edges the nearest is taken.
        const int side = i % 2 == 0 ? 1 : -1;
        const osg::Vec2f way = across * (static_cast<float>(side * ((i + 1) / 2)) * kStepPx);
        const nbViewLine moved { movesFirst ? line.first + way : line.first,
                                 movesSecond ? line.second + way : line.second };
        const float strength = strengthOf(brightness, moved, across);
        if (strength > strongest) {
            strongest = strength;
            best = moved;
        }
    }
    return best;
}
