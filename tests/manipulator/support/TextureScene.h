// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/PlanarTextureManipulator.h"
#include "manipulator/TireProjectionManipulator.h"
#include "manipulator/TriplanarTextureManipulator.h"
#include "manipulator/UVTextureManipulator.h"
#include "tests/manipulator/support/HandleScene.h"

#include <nbMaterialEditor/nbMaterialEditor.h>

namespace nbec::manipulator::test {

/// A scene whose box wears a material with a projection of a picture: a planar one, from -1 to 1 at
/// the origin, or another, with the gizmo anchored at the box's origin. The messages go to a log,
/// or to a real editor.
class TextureScene : public HandleScene
{
public:
    enum class Receiver
    {
        Log,
        Editor
    };

    explicit TextureScene(PlanarTextureManipulator& planar, Receiver receiver = Receiver::Log);
    explicit TextureScene(AnchoredTextureManipulator& gizmo, Receiver receiver = Receiver::Log);

    void editSettings(const std::function<void(const osg::ColorComponentSettingsPtr&)>& change);

    /// What "::getScaleValues" is answered with; nothing at the start.
    std::function<void(nbMessage&)> scaleReply;

    osg::UberMaterialRefPtr material;
    osg::ColorComponentSettingsPtr settings;
    osg::Transform3DPtr projection;  ///< planar
    std::unique_ptr<nbMaterialEditor> editor;

private:
    TextureScene(AbstractManipulator& gizmo, Receiver receiver, const char* changed, int type);
};

/// A scene with its gizmo, which is seen from the front with all its handles.
template <class Gizmo>
class TextureSceneOf : public Owned<Gizmo>, public TextureScene
{
public:
    explicit TextureSceneOf(Receiver receiver = Receiver::Log)
        : TextureScene(Owned<Gizmo>::gizmo, receiver)
    { }
};

class PlanarScene : public TextureSceneOf<PlanarTextureManipulator>
{
public:
    using TextureSceneOf<PlanarTextureManipulator>::TextureSceneOf;

    osg::Pnt3f inWorld(const osg::Vec3f& inProjection) const;
};

}  // namespace nbec::manipulator::test
