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

HandlePalette palette;
unsigned count = 0;

osg::Color3f halfwayToWhite(const osg::Color3f& colour)
{
    return { (colour.red() + 1.0F) / 2, (colour.green() + 1.0F) / 2, (colour.blue() + 1.0F) / 2 };
}

bool isColour(const osg::Color3f& colour)
{
    const auto isPart = [](float part) { return part >= 0.0F && part <= 1.0F; };
    return isPart(colour.red()) && isPart(colour.green()) && isPart(colour.blue());
}

}  // namespace

bool HandlePalette::isSame(const HandlePalette& other) const
{
    return std::all_of(kColours.begin(), kColours.end(),
                       [this, &other](Colour colour) { return this->*colour == other.*colour; });
}

const HandlePalette& builtInPalette(BuiltInPalette which)
{
    static const HandlePalette kPalettes[] = { HandlePalette(),
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
                                                 { 0.53F, 0.23F, 0.59F } } };
    return kPalettes[static_cast<std::size_t>(which)];
}

bool setHandlePalette(const HandlePalette& wanted)
{
    for (const Colour colour : kColours) {
        if (!isColour(wanted.*colour)) {
            return false;
        }
    }
    if (!(wanted.lineWidth > 0.0F) || !std::isfinite(wanted.lineWidth)) {
        return false;
    }
    palette = wanted;
    ++count;
    return true;
}

const HandlePalette& getHandlePalette()
{
    return palette;
}

unsigned handlePaletteCount()
{
    return count;
}

osg::Color3f inHandlePalette(const osg::Color3f& classic)
{
    static const HandlePalette tables;
    for (const Colour colour : kColours) {
        if (classic == tables.*colour) {
            return palette.*colour;
        }
        if (classic == halfwayToWhite(tables.*colour)) {
            return halfwayToWhite(palette.*colour);
        }
    }
    return classic;
}

}  // namespace nbec::manipulator
