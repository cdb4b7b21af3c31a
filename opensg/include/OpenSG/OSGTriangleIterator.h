// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGGeoPartIterator.h>

namespace osg {

/// How primitives become triangles; see GeoPartIterator.
struct TriangleSplitter
{
    static UInt32 count(UInt32 type, UInt32 length);
    static UInt32 corners(UInt32 type, UInt32 part, UInt32 length, UInt32 (&vertices)[4]);
};

/// The triangles of a geometry: strips, fans, quads and polygons are split. A strip gives the
/// vertices 0 1 2, 2 1 3, 2 3 4; a fan or polygon 0 1 2, 0 2 3; a quad 0 1 2, 0 2 3. Points and
/// lines have none; flat ones are not left out.
class TriangleIterator : public GeoPartIterator<TriangleSplitter>
{
public:
    using GeoPartIterator::GeoPartIterator;
};

}  // namespace osg
