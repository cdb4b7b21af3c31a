// SPDX-License-Identifier: MIT
#include "nbMaterialEditor.h"

#include <nbKernel/nbController.h>
#include <nbKernelServices/nbScopedUndo.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbMaterialEditor/detail/ComponentRecord.h>
#include <nbMaterialEditor/detail/PreviewMessages.h>
#include <nbMaterialEditor/detail/ProjectionChange.h>
#include <nbMaterialEditor/detail/ProjectionPlacing.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbUtils/nbLog.h>

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGGeometry.h>

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>

namespace {

using Settings = osg::ColorComponentSettings;

constexpr const char* kScaleValues = "::getScaleValues";
constexpr const char* kChanged = "::changedPlanarManipulator";
constexpr const char* kPlace = "::placeTexture";

// Texts for people, translated when a step is made.
constexpr const char* kChangeTitle = QT_TRANSLATE_NOOP("Manipulator", "Edit Texture Projection");
constexpr const char* kPlaceTitle = QT_TRANSLATE_NOOP("Manipulator", "Place Texture");
constexpr const char* kImageTitle = QT_TRANSLATE_NOOP("Manipulator", "Set Texture");
constexpr const char* kSettingsTitle = QT_TRANSLATE_NOOP("Manipulator", "Edit Texture Settings");

osg::FieldContainerPtr resolve(osg::UInt32 id)
{
    return osg::FieldContainerFactory::the()->getContainer(id);
}

osg::UInt32 idOf(const osg::FieldContainerPtr& container)
{
    return container == osg::NullFC ? 0 : container.getFieldContainerId();
}

float aspectOf(const osg::ImagePtr& image)
{
    return image == osg::NullFC || image->getWidth() <= 0 || image->getHeight() <= 0
        ? 1.f
        : static_cast<float>(image->getWidth()) / static_cast<float>(image->getHeight());
}

template <class Vector>
bool isFiniteVector(const Vector& vector)
{
    const float* const values = vector.getValues();
    return std::all_of(values, values + sizeof(Vector) / sizeof(float),
                       [](float v) { return std::isfinite(v); });
}

bool isFinite(const nbTransformState& state)
{
    return isFiniteVector(state.translation) && isFiniteVector(state.rotatePivot) &&
        isFiniteVector(state.scalePivot) && isFiniteVector(state.eulerRotation) &&
        isFiniteVector(state.scale) && isFiniteVector(state.rotationQuaternion) &&
        isFiniteVector(state.rotationOrientation);
}

/// Who receives the messages of a name, so that an older editor of that name takes nothing away.
std::map<std::string, const void*>& newestEditors()
{
    static std::map<std::string, const void*> editors;
    return editors;
}

template <class Value>
const Value* attribute(const nbMessage& message, const char* name)
{
    const boost::any* const value = message.find(name);
    return value == nullptr ? nullptr : boost::any_cast<Value>(value);
}

}  // namespace

struct nbMaterialEditor::Impl final : public PreviewMessages
{
    /// The projection as it was when the drag began.
    struct DragStart
    {
        osg::UInt32 projectionId = 0;
        osg::UInt64 undoCount = 0;
        nbTransformState state;
    };

    std::string receiver;
    osg::UInt32 materialId = 0;
    osg::UInt32 objectId = 0;
    std::string component;
    nbStateChunkBase* gui = nullptr;
    std::optional<DragStart> dragStart;

    void previewEnabled(bool) override { dragStart.reset(); }

    osg::UberMaterialPtr material() const
    {
        return osg::UberMaterialPtr::dcast(resolve(materialId));
    }

    osg::NodePtr object() const { return osg::NodePtr::dcast(resolve(objectId)); }

    osg::ColorComponentSettingsPtr settings() const;
    osg::Transform3DPtr projection() const;
    const nbTransformState& startOf(const osg::Transform3DPtr& core);
    void refuse(const char* message, const std::string& reason) const;
    void announce();
    bool write(const osg::Transform3DPtr& core, const nbTransformState& state);
    void recordComponent() const;
    /// Has `edit` change the component, as one undo scope.
    template <class Edit>
    void editComponent(const char* title, const Edit& edit);
    bool clampZ();
    void createProjection(float aspect);
    osg::NodePtr spaceOf(const osg::NodePtr& hit) const;

    void replyScaleValues(nbMessage& message) const;
    void change(const nbMessage& message);
    void place(const nbMessage& message);
    void placeAt(const osg::NodePtr& space, const osg::Pnt3f& point, const osg::Vec3f& normal);
};

osg::ColorComponentSettingsPtr nbMaterialEditor::Impl::settings() const
{
    const osg::UberMaterialPtr edited = material();
    return edited == osg::NullFC ? osg::ColorComponentSettingsPtr()
                                 : edited->getComponentSettings(component);
}

osg::Transform3DPtr nbMaterialEditor::Impl::projection() const
{
    const osg::ColorComponentSettingsPtr edited = settings();
    return edited == osg::NullFC ? osg::Transform3DPtr() : edited->getPlanarProjection();
}

const nbTransformState& nbMaterialEditor::Impl::startOf(const osg::Transform3DPtr& core)
{
    const nbUndoService* const undo = nbUndoService::the();
    // Both only grow.
    const osg::UInt64 undoCount = undo->getGroupChangeCount() + undo->getRestoreCount();
    if (!dragStart || dragStart->projectionId != idOf(core) || dragStart->undoCount != undoCount) {
        dragStart = DragStart { idOf(core), undoCount, nbTransformState::of(*core) };
    }
    return dragStart->state;
}

void nbMaterialEditor::Impl::refuse(const char* message, const std::string& reason) const
{
    nbLog::warning(receiver + message + ": " + reason + "; nothing is changed");
}

void nbMaterialEditor::Impl::announce()
{
    nbController::setModified(1);
    if (gui != nullptr) {
        gui->componentChanged(component);
    }
}

/// @return whether anything is different now
bool nbMaterialEditor::Impl::write(const osg::Transform3DPtr& core, const nbTransformState& state)
{
    if (state.isSame(*core)) {
        return false;
    }
    nbUndoService::the()->noteTransform(core);
    state.applyTo(core);
    return true;
}

/// To be called before an edit.
void nbMaterialEditor::Impl::recordComponent() const
{
    nbUndoService::the()->record(std::make_unique<ComponentRecord>(material(), component));
}

/// @return whether anything is different now
bool nbMaterialEditor::Impl::clampZ()
{
    const osg::ColorComponentSettingsPtr edited = settings();
    if (edited->hasPlanarProjectionFlag(Settings::ClampZ)) {
        return false;
    }
    recordComponent();
    const nbEdit edit(edited, Settings::PlanarProjectionFlagsFieldMask);
    edited->setPlanarProjectionFlag(Settings::ClampZ, true);
    return true;
}

void nbMaterialEditor::Impl::createProjection(float aspect)
{
    if (settings() == osg::NullFC) {
        material()->setComponentSettings(component, Settings::create());
    }
    const osg::ColorComponentSettingsPtr edited = settings();
    if (edited->getPlanarProjection() != osg::NullFC) {
        return;
    }
    osg::BoxVolume bounds;
    bounds.setEmpty();
    if (const osg::NodePtr node = object(); node != osg::NullFC) {
        bounds = nbNodeUtils::getWorldBounds(node);
        osg::Matrix objectFromWorld;
        if (node->getToWorld().inverse(objectFromWorld)) {
            bounds.transform(objectFromWorld);
        }
    }
    const osg::Transform3DPtr core = osg::Transform3D::create();
    fittedProjection(bounds, aspect).applyTo(core);
    const nbEdit edit(edited, Settings::PlanarProjectionFieldMask);
    edited->setPlanarProjection(core);
}

/// The node in whose space the projection is for a hit: the object, if that was hit, or else
/// another node with the same material. Null if it has nothing to do with the material.
osg::NodePtr nbMaterialEditor::Impl::spaceOf(const osg::NodePtr& hit) const
{
    const osg::NodePtr edited = object();
    if (edited != osg::NullFC &&
        (nbNodeUtils::hasParent(hit, edited) || nbNodeUtils::hasParent(edited, hit))) {
        return edited;
    }
    const auto geometry =
        hit == osg::NullFC ? osg::GeometryPtr() : osg::GeometryPtr::dcast(hit->getCore());
    const bool same = geometry != osg::NullFC && idOf(geometry->getMaterial()) == materialId;
    return same ? hit : osg::NodePtr();
}

template <class Edit>
void nbMaterialEditor::Impl::editComponent(const char* title, const Edit& edit)
{
    dragStart.reset();
    const nbScopedUndo scope(title);
    const ComponentState before = ComponentState::of(material(), component);
    recordComponent();
    edit();
    if (!(before == ComponentState::of(material(), component))) {
        announce();
    }
}

// == Messages

void nbMaterialEditor::Impl::replyScaleValues(nbMessage& message) const
{
    const osg::Transform3DPtr core = projection();
    if (core == osg::NullFC) {
        return;
    }
    const osg::Vec3f scale = core->getScale();
    const float aspect = aspectOf(material()->getImage(component));
    message.set("initialTextureScale", naturalScale(aspect), true);
    message.set("projectionSize", osg::Vec2f(2.f * scale.x(), 2.f * scale.y()), true);
}

void nbMaterialEditor::Impl::change(const nbMessage& message)
{
    std::string reason;
    const std::optional<ProjectionChange> wanted = ProjectionChange::read(message, reason);
    const osg::Transform3DPtr core = projection();
    if (!wanted || core == osg::NullFC) {
        refuse(kChanged, wanted ? "there is no projection" : reason);
        return;
    }
    const nbTransformState state = wanted->applyTo(startOf(core), nbTransformState::of(*core));
    if (!isFinite(state)) {
        refuse(kChanged, "the projection would not be finite");
        return;
    }
    const nbScopedUndo scope(kChangeTitle);
    const bool moved = write(core, state);
    const bool clamped = wanted->clamping && clampZ();
    if (moved || clamped) {
        announce();
    }
}

void nbMaterialEditor::Impl::place(const nbMessage& message)
{
    const auto* const node = attribute<osg::NodePtr>(message, "hitNode");
    const auto* const point = attribute<osg::Pnt3f>(message, "hitPoint");
    const auto* const normal = attribute<osg::Vec3f>(message, "hitNormal");
    if (node == nullptr || point == nullptr || normal == nullptr) {
        refuse(kPlace, "an attribute is missing or has a wrong type");
    } else if (const osg::NodePtr space = spaceOf(*node); space != osg::NullFC) {
        placeAt(space, *point, *normal);
    }
}

void nbMaterialEditor::Impl::placeAt(const osg::NodePtr& space, const osg::Pnt3f& point,
                                     const osg::Vec3f& normal)
{
    const osg::Transform3DPtr core = projection();
    osg::Pnt3f ownPoint;
    osg::Vec3f ownNormal;
    if (core == osg::NullFC || !toObject(space->getToWorld(), point, normal, ownPoint, ownNormal)) {
        refuse(kPlace,
               core == osg::NullFC ? "there is no projection"
                                   : "the place is not finite or the object is flat");
        return;
    }
    const nbTransformState start = startOf(core);
    nbTransformState state = nbTransformState::of(*core);
    state.translation = osg::Vec3f(ownPoint.x(), ownPoint.y(), ownPoint.z());
    if (ownNormal.length() > 0.f) {
        turnZTo(start, ownNormal, state);
    }
    const nbScopedUndo scope(kPlaceTitle);
    if (write(core, state)) {
        announce();
    }
}

// == The editor

nbMaterialEditor::nbMaterialEditor(const std::string& receiverName)
    : impl(std::make_unique<Impl>())
{
    Impl* const self = impl.get();
    self->receiver = receiverName;
    newestEditors()[receiverName] = self;
    nbController::addReceiver(receiverName + kScaleValues,
                              [self](nbMessage& message) { self->replyScaleValues(message); });
    nbController::addReceiver(receiverName + kChanged,
                              [self](nbMessage& message) { self->change(message); });
    nbController::addReceiver(receiverName + kPlace,
                              [self](nbMessage& message) { self->place(message); });
}

nbMaterialEditor::~nbMaterialEditor()
{
    const auto newest = newestEditors().find(impl->receiver);
    if (newest == newestEditors().end() || newest->second != impl.get()) {
        return;
    }
    newestEditors().erase(newest);
    for (const char* name : { kScaleValues, kChanged, kPlace }) {
        nbController::removeReceiver(impl->receiver + name);
    }
}

void nbMaterialEditor::setMaterial(const osg::MaterialPtr& material, const osg::NodePtr& object,
                                   const std::string& component, nbStateChunkBase* gui)
{
    impl->materialId = idOf(osg::UberMaterialPtr::dcast(material));
    impl->objectId = idOf(object);
    impl->component = component;
    impl->gui = gui;
    impl->dragStart.reset();
}

const std::string& nbMaterialEditor::getReceiverName() const
{
    return impl->receiver;
}

osg::UberMaterialPtr nbMaterialEditor::getMaterial() const
{
    return impl->material();
}

osg::NodePtr nbMaterialEditor::getObject() const
{
    return impl->object();
}

const std::string& nbMaterialEditor::getComponent() const
{
    return impl->component;
}

osg::ColorComponentSettingsPtr nbMaterialEditor::getSettings() const
{
    return impl->settings();
}

osg::Transform3DPtr nbMaterialEditor::getProjection() const
{
    return impl->projection();
}

// == Edits

bool nbMaterialEditor::setImage(const osg::ImagePtr& image)
{
    const osg::UberMaterialPtr material = impl->material();
    if (material == osg::NullFC) {
        return false;
    }
    impl->editComponent(kImageTitle, [&] {
        material->setImage(impl->component, image);
        if (image != osg::NullFC) {
            impl->createProjection(aspectOf(image));
        }
    });
    return true;
}

bool nbMaterialEditor::setProjection(const nbTransformState& state)
{
    const osg::Transform3DPtr core = impl->projection();
    if (core == osg::NullFC || !isFinite(state)) {
        return false;
    }
    impl->dragStart.reset();
    const nbScopedUndo scope(kChangeTitle);
    if (impl->write(core, state)) {
        impl->announce();
    }
    return true;
}

bool nbMaterialEditor::setFlags(osg::UInt32 flags)
{
    const osg::ColorComponentSettingsPtr settings = impl->settings();
    if (settings == osg::NullFC) {
        return false;
    }
    const osg::Transform3DPtr core = impl->projection();
    const osg::UInt32 switchedOn = flags & ~settings->getPlanarProjectionFlags();
    impl->editComponent(kSettingsTitle, [&] {
        const nbEdit edit(settings, Settings::PlanarProjectionFlagsFieldMask);
        settings->setPlanarProjectionFlags(flags);
        if ((switchedOn & Settings::KeepAspectRatio) != 0 && core != osg::NullFC) {
            nbTransformState state = nbTransformState::of(*core);
            state.scale[1] = state.scale[0] / aspectOf(impl->material()->getImage(impl->component));
            impl->write(core, state);
        }
    });
    return true;
}

bool nbMaterialEditor::setCoverage(bool asMask, bool invert)
{
    const osg::ColorComponentSettingsPtr settings = impl->settings();
    if (settings == osg::NullFC) {
        return false;
    }
    impl->editComponent(kSettingsTitle, [&] {
        const nbEdit edit(settings, Settings::AsMaskFieldMask | Settings::InvertFieldMask);
        settings->setAsMask(asMask);
        settings->setInvert(invert);
    });
    return true;
}
