// SPDX-License-Identifier: MIT
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGIntersectAction.h>
#include <OpenSG/OSGLog.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGTriangleIterator.h>

#include "RayTest.h"

namespace osg {

namespace {

/// Rounding of volumes that went through several matrices, relative to the distance.
constexpr Real32 kVolumeSlack = 1e-5F;

/// Whether the ray passes a volume within reach.
bool reaches(const detail::Ray& ray, const DynamicVolume& volume, Real32 reach)
{
    // An empty volume says nothing: the mask of a node may have been set without an edit.
    if (volume.isEmpty() || volume.isInfinite() || !volume.isValid()) {
        return true;
    }
    const Vec3f slack = (volume.getMax() - volume.getMin()) * kVolumeSlack;
    Real32 from = 0.0F;
    Real32 to = reach * (1.0F + kVolumeSlack);
    return detail::meetsBox(ray, volume.getMin() - slack, volume.getMax() + slack, from, to);
}

}  // namespace

IntersectAction* IntersectAction::create()
{
    return new IntersectAction;
}

IntersectAction* IntersectAction::create(const Line& ray, Real32 maxDistance)
{
    IntersectAction* const action = create();
    action->setLine(ray, maxDistance);
    return action;
}

void IntersectAction::setLine(const Line& ray, Real32 maxDistance)
{
    line = ray;
    maxDist = maxDistance;
    reset();
}

void IntersectAction::reset()
{
    hitT = -1.0F;
    hitNormal.setNull();
    hitObject = NullFC;
    hitTriangle = -1;
}

Pnt3f IntersectAction::getHitPoint() const
{
    return line.getPosition() + line.getDirection() * hitT;
}

Action::ResultE IntersectAction::apply(NodePtr root)
{
    reset();
    if (root == NullFC) {
        SWARNING << "IntersectAction::apply: no node" << std::endl;
        return Quit;
    }
    root->updateVolume();
    enter(root, { line.getPosition(), line.getDirection() });
    return Continue;
}

void IntersectAction::enter(const NodePtr& node, const detail::Ray& ray)
{
    if ((node->getTravMask() & getTravMask()) == 0 || !reaches(ray, node->getVolume(), reach())) {
        return;
    }
    const NodeCorePtr core = node->getCore();
    const Matrix* const own = core != NullFC ? core->getLocalMatrix() : nullptr;
    if (own == nullptr) {
        testTriangles(node, ray);
        enterChildren(node, ray);
        return;
    }

    Matrix inverse;
    if (!own->inverse(inverse)) {
        // What is squeezed flat has no area in the parent's frame to be hit from everywhere.
        return;
    }
    // The direction keeps its scale, and so t its unit.
    detail::Ray local;
    inverse.multMatrixPnt(ray.start, local.start);
    inverse.multMatrixVec(ray.direction, local.direction);
    testTriangles(node, local);
    enterChildren(node, local);
}

void IntersectAction::enterChildren(const NodePtr& node, const detail::Ray& ray)
{
    const MFNodePtr& children = *node->getMFChildren();
    const SwitchPtr choice = SwitchPtr::dcast(node->getCore());
    if (choice == NullFC || choice->getChoice() == Switch::ALL) {
        for (const NodePtr& child : children) {
            enter(child, ray);
        }
        return;
    }
    const UInt32 chosen = static_cast<UInt32>(choice->getChoice());
    if (choice->getChoice() >= 0 && chosen < children.getSize()) {
        enter(children[chosen], ray);
    }
}

void IntersectAction::testTriangles(const NodePtr& node, const detail::Ray& ray)
{
    const GeometryPtr geometry = GeometryPtr::dcast(node->getCore());
    if (geometry == NullFC) {
        return;
    }
    TriangleIterator triangle(geometry);
    for (triangle.seek(0); !triangle.isAtEnd(); ++triangle) {
        const Pnt3f v0 = triangle.getPosition(0);
        const Pnt3f v1 = triangle.getPosition(1);
        const Pnt3f v2 = triangle.getPosition(2);
        Real32 t = 0.0F;
        if (!detail::meetsTriangle(ray, v0, v1, v2, t) || t < 0.0F ||
            !(didHit() ? t < hitT : t <= maxDist)) {
            continue;
        }
        hitT = t;
        hitObject = node;
        hitTriangle = triangle.getIndex();
        hitNormal = (v1 - v0).cross(v2 - v0);
        hitNormal /= hitNormal.length();
    }
}

}  // namespace osg
