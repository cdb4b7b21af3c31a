// SPDX-License-Identifier: MIT
#include "viewer/textures/TextureGizmos.h"

namespace viewer {
namespace {

using nbec::manipulator::AnchoredTextureManipulator;
using nbec::manipulator::PlanarTextureManipulator;
using nbec::manipulator::TireProjectionManipulator;
using nbec::manipulator::TriplanarTextureManipulator;
using nbec::manipulator::UVTextureManipulator;
using Settings = TextureTarget::Settings;

constexpr float kMostSize = 150.0F;
constexpr float kLeastUvSize = 0.01F;
constexpr float kMostUvSize = 0.1F;

}  // namespace

template <class Gizmo>
TextureGizmos::Kind
TextureGizmos::makeKind(Gizmo& gizmo, std::vector<std::pair<const char*, void (Gizmo::*)()>> groups)
{
    Kind made;
    made.gizmo = &gizmo;
    for (const auto& [word, show] : groups) {
        made.groups[word] = [&gizmo, show = show] { (gizmo.*show)(); };
    }
    made.place = &Gizmo::updateAllManipulators;
    made.size = &Gizmo::getManipulatorSize;
    made.setSize = &Gizmo::setManipulatorSize;
    made.mostSize = kMostSize;
    return made;
}

TextureGizmos::TextureGizmos(const std::string& receiver, const osg::NodePtr& root)
{
    using Planar = PlanarTextureManipulator;
    using Triplanar = TriplanarTextureManipulator;
    using Uv = UVTextureManipulator;
    using Tire = TireProjectionManipulator;
    kinds[Settings::PlanarProjection] =
        makeKind<Planar>(planar,
                         { { "translate", &Planar::activateTranslateManipulator },
                           { "rotate", &Planar::activateRotateManipulator },
                           { "scale", &Planar::activateScaleManipulator },
                           { "universal", &Planar::activateUniversalManipulator } });
    kinds[Settings::TriplanarProjection] =
        makeKind<Triplanar>(triplanar,
                            { { "rotate", &Triplanar::activateRotateManipulator },
                              { "rotateScale", &Triplanar::activateRotateScaleManipulator },
                              { "universal", &Triplanar::activateUniversalManipulator } });
    kinds[Settings::UVProjection] =
        makeKind<Uv>(uv,
                     { { "translate", &Uv::activateTranslateManipulator },
                       { "rotate", &Uv::activateRotateManipulator },
                       { "scale", &Uv::activateScaleManipulator },
                       { "rotateScale", &Uv::activateRotateScaleManipulator },
                       { "universal", &Uv::activateUniversalManipulator } });
    kinds[Settings::UVProjection].leastSize = kLeastUvSize;
    kinds[Settings::UVProjection].mostSize = kMostUvSize;
    kinds[Settings::TireProjection] =
        makeKind<Tire>(tire,
                       { { "translate", &Tire::activateTranslateManipulator },
                         { "scale", &Tire::activateScaleManipulator },
                         { "universal", &Tire::activateUniversalManipulator } });
    planar.setMessageReceiver(receiver);
    triplanar.setMessageReceiver(receiver);
    uv.setMessageReceiver(receiver);
    tire.setMessageReceiver(receiver);
    for (const Kind& each : kinds) {
        each.gizmo->setVisualisationRoot(root);
    }
    setGrabsPicture(true);
    setPivotsAtHandles(true);
}

TextureGizmos::~TextureGizmos()
{
    planar.setNode({});
}

nbec::manipulator::AbstractManipulator& TextureGizmos::current()
{
    return *kind().gizmo;
}

bool TextureGizmos::follow(const TextureTarget& target)
{
    const Type before = type;
    type = target.projectionType();
    return type != before;
}

void TextureGizmos::connect(const TextureTarget& target, nbStateChunkBase& gui)
{
    const osg::MaterialPtr material = target.material();
    const bool isThere = target.settings() != osg::NullFC;
    planar.setMaterialComponent(material, target.component(), &gui);
    const bool isPlanar = type == Settings::PlanarProjection;
    planar.setNode(isPlanar && target.projection() != osg::NullFC ? target.object()
                                                                  : osg::NodePtr());
    const std::pair<AnchoredTextureManipulator*, Type> anchored[] = {
        { &triplanar, Type::TriplanarProjection },
        { &uv, Type::UVProjection },
        { &tire, Type::TireProjection },
    };
    for (const auto& [gizmo, itsType] : anchored) {
        gizmo->setMaterialComponent(isThere && itsType == type ? material : osg::MaterialPtr(),
                                    target.component(), &gui);
    }
    const osg::ImagePtr image = target.image();
    if (image != osg::NullFC && image->getHeight() > 0) {
        uv.setAspectRatio(static_cast<float>(image->getWidth()) /
                          static_cast<float>(image->getHeight()));
    }
}

void TextureGizmos::setAnchor(const osg::NodePtr& node, const osg::Pnt3f& place)
{
    triplanar.setAnchor(node, place);
    uv.setAnchor(node, place);
    tire.setAnchor(node, place);
}

void TextureGizmos::setGrabsPicture(bool on)
{
    planar.setGrabsPicture(on);
    triplanar.setGrabsPicture(on);
    uv.setGrabsPicture(on);
}

void TextureGizmos::setPivotsAtHandles(bool on)
{
    triplanar.setPivotsAtHandles(on);
    uv.setPivotsAtHandles(on);
}

bool TextureGizmos::hasGroup(const std::string& word) const
{
    return kind().groups.count(word) != 0;
}

void TextureGizmos::showGroup(const std::string& word)
{
    kind().groups.at(word)();
}

void TextureGizmos::place()
{
    kind().place();
}

void TextureGizmos::update()
{
    // Those of a tire are where its values say, which nothing else tells them.
    current().update(type == Settings::TireProjection);
}

TextureGizmos::Size TextureGizmos::size() const
{
    return { kind().leastSize, kind().mostSize, kind().size() };
}

void TextureGizmos::setSize(float size)
{
    kind().setSize(size);
    kind().place();
}

}  // namespace viewer
