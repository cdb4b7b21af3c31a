// SPDX-License-Identifier: MIT
#include "LiftManipulator.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

#include <memory>

#include <manipulator/drag/DragGeometry.h>
#include <manipulator/handles/HandleMaterials.h>
#include <manipulator/handles/HandleNodes.h>

using namespace nbec::manipulator;

namespace {

constexpr float kStep = 0.25F;
constexpr float kSize = kDefaultManipulatorSize;

enum Handle : int
{
    LiftArrow = 1,
    PutDownRing
};

enum Color : std::size_t
{
    Green,
    Violet,
    Orange
};

constexpr std::array<HandleMaterialRow, Orange + 1> kMaterials = {
    { { 0.0F, 1.0F, 0.0F, kTraceOfTransparency, handleSortKey::kSolid },
      { 0.5F, 0.25F, 1.0F, kTraceOfTransparency, handleSortKey::kSolid },
      { 1.0F, 0.5F, 0.0F, kTraceOfTransparency, handleSortKey::kSolid } }
};

/// The handles: everything that differs between them stands in their rows.
HandleTable makeTable()
{
    const HandleColors green = { Green, Orange, Green };
    const HandleColors violet = { Violet, Orange, Violet };
    const HandleAction upwards = { DragParameters::Kind::Offset, axisBit(1) };
    return {
        { { "liftShape",
            LiftArrow,
            0,
            { { HandleShape::SolidArrowShaft, green }, { HandleShape::SolidArrowHead, green } },
            kAllModes,
            HandleHolder::Component,
            { 0.0F, 1.0F, 0.0F },
            Turn::None,
            0,
            HandleLeaves::Nothing,
            false,
            upwards },
          { "putDownShape",
            PutDownRing,
            0,
            { { HandleShape::SolidRing, violet } },
            kAllModes,
            HandleHolder::Component,
            {},
            Turn::OntoZ,
            0,
            HandleLeaves::Nothing,
            false,
            upwards } }
    };
}

DragParameters along(double height)
{
    return { DragParameters::Kind::Offset, osg::Vec3f(0.0F, static_cast<float>(height), 0.0F) };
}

class LiftGizmo : public Gizmo
{
public:
    explicit LiftGizmo(Lift& edited)
        : Gizmo(CourseRules(), makeTable(), makeHandleMaterials(kMaterials), 0, kSize)
        , lift(edited)
    {
        root = makeHandleRootOfPasses(handles.getRoot());
    }

    bool isSnapping = false;

protected:
    bool hasTarget() const override { return lift.getNode() != osg::NullFC; }

    bool prepare(const View& view) override
    {
        const osg::Pnt3f place(column(targetToWorld(), 3));
        plane =
            osg::Plane(axisPlaneNormal(osg::Vec3f(0.0F, 1.0F, 0.0F), view.sightAt(place)), place);
        followPlane(plane, view.pointerRay(), track);  // the drag starts here
        startHeight = lift.getHeight();
        bottom = nbNodeUtils::getWorldBounds(lift.getNode()).getMin().y();
        return true;
    }

    DragStep parametersAt(const View& view, const DragTrack& before) const override
    {
        DragTrack next = before;
        if (getArmed() == PutDownRing) {
            return { along(-bottom), next };
        }
        const std::optional<osg::Pnt3f> hit = followPlane(plane, view.pointerRay(), next);
        if (!hit) {
            return DragStep();
        }
        const double offset = hit->y() - next.start->y();
        return { along(snapped(offset, isSnapping ? kStep : 0.0)), next };
    }

    /// Always from the start, never in sums.
    void apply(const DragParameters& parameters) override
    {
        lift.setHeight(startHeight + parameters.vec3().y());
    }

    osg::Matrix targetToWorld() const override { return lift.getNode()->getToWorld(); }

private:
    Lift& lift;
    osg::Plane plane;  ///< of the drag, world
    float startHeight = 0.0F;
    float bottom = 0.0F;  ///< of the object at the start, world
};

}  // namespace

LiftManipulator::LiftManipulator(Lift& edited)
    : GizmoFace(std::make_unique<LiftGizmo>(edited))
{ }

bool LiftManipulator::setManipulatorMode(const std::string& mode)
{
    static_cast<LiftGizmo&>(*gizmo).isSnapping = mode == "precisionTool";
    return mode == "precisionTool";
}
