// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/textures/TextureTarget.h"

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGVector.h>

#include <array>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <manipulator/PlanarTextureManipulator.h>
#include <manipulator/TireProjectionManipulator.h>
#include <manipulator/TriplanarTextureManipulator.h>
#include <manipulator/UVTextureManipulator.h>

namespace viewer {

/// The gizmos for the ways in which a picture can lie on a surface, one of which is in use: that of
/// the projection that the target has.
class TextureGizmos
{
public:
    using Type = TextureTarget::Settings::TextureProjection;

    /// Least and greatest size that handles can be given, and the present one, in units of the
    /// gizmo's own.
    struct Size
    {
        float least;
        float most;
        float present;
    };

    /// @param receiver  name of the editor that the messages go to
    /// @param root      node that shown handles hang under
    TextureGizmos(const std::string& receiver, const osg::NodePtr& root);
    TextureGizmos(const TextureGizmos&) = delete;
    TextureGizmos& operator=(const TextureGizmos&) = delete;
    ~TextureGizmos();

    nbec::manipulator::AbstractManipulator& current();

    nbec::manipulator::PlanarTextureManipulator& planarGizmo() { return planar; }

    nbec::manipulator::TriplanarTextureManipulator& triplanarGizmo() { return triplanar; }

    nbec::manipulator::UVTextureManipulator& uvGizmo() { return uv; }

    /// Turns to the gizmo of the projection that the target has. @return whether it is another
    bool follow(const TextureTarget& target);

    /// Gives the gizmos what is edited; those of other projections get nothing.
    /// @param gui  handed to the gizmos
    void connect(const TextureTarget& target, nbStateChunkBase& gui);

    /// Where the handles of all but the planar projection stand.
    /// @param place  in the node's space
    void setAnchor(const osg::NodePtr& node, const osg::Pnt3f& place);

    /// Whether the gizmo in use can show a group of handles: "translate", "rotate", "scale",
    /// "rotateScale" or "universal".
    bool hasGroup(const std::string& word) const;
    /// Shows one that it has.
    void showGroup(const std::string& word);

    /// Whether a press on the picture grabs it, and whether it turns and grows about where the
    /// handles stand; see TextureFace. Both are so at the start.
    void setGrabsPicture(bool on);

    bool grabsPicture() const { return planar.grabsPicture(); }

    void setPivotsAtHandles(bool on);

    bool pivotsAtHandles() const { return uv.pivotsAtHandles(); }

    /// Places the handles of the gizmo in use anew.
    void place();
    /// The same after an edit, as far as it matters to them.
    void update();

    Size size() const;
    /// @param size  from least to most
    void setSize(float size);

private:
    /// A projection's gizmo and what all of them can do by operations of their own.
    struct Kind
    {
        nbec::manipulator::AbstractManipulator* gizmo = nullptr;
        std::map<std::string, std::function<void()>> groups;
        std::function<void()> place;
        std::function<float()> size;
        std::function<void(float)> setSize;
        float leastSize = 0.0F;
        float mostSize = 0.0F;
    };

    static constexpr std::size_t kKinds = 4;

    template <class Gizmo>
    Kind makeKind(Gizmo& gizmo, std::vector<std::pair<const char*, void (Gizmo::*)()>> groups);

    const Kind& kind() const { return kinds[static_cast<std::size_t>(type)]; }

    nbec::manipulator::PlanarTextureManipulator planar;
    nbec::manipulator::TriplanarTextureManipulator triplanar;
    nbec::manipulator::UVTextureManipulator uv;
    nbec::manipulator::TireProjectionManipulator tire;
    std::array<Kind, kKinds> kinds;  ///< by number of the projection
    Type type = Type::PlanarProjection;
};

}  // namespace viewer
