// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGAction.h>
#include <OpenSG/OSGFieldContainerType.h>
#include <OpenSG/OSGLine.h>

namespace osg {
class IntersectAction : public Action
{
public:
    static void registerEnterDefault(const FieldContainerType& type, const Functor& functor);
    static void registerLeaveDefault(const FieldContainerType& type, const Functor& functor);
    static IntersectAction* create();
    static IntersectAction* create(const Line& line, Real32 maxdist = Inf);
    void setLine(const Line& line, Real32 maxdist = Inf);
    ResultE apply(NodePtr root);
    void setTravMask(UInt32 mask);
    bool didHit() const;
    Real32 getHitT() const;
    Pnt3f getHitPoint() const;
    Vec3f getHitNormal() const;
    NodePtr getHitObject() const;
    Int32 getHitTriangle() const;
};
}  // namespace osg
