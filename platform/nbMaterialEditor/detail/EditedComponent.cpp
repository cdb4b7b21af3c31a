// SPDX-License-Identifier: MIT
#include "EditedComponent.h"

#include <nbKernel/nbController.h>
#include <nbKernelServices/nbScopedUndo.h>
#include <nbKernelServices/nbStateRecord.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbMaterialEditor/detail/ComponentState.h>
#include <nbMaterialEditor/detail/ProjectionPlacing.h>
#include <nbOpenSGExt/nbContainerId.h>
#include <nbOpenSGExt/nbIsFinite.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGGeometry.h>

namespace {

using Settings = osg::ColorComponentSettings;

osg::UInt32 idOf(const osg::FieldContainerPtr& container)
{
    return container == osg::NullFC ? 0 : container.getFieldContainerId();
}

void setPlacing(const osg::ColorComponentSettingsPtr& settings, osg::UInt32 id)
{
    if (settings != osg::NullFC) {
        const nbEdit edit(settings, Settings::PlacingIdFieldMask);
        settings->setPlacingId(id);
    }
}

}  // namespace

bool isFinite(const nbTransformState& state)
{
    return nbIsFinite(state.translation) && nbIsFinite(state.rotatePivot) &&
        nbIsFinite(state.scalePivot) && nbIsFinite(state.eulerRotation) &&
        nbIsFinite(state.scale) && nbIsFinite(state.rotationQuaternion) &&
        nbIsFinite(state.rotationOrientation);
}

float aspectOf(const osg::ImagePtr& image)
{
    return image == osg::NullFC || image->getWidth() <= 0 || image->getHeight() <= 0
        ? 1.0F
        : static_cast<float>(image->getWidth()) / static_cast<float>(image->getHeight());
}

void EditedComponent::setTarget(const osg::MaterialPtr& material, const osg::NodePtr& object,
                                const std::string& component, nbStateChunkBase* told)
{
    materialId = idOf(material);
    objectId = idOf(object);
    componentName = component;
    gui = told;
    recordedStep = 0;
    endDrag();
    showPlacing(std::nullopt);
}

osg::UberMaterialPtr EditedComponent::material() const
{
    return resolveContainer<osg::UberMaterialPtr>(materialId);
}

osg::NodePtr EditedComponent::object() const
{
    return resolveContainer<osg::NodePtr>(objectId);
}

osg::ColorComponentSettingsPtr EditedComponent::settings() const
{
    const osg::UberMaterialPtr edited = material();
    return edited == osg::NullFC ? osg::ColorComponentSettingsPtr()
                                 : edited->getComponentSettings(componentName);
}

osg::Transform3DPtr EditedComponent::projection() const
{
    const osg::ColorComponentSettingsPtr edited = settings();
    return edited == osg::NullFC ? osg::Transform3DPtr() : edited->getPlanarProjection();
}

const EditedComponent::DragStart& EditedComponent::start()
{
    const osg::ColorComponentSettingsPtr edited = settings();
    const osg::Transform3DPtr core = projection();
    const nbUndoService* const undo = nbUndoService::the();
    // Both only grow.
    const osg::UInt64 undoCount = undo->getGroupChangeCount() + undo->getRestoreCount();
    if (!dragStart || dragStart->settingsId != idOf(edited) ||
        dragStart->projectionId != idOf(core) || dragStart->undoCount != undoCount) {
        dragStart =
            DragStart { idOf(edited), idOf(core), undoCount,
                        core == osg::NullFC ? nbTransformState() : nbTransformState::of(*core),
                        edited == osg::NullFC ? nbTextureValues() : nbTextureValues::of(*edited) };
    }
    return *dragStart;
}

void EditedComponent::showPlacing(const std::optional<nbTransformState>& state)
{
    const osg::ColorComponentSettingsPtr wanted =
        state ? settings() : osg::ColorComponentSettingsPtr();
    const auto shown = resolveContainer<osg::ColorComponentSettingsPtr>(placingSettingsId);
    if (wanted == shown &&
        (wanted == osg::NullFC || state->isSame(nbTransformState::of(*placing.get())))) {
        return;
    }
    if (wanted != shown) {
        setPlacing(shown, 0);
    }
    placing = osg::RefPtr<osg::Transform3DPtr>();
    if (wanted != osg::NullFC) {
        placing = osg::RefPtr<osg::Transform3DPtr>(osg::Transform3D::create());
        state->applyTo(placing.get());
        setPlacing(wanted, idOf(placing.get()));
    }
    placingSettingsId = idOf(wanted);
}

osg::BoxVolume EditedComponent::objectBounds() const
{
    return nbNodeUtils::getOwnBounds(object());
}

osg::NodePtr EditedComponent::spaceOf(const osg::NodePtr& hit) const
{
    const osg::NodePtr edited = object();
    if (edited != osg::NullFC &&
        (nbNodeUtils::hasParent(hit, edited) || nbNodeUtils::hasParent(edited, hit))) {
        return edited;
    }
    const auto geometry =
        hit == osg::NullFC ? osg::GeometryPtr() : osg::GeometryPtr::dcast(hit->getCore());
    const bool same = geometry != osg::NullFC && idOf(geometry->getMaterial()) == idOf(material());
    return same ? hit : osg::NodePtr();
}

// == Edits

bool EditedComponent::write(const osg::Transform3DPtr& core, const nbTransformState& state)
{
    if (state.isSame(nbTransformState::of(*core))) {
        return false;
    }
    nbUndoService::the()->noteTransform(core);
    state.applyTo(core);
    return true;
}

bool EditedComponent::write(const nbTextureValues& values)
{
    const osg::ColorComponentSettingsPtr edited = settings();
    if (edited == osg::NullFC || values == nbTextureValues::of(*edited)) {
        return false;
    }
    record();
    values.applyTo(edited);
    return true;
}

bool EditedComponent::clampZ()
{
    const osg::ColorComponentSettingsPtr edited = settings();
    if (edited->hasPlanarProjectionFlag(Settings::ClampZ)) {
        return false;
    }
    record();
    const nbEdit edit(edited, Settings::PlanarProjectionFlagsFieldMask);
    edited->setPlanarProjectionFlag(Settings::ClampZ, true);
    return true;
}

void EditedComponent::createProjection()
{
    if (settings() == osg::NullFC) {
        material()->setComponentSettings(componentName, Settings::create());
    }
    const osg::ColorComponentSettingsPtr edited = settings();
    if (edited->getPlanarProjection() != osg::NullFC) {
        return;
    }
    const osg::Transform3DPtr core = osg::Transform3D::create();
    const float aspect = aspectOf(material()->getImage(componentName));
    const osg::NodePtr node = object();
    const osg::Matrix worldFromObject = node != osg::NullFC ? node->getToWorld() : osg::Matrix();
    fittedProjection(objectBounds(), worldFromObject, aspect).applyTo(core);
    const nbEdit edit(edited, Settings::PlanarProjectionFieldMask);
    edited->setPlanarProjection(core);
}

nbTextureValues EditedComponent::fitted(nbTextureValues values, osg::Int32 projectionType) const
{
    const osg::NodePtr node = object();
    if (node == osg::NullFC) {
        return values;
    }
    if (projectionType == Settings::TireProjection && values.tireAutoParameter) {
        fitTire(objectBounds(), values);
    } else if (projectionType == Settings::TriplanarProjection &&
               values.hasSameTriplanar(nbTextureValues())) {
        fitTriplanar(objectBounds(), node->getToWorld(),
                     aspectOf(material()->getImage(componentName)), values);
    }
    return values;
}

// == Around edits

/// A step closes with one state, so one record is enough for all edits in it.
void EditedComponent::record()
{
    nbUndoService* const undo = nbUndoService::the();
    if (undo->isRecording() && recordedStep != undo->getOpenStep()) {
        recordedStep = undo->getOpenStep();
        undo->record(std::make_unique<nbStateRecord<ComponentState, osg::UberMaterialPtr>>(
            material(), ComponentState::of(material(), componentName)));
    }
}

void EditedComponent::makeEdit(const char* title, nbFunctionRef<void()> edit)
{
    endDrag();
    const nbScopedUndo scope(title);
    const ComponentState before = ComponentState::of(material(), componentName);
    record();
    edit();
    if (!before.isSame(before.now(material()))) {
        announce();
    }
}

void EditedComponent::announce()
{
    showPlacing(std::nullopt);
    nbController::setModified(1);
    if (gui != nullptr) {
        gui->componentChanged(componentName);
    }
}
