// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGGeoPartIterator.h>

namespace osg {

/// How primitives become faces; see GeoPartIterator.
struct FaceSplitter
{
    static UInt32 count(UInt32 type, UInt32 length);
    static UInt32 corners(UInt32 type, UInt32 part, UInt32 length, UInt32 (&vertices)[4]);
};

/// The triangles and quads of a geometry (getLength 3 or 4): strips, fans and polygons are split
/// into triangles, quad strips into quads, quads stay whole.
class FaceIterator : public GeoPartIterator<FaceSplitter>
{
public:
    using GeoPartIterator::GeoPartIterator;
};

}  // namespace osg
