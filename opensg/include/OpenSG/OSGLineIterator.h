// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGGeoPartIterator.h>

namespace osg {

/// How primitives become lines; see GeoPartIterator.
struct LineSplitter
{
    static UInt32 count(UInt32 type, UInt32 length);
    static UInt32 corners(UInt32 type, UInt32 part, UInt32 length, UInt32 (&vertices)[4]);
};

/// The lines of a geometry: strips and loops are split, a loop is closed. Triangles have none.
class LineIterator : public GeoPartIterator<LineSplitter>
{
public:
    using GeoPartIterator::GeoPartIterator;
};

}  // namespace osg
