// SPDX-License-Identifier: MIT
#include "manipulator/handles/HandlePalette.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace nbec::manipulator {

namespace {

using Colour = osg::Color3f HandlePalette::*;

constexpr std::array<Colour, 6> kColours = { &HandlePalette::x,         &HandlePalette::y,
                                             &HandlePalette::z,         &HandlePalette::all,
                                             &HandlePalette::highlight, &HandlePalette::pivot };

struct Current
{
    HandlePalette palette;
    unsigned count = 0;
};

Current& current()
{
    static Current state;
    return state;
}

osg::Color3f halfwayToWhite(const osg::Color3f& colour)
{
    return { (colour.red() + 1.0F) / 2, (colour.green() + 1.0F) / 2, (colour.blue() + 1.0F) / 2 };
}

bool isSame(const osg::Color3f& left, const osg::Color3f& right)
{
    return left.red() == right.red() && left.green() == right.green() &&
        left.blue() == right.blue();
}

bool isColour(const osg::Color3f& colour)
{
    const auto isPart = [](float part) { return part >= 0.0F && part <= 1.0F; };
    return isPart(colour.red()) && isPart(colour.green()) && isPart(colour.blue());
}

}  // namespace

bool HandlePalette::isSame(const HandlePalette& other) const
{
    return std::all_of(kColours.begin(), kColours.end(), [this, &other](Colour colour) {
        return manipulator::isSame(this->*colour, other.*colour);
    });
}

const HandlePalette& builtInPalette(BuiltInPalette which)
{
    static const std::array<HandlePalette, 4> kPalettes = { { HandlePalette(),
                                                              { { 0.86F, 0.36F, 0.36F },
                                                                { 0.45F, 0.74F, 0.42F },
                                                                { 0.36F, 0.56F, 0.9F },
                                                                { 0.92F, 0.83F, 0.45F },
                                                                { 1.0F, 0.66F, 0.25F },
                                                                { 0.66F, 0.5F, 0.7F } },
                                                              { { 1.0F, 0.25F, 0.25F },
                                                                { 0.2F, 1.0F, 0.2F },
                                                                { 0.3F, 0.6F, 1.0F },
                                                                { 1.0F, 1.0F, 0.0F },
                                                                { 1.0F, 1.0F, 1.0F },
                                                                { 1.0F, 0.3F, 1.0F },
                                                                /*hasEdges*/ true },
                                                              { { 0.6F, 0.0F, 0.0F },
                                                                { 0.13F, 0.62F, 0.48F },
                                                                { 0.21F, 0.0F, 1.0F },
                                                                { 0.98F, 0.75F, 0.0F },
                                                                { 0.95F, 1.0F, 1.0F },
                                                                { 0.53F, 0.23F, 0.59F } } } };
    return kPalettes[static_cast<std::size_t>(which)];
}

bool setHandlePalette(const HandlePalette& palette)
{
    for (const Colour colour : kColours) {
        if (!isColour(palette.*colour)) {
            return false;
        }
    }
    if (!(palette.lineWidth > 0.0F) || !std::isfinite(palette.lineWidth)) {
        return false;
    }
    current().palette = palette;
    ++current().count;
    return true;
}

const HandlePalette& getHandlePalette()
{
    return current().palette;
}

unsigned handlePaletteCount()
{
    return current().count;
}

osg::Color3f inHandlePalette(const osg::Color3f& classic)
{
    static const HandlePalette tables;
    for (const Colour colour : kColours) {
        if (isSame(classic, tables.*colour)) {
            return current().palette.*colour;
        }
        if (isSame(classic, halfwayToWhite(tables.*colour))) {
            return halfwayToWhite(current().palette.*colour);
        }
    }
    return classic;
}

}  // namespace nbec::manipulator
