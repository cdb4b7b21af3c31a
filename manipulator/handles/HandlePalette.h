// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/nbManipulatorExport.h"

#include <OpenSG/OSGColor.h>

namespace nbec::manipulator {

/// Colours of the handles of all gizmos; the light ones are halfway to white. Greys, the plates'
/// shadows, the cross of a camera and the lines of a perspective match keep theirs.
struct HandlePalette
{
    osg::Color3f x { 1.0F, 0.0F, 0.0F };
    osg::Color3f y { 0.0F, 1.0F, 0.0F };
    osg::Color3f z { 0.0F, 0.0F, 1.0F };
    osg::Color3f all { 1.0F, 1.0F, 0.0F };  ///< what acts in all directions
    osg::Color3f highlight { 1.0F, 0.5F, 0.0F };
    osg::Color3f pivot { 0.6F, 0.35F, 0.65F };

    bool hasEdges = false;  ///< handles have a dark edge
    bool hasLetters =
        false;  ///< letters stand at the tips of arrows, or of what a mode has instead
    float lineWidth = 1.0F;  ///< of lines, by their classic one, > 0

    /// Whether all colours are the same.
    NB_MANIPULATOR_API bool isSame(const HandlePalette& other) const;
};

/// Palettes that come with the library.
enum class BuiltInPalette
{
    Classic,
    Soft,
    HighContrast,
    /// Any two of its colours differ by at least 40 in CIE L*a*b*, seen with normal vision and as
    /// simulated for missing red, green or blue cones.
    ForColourBlind
};

NB_MANIPULATOR_API const HandlePalette& builtInPalette(BuiltInPalette which);

/// Sets the colours of all gizmos, which take them at their next update. Classic at the start. For
/// example setHandlePalette(builtInPalette(BuiltInPalette::Soft)).
/// @return false, and nothing is set, if a component does not lie in 0 to 1, or lines have no width
NB_MANIPULATOR_API bool setHandlePalette(const HandlePalette& palette);
NB_MANIPULATOR_API const HandlePalette& getHandlePalette();

/// How often the palette was set.
unsigned handlePaletteCount();

/// What the palette makes of a colour of a classic table; one that it has no word for stays.
osg::Color3f inHandlePalette(const osg::Color3f& classic);

}  // namespace nbec::manipulator
