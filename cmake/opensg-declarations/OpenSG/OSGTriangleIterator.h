// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGGeometry.h>

namespace osg {
class TriangleIterator
{
public:
    TriangleIterator();
    explicit TriangleIterator(const NodePtr& node);
    explicit TriangleIterator(const GeometryPtr& geometry);
    void setToBegin();
    void setToEnd();
    void seek(Int32 index);
    void operator++();
    bool operator==(const TriangleIterator& other) const;
    bool operator!=(const TriangleIterator& other) const;
    bool isAtEnd() const;
    Int32 getIndex() const;
    UInt32 getLength() const;
    Int32 getPositionIndex(Int32 which) const;
    Int32 getNormalIndex(Int32 which) const;
    Int32 getColorIndex(Int32 which) const;
    Int32 getTexCoordsIndex(Int32 which) const;
    Pnt3f getPosition(Int32 which) const;
    Vec3f getNormal(Int32 which) const;
    Color3f getColor(Int32 which) const;
    Vec2f getTexCoords(Int32 which) const;
};
}  // namespace osg
