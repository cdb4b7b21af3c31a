// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/drag/DragParameters.h"
#include "manipulator/handles/HandleShapes.h"

#include <array>
#include <cstddef>
#include <vector>

// Of X11's headers.
#pragma push_macro("None")
#undef None

namespace nbec::manipulator {

/// A set of modes, bit i for the mode of number i.
using HandleModes = unsigned;

constexpr HandleModes kAllModes = ~0U;

/// The set of some modes, given by enumerators or numbers.
template <class... Modes>
constexpr HandleModes modes(Modes... each)
{
    return ((1U << static_cast<unsigned>(each)) | ... | 0U);
}

/// Whether a mode is in a set; negative ones are in none.
constexpr bool isInModes(int mode, HandleModes set)
{
    return mode >= 0 && (set >> static_cast<unsigned>(mode) & 1U) != 0;
}

/// Place of the letter of an arrow, beyond its head.
constexpr float kArrowTip = 1.4F;

/// Families of handles that a table may have.
enum HandleFamily : int
{
    NoFamily = -1,
    Translation,
    Rotation,
    Scaling
};

/// Node that places what is below it.
enum class HandleHolder
{
    None,
    Component,  ///< ComponentTransform core
    Euler,  ///< Transform3D core, turned by angles
    Matrix  ///< Transform core, placed by setMatrix()
};

/// Colours of a part, by the places of materials in the set's list.
struct HandleColors
{
    std::size_t idle;
    std::size_t highlight;
    std::size_t special;  ///< idle in the modes HandleTable::specialIn
};

/// One drawn piece of a handle.
struct HandlePart
{
    HandleShape shape;
    HandleColors colors;
    HandleHolder holder = HandleHolder::None;
    std::array<float, 3> place = { 0.0F, 0.0F, 0.0F };  ///< of the holder
    Turn turn = Turn::None;  ///< of the holder
    std::array<float, 3> scale = { 1.0F, 1.0F, 1.0F };  ///< of a HandleHolder::Component
    bool isOfDrag = false;  ///< seen only while its handle is held
};

/// What the drag of a handle leaves of the others.
enum class HandleLeaves
{
    Nothing,
    Family,  ///< those of its family
    Everything
};

/// One handle: all that tells it from the others. The order of rows is that of the tree and of the
/// comparison of names.
struct HandleRow
{
    const char* name;  ///< by which a pick tells the handle; null for a marker, which is never hit
    int handle;  ///< number, not 0; 0 for a marker
    int family;  ///< from 0, such as a HandleFamily; -1 none
    std::vector<HandlePart> parts;
    HandleModes visibleIn = kAllModes;
    HandleHolder holder = HandleHolder::Component;  ///< None: the only part is the top
    std::array<float, 3> place = { 0.0F, 0.0F, 0.0F };
    Turn turn = Turn::None;
    int litWith = 0;  ///< further handle with which it lights up; 0 none
    HandleLeaves leaves = HandleLeaves::Nothing;
    bool staysInDrags = false;  ///< seen in drags of other handles, too
    HandleAction action {};
    char letter = 0;  ///< X, Y, Z, U or V, which a palette may show at the tip; 0 none
    float tip = 0.0F;  ///< place of the letter, along y in the frame of the handle
};

/// All handles of a class of gizmos as data.
struct HandleTable
{
    std::vector<HandleRow> rows;
    std::vector<HandleModes> groups;  ///< modes in which each family is seen as a whole, if
                                      ///< families have nodes of their own; empty: they have none
    HandleModes specialIn = 0;  ///< modes with special colours
    /// For each mode, from 0, the set of families that it puts back to idle colours, with what has
    /// no family; empty: every mode all.
    std::vector<unsigned> restored;
    HandleHolder root = HandleHolder::Euler;
};

}  // namespace nbec::manipulator

#pragma pop_macro("None")
