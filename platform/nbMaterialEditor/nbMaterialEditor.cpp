// SPDX-License-Identifier: MIT
#include "nbMaterialEditor.h"

#include <nbKernel/nbController.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbKernelServices/nbScopedUndo.h>
#include <nbMaterialEditor/detail/EditedComponent.h>
#include <nbMaterialEditor/detail/ProjectionChange.h>
#include <nbMaterialEditor/detail/ProjectionPlacing.h>
#include <nbMaterialEditor/detail/ValueChange.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbUtils/nbLog.h>

#include <QtCore/QCoreApplication>

#include <cmath>
#include <map>
#include <optional>

namespace {

using Settings = osg::ColorComponentSettings;

constexpr const char* kScaleValues = "::getScaleValues";
constexpr const char* kChanged = "::changedPlanarManipulator";
constexpr const char* kChangedTriplanar = "::changedTriplanarManipulator";
constexpr const char* kChangedUv = "::changedUVManipulator";
constexpr const char* kChangedTire = "::changedTireManipulator";
constexpr const char* kPlace = "::placeTexture";

// Texts for people, translated when a step is made.
constexpr const char* kChangeTitle = QT_TRANSLATE_NOOP("Manipulator", "Edit Texture Projection");
constexpr const char* kPlaceTitle = QT_TRANSLATE_NOOP("Manipulator", "Place Texture");
constexpr const char* kImageTitle = QT_TRANSLATE_NOOP("Manipulator", "Set Texture");
constexpr const char* kSettingsTitle = QT_TRANSLATE_NOOP("Manipulator", "Edit Texture Settings");
constexpr const char* kTypeTitle = QT_TRANSLATE_NOOP("Manipulator", "Switch Texture Projection");

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

struct nbMaterialEditor::Impl final : public EditedComponent
{
    std::string receiver;

    void refuse(const char* message, const std::string& reason) const;

    void replyScaleValues(nbMessage& message) const;
    void change(const nbMessage& message);
    void changeValues(const char* name, nbValueChange::Read read, const nbMessage& message);
    void place(const nbMessage& message);
    void placeAt(const osg::NodePtr& space, const osg::Pnt3f& point, const osg::Vec3f& normal);
    /// The projection after a placing. With a projection only.
    /// @return nothing if the place is not finite or the object is flat
    std::optional<nbTransformState> placed(const osg::NodePtr& space, const osg::Pnt3f& point,
                                           const osg::Vec3f& normal,
                                           const nbTransformState& from) const;

    float placingAngle = 0.0F;
    float placingSize = 1.0F;
};

void nbMaterialEditor::Impl::refuse(const char* message, const std::string& reason) const
{
    nbLog::warning(receiver + message + ": " + reason + "; nothing is changed");
}

// == Messages

void nbMaterialEditor::Impl::replyScaleValues(nbMessage& message) const
{
    const osg::Transform3DPtr core = projection();
    if (core == osg::NullFC) {
        return;
    }
    const osg::Vec3f scale = core->getScale();
    const float aspect = aspectOf(material()->getImage(component()));
    message.set("initialTextureScale", naturalScale(aspect), true);
    message.set("projectionSize", osg::Vec2f(2.0F * scale.x(), 2.0F * scale.y()), true);
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
    const nbTransformState state = wanted->applyTo(start().projection, nbTransformState::of(*core));
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

void nbMaterialEditor::Impl::changeValues(const char* name, nbValueChange::Read read,
                                          const nbMessage& message)
{
    const osg::ColorComponentSettingsPtr edited = settings();
    if (edited == osg::NullFC) {
        refuse(name, "the component has no settings");
        return;
    }
    const bool wasAutomatic = edited->getTireAutoParameter();
    nbTextureValues values = nbTextureValues::of(*edited);
    std::string reason;
    if (!read(message, start().values, values, reason)) {
        refuse(name, reason);
        return;
    }
    if (values.tireAutoParameter && !wasAutomatic) {
        values = fitted(values, Settings::TireProjection);
    }
    const nbScopedUndo scope(kChangeTitle);
    if (write(values)) {
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

std::optional<nbTransformState> nbMaterialEditor::Impl::placed(const osg::NodePtr& space,
                                                               const osg::Pnt3f& point,
                                                               const osg::Vec3f& normal,
                                                               const nbTransformState& from) const
{
    osg::Pnt3f ownPoint;
    osg::Vec3f ownNormal;
    const osg::Matrix worldFromSpace = space->getToWorld();
    if (!toObject(worldFromSpace, point, normal, ownPoint, ownNormal)) {
        return std::nullopt;
    }
    nbTransformState state = nbTransformState::of(*projection());
    state.translation = osg::Vec3f(ownPoint.x(), ownPoint.y(), ownPoint.z());
    if (ownNormal.length() > 0.0F) {
        standOn(worldFromSpace, ownNormal, nbOSGWidget::isCameraZUp(), placingAngle, from, state);
        state.scale[0] *= placingSize;
        state.scale[1] *= placingSize;
    }
    return isFinite(state) ? std::optional(state) : std::nullopt;
}

void nbMaterialEditor::Impl::placeAt(const osg::NodePtr& space, const osg::Pnt3f& point,
                                     const osg::Vec3f& normal)
{
    const osg::Transform3DPtr core = projection();
    const std::optional<nbTransformState> state =
        core == osg::NullFC ? std::nullopt : placed(space, point, normal, start().projection);
    if (!state) {
        refuse(kPlace,
               core == osg::NullFC ? "there is no projection"
                                   : "the place is not finite or the object is flat");
        return;
    }
    const nbScopedUndo scope(kPlaceTitle);
    if (write(core, *state)) {
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
    const std::pair<const char*, nbValueChange::Read> valueMessages[] = {
        { kChangedTriplanar, &nbValueChange::readTriplanar },
        { kChangedUv, &nbValueChange::readUv },
        { kChangedTire, &nbValueChange::readTire },
    };
    for (const auto& [name, read] : valueMessages) {
        nbController::addReceiver(receiverName + name,
                                  [self, suffix = name, reader = read](nbMessage& message) {
                                      self->changeValues(suffix, reader, message);
                                  });
    }
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
    for (const char* name :
         { kScaleValues, kChanged, kChangedTriplanar, kChangedUv, kChangedTire, kPlace }) {
        nbController::removeReceiver(impl->receiver + name);
    }
}

void nbMaterialEditor::setMaterial(const osg::MaterialPtr& material, const osg::NodePtr& object,
                                   const std::string& component, nbStateChunkBase* gui)
{
    impl->setTarget(material, object, component, gui);
}

osg::UberMaterialPtr nbMaterialEditor::getMaterial() const
{
    return impl->material();
}

const std::string& nbMaterialEditor::getComponent() const
{
    return impl->component();
}

osg::ColorComponentSettingsPtr nbMaterialEditor::getSettings() const
{
    return impl->settings();
}

osg::Transform3DPtr nbMaterialEditor::getProjection() const
{
    return impl->projection();
}

// == Placing

void nbMaterialEditor::setPlacingTurn(float angle, float size)
{
    if (std::isfinite(angle) && std::isnormal(size)) {
        impl->placingAngle = angle;
        impl->placingSize = size;
    }
}

bool nbMaterialEditor::showPlacing(const osg::NodePtr& hitNode, const osg::Pnt3f& hitPoint,
                                   const osg::Vec3f& hitNormal)
{
    const osg::Transform3DPtr core = impl->projection();
    const osg::NodePtr space = impl->spaceOf(hitNode);
    const std::optional<nbTransformState> state = core == osg::NullFC || space == osg::NullFC
        ? std::nullopt
        : impl->placed(space, hitPoint, hitNormal, nbTransformState::of(*core));
    impl->showPlacing(state);
    return state.has_value();
}

// == Edits

bool nbMaterialEditor::setImage(const osg::ImagePtr& image)
{
    const osg::UberMaterialPtr material = impl->material();
    if (material == osg::NullFC) {
        return false;
    }
    impl->makeEdit(kImageTitle, [&] {
        material->setImage(impl->component(), image);
        if (image != osg::NullFC) {
            impl->createProjection();
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
    impl->endDrag();
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
    impl->makeEdit(kSettingsTitle, [&] {
        const nbEdit edit(settings, Settings::PlanarProjectionFlagsFieldMask);
        settings->setPlanarProjectionFlags(flags);
        if ((switchedOn & Settings::KeepAspectRatio) != 0 && core != osg::NullFC) {
            nbTransformState state = nbTransformState::of(*core);
            state.scale[1] =
                state.scale[0] / aspectOf(impl->material()->getImage(impl->component()));
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
    impl->makeEdit(kSettingsTitle, [&] {
        const nbEdit edit(settings, Settings::AsMaskFieldMask | Settings::InvertFieldMask);
        settings->setAsMask(asMask);
        settings->setInvert(invert);
    });
    return true;
}

bool nbMaterialEditor::setTextureProjectionType(osg::Int32 type)
{
    const osg::ColorComponentSettingsPtr settings = impl->settings();
    if (settings == osg::NullFC || type < Settings::UVProjection ||
        type > Settings::TireProjection) {
        return false;
    }
    impl->makeEdit(kTypeTitle, [&] {
        {
            const nbEdit edit(settings, Settings::TextureProjectionTypeFieldMask);
            settings->setTextureProjectionType(type);
        }
        if (type == Settings::PlanarProjection) {
            impl->createProjection();
        }
        impl->write(impl->fitted(nbTextureValues::of(*settings), type));
    });
    return true;
}

bool nbMaterialEditor::setTextureValues(const nbTextureValues& values)
{
    const osg::ColorComponentSettingsPtr settings = impl->settings();
    if (settings == osg::NullFC || !values.isSound()) {
        return false;
    }
    const bool fits = values.tireAutoParameter && !settings->getTireAutoParameter();
    impl->makeEdit(kChangeTitle, [&] {
        impl->write(fits ? impl->fitted(values, Settings::TireProjection) : values);
    });
    return true;
}
