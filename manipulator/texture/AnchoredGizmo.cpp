// SPDX-License-Identifier: MIT
#include "manipulator/texture/AnchoredGizmo.h"

#include "manipulator/scene/MessageSending.h"

#include <utility>

namespace nbec::manipulator::texture {

namespace {

constexpr int kUniversalMode = 0;

CourseRules courseRules()
{
    CourseRules rules;
    rules.isHoverKept = true;
    rules.isGrabbedLit = false;
    rules.isEndedByDeactivation = false;
    rules.isPreviewPaused = true;
    return rules;
}

}  // namespace

AnchoredGizmo::AnchoredGizmo(const HandleTable& table, HandleSet::Materials materials,
                             int startMode, const float& size)
    : Gizmo(courseRules(), table, std::move(materials), startMode, size)
{ }

// == What is edited

void AnchoredGizmo::setComponent(const osg::MaterialPtr& material, const std::string& componentName,
                                 nbStateChunkBase* gui)
{
    if (!component.is(material, componentName)) {
        endDrag();
    }
    component.set(material, componentName, gui);
    watch.forget();
    if (material != osg::NullFC && !componentName.empty()) {
        showActive();
    } else {
        hide();
    }
}

void AnchoredGizmo::setAnchor(const osg::NodePtr& node, const osg::Pnt3f& position)
{
    anchor.set(node, position);
    watch.forget();
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

bool AnchoredGizmo::hasTarget() const
{
    return component.getMaterial() != osg::NullFC;
}

// == Drags

bool AnchoredGizmo::canStep(const View& view)
{
    return view.exists() && hasTarget();
}

bool AnchoredGizmo::prepare(const View& view)
{
    if (!capture(view)) {
        return false;
    }
    previewPause.begin();
    return true;
}

void AnchoredGizmo::send(const char* suffix, nbMessage& message) const
{
    sendToReceiver(messageReceiver, suffix, message);
}

// == Placement

bool AnchoredGizmo::isDisplaced(const View& view) const
{
    const osg::NodePtr node = anchor.getNode();
    return node != osg::NullFC &&
        (watch.isElsewhere(node->getToWorld()) || watch.isSeenOtherwise(view));
}

void AnchoredGizmo::place(const View& view)
{
    const osg::NodePtr node = anchor.getNode();
    if (node == osg::NullFC) {
        return;
    }
    const osg::Matrix worldFromAnchor = node->getToWorld();
    anchor.follow(worldFromAnchor);
    watch.remember(worldFromAnchor);
    watch.remember(view);
    placeHandles(view, worldFromAnchor);
}

}  // namespace nbec::manipulator::texture
