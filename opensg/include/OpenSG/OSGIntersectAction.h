// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGAction.h>
#include <OpenSG/OSGLine.h>
#include <OpenSG/OSGVector.h>

namespace osg {

namespace detail {
struct Ray;
}  // namespace detail

class Geometry;

/// Finds the nearest triangle that a ray hits, from either side, with 0 <= t <= maxdist.
///
/// The ray is in the frame of the root's parent: to hit in world space hand in the tree's top.
/// Lines and points are never hit. Volumes are brought up to date on the way and used to skip
/// subtrees; nothing is allocated.
class IntersectAction : public Action
{
public:
    /// To be freed with delete.
    static IntersectAction* create();
    static IntersectAction* create(const Line& ray, Real32 maxDistance = Inf);

    /// Forgets the last hit.
    void setLine(const Line& ray, Real32 maxDistance = Inf);

    const Line& getLine() const { return line; }

    Real32 getMaxDist() const { return maxDist; }

    /// Starts afresh, then looks.
    ResultE apply(NodePtr root) override;

    bool didHit() const { return hitTriangle >= 0; }

    /// Distance along the ray, world units; -1 without a hit.
    Real32 getHitT() const { return hitT; }

    /// In the frame of the ray.
    Pnt3f getHitPoint() const;

    /// Unit normal of the triangle. Deliberate: in the local frame of the hit object.
    Vec3f getHitNormal() const { return hitNormal; }

    /// The node with the geometry; null without a hit. Not counted.
    NodePtr getHitObject() const { return hitObject; }

    /// Number of the triangle as TriangleIterator counts them; -1 without a hit.
    Int32 getHitTriangle() const { return hitTriangle; }

protected:
    IntersectAction() = default;

private:
    void reset();

    Real32 reach() const { return didHit() ? hitT : maxDist; }

    void enter(const NodePtr& node, const detail::Ray& ray);
    void enterChildren(const NodePtr& node, const detail::Ray& ray);
    void testTriangles(const NodePtr& node, const detail::Ray& ray);

    Line line;
    Real32 maxDist = Inf;
    Real32 hitT = -1.0F;
    Vec3f hitNormal;
    NodePtr hitObject;
    Int32 hitTriangle = -1;
};

}  // namespace osg
