// SPDX-License-Identifier: MIT
#include "manipulator/texture/AnchoredGizmo.h"

#include <utility>

namespace nbec::manipulator::texture {

namespace {

constexpr int kUniversalMode = 0;
constexpr CourseRules kRules = { /*isPreparedAtStart*/ false, /*isHoverKept*/ true,
                                 /*isGrabbedLit*/ false, /*isEndedByDeactivation*/ false,
                                 /*isPreviewPaused*/ true };

}  // namespace

AnchoredGizmo::AnchoredGizmo(HandleTable table, HandleSet::Materials materials, int startMode,
                             const float& size)
    : TextureGizmo(kRules, std::move(table), std::move(materials), startMode, size)
{ }

// == What is edited

void AnchoredGizmo::setComponent(const osg::MaterialPtr& material, const std::string& name,
                                 nbStateChunkBase* gui)
{
    const osg::RefPtr<osg::MaterialPtr> kept(material);  // also by who hears of the end
    if (!component.is(material, name)) {
        endDrag();
    }
    component.set(material, name, gui);
    watch.forget();
    if (material != osg::NullFC && !name.empty()) {
        showActive();
    } else {
        hide();
    }
}

void AnchoredGizmo::showActive()
{
    handles.showRoot(true);
    handles.show(getMode(), 0);
    if (getMode() != kUniversalMode) {
        handles.setDefaultMaterials(getMode());
        placeIn(View());
    }
}

// == Drags

bool AnchoredGizmo::prepare(const View& view)
{
    if (!capture(view)) {
        return false;
    }
    previewPause.begin();
    return true;
}

// == Placement

bool AnchoredGizmo::isDisplaced(const View& view) const
{
    const osg::NodePtr node = getAnchorNode();
    return node != osg::NullFC &&
        (watch.isElsewhere(node->getToWorld()) || watch.isSeenOtherwise(view));
}

void AnchoredGizmo::place(const View& view)
{
    const osg::NodePtr node = getAnchorNode();
    if (node == osg::NullFC) {
        return;
    }
    const osg::Matrix worldFromAnchor = node->getToWorld();
    followAnchor(worldFromAnchor);
    watch.remember(worldFromAnchor);
    watch.remember(view);
    placeHandles(view, worldFromAnchor);
}

}  // namespace nbec::manipulator::texture
