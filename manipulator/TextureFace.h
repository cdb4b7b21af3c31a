// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/GizmoFace.h"
#include "manipulator/texture/TextureGizmo.h"

namespace nbec::manipulator {

/// A manipulator that edits how the picture of one component of a material lies on a surface.
///
/// The gizmo only reads the material; each step of a drag goes as a message to the receiver that
/// the host named, whose answer shows once the material is read again. Node and material are kept
/// by their container ids: what was deleted reads as null, and the operations that need it answer
/// false or do nothing. Copies share the handle tree with their original and are not in the list of
/// live instances; a pause of the preview stays with the original. Everything runs on the
/// user-interface thread.
/// @tparam Base  see GizmoFace
template <class Base>
class TextureFace : public GizmoFace<Base>
{
public:
    TextureFace(const TextureFace& other)
        : GizmoFace<Base>(other, other.textureGizmo().clone())
    { }

    TextureFace& operator=(const TextureFace& other)
    {
        if (this != &other) {
            Base::operator=(other);
            this->gizmo = other.textureGizmo().clone();
            this->setDragControl(*this->gizmo);
        }
        return *this;
    }

    // == What is edited

    /// Prefix of the names of all messages to the editor; empty at the start.
    void setMessageReceiver(const std::string& receiver) { edited().setReceiver(receiver); }

    /// Shows what is edited; a gizmo at an anchor hides its handles if material or name are empty.
    /// @param material   held by its id; null for none
    /// @param component  name within the material
    /// @param gui        editor object of the host, not owned, may be null
    void setMaterialComponent(osg::MaterialPtr material, const std::string& component,
                              nbStateChunkBase* gui)
    {
        textureGizmo().setComponent(material, component, gui);
    }

    /// The material; null if there is none or it no longer exists.
    osg::MaterialPtr getMaterial() const { return edited().getMaterial(); }

    /// Whether the material is the edited one; false for null.
    bool isConnectedToMaterial(osg::MaterialPtr material) const { return edited().isOf(material); }

    /// Whether material and component are the edited ones.
    bool isConnectedTo(osg::MaterialPtr material, const std::string& component) const
    {
        return edited().is(material, component);
    }

    /// Name of the edited component.
    std::string getComponentType() const { return edited().getName(); }

    nbStateChunkBase* getGUI() const { return edited().getGUI(); }

    void setGUI(nbStateChunkBase* gui) { edited().setGUI(gui); }

    // == The picture itself; the tire gizmo leaves it alone

    /// Has a press beside the handles grab the picture where it is seen, as a handle "picture" of
    /// number 100: the texel under the pointer stays under it, on curved surfaces too. In a mode
    /// that shows the handles that turn alone the picture turns about that texel, half a degree for
    /// each logical pixel to the right, clockwise; in one for scaling it grows about it, to the
    /// double in 150 pixels to the right or up. Off at the start.
    void setGrabsPicture(bool on) { textureGizmo().grabsPicture = on; }

    bool grabsPicture() const { return textureGizmo().grabsPicture; }

    /// Has turns and scales keep the texel where the handles stand, by sending the offset along;
    /// off at the start: they are about where the projection has its origin. Of the planar gizmo,
    /// whose handles stand there, nothing changes; of the UV gizmo it is the texel that is seen
    /// there, and nothing without one.
    void setPivotsAtHandles(bool on) { textureGizmo().pivotsAtHandles = on; }

    bool pivotsAtHandles() const { return textureGizmo().pivotsAtHandles; }

    // == Handles shown

    /// Shows the handles of the current mode; the planar gizmo's are hidden without a node.
    void showActiveManipulator() { this->gizmo->showActive(); }

    /// Hides all handles.
    void hideManipulator() { this->gizmo->hide(); }

protected:
    explicit TextureFace(std::unique_ptr<texture::TextureGizmo> owned)
        : GizmoFace<Base>(std::move(owned))
    { }

    ~TextureFace() override = default;

    template <class Mode>
    void activateMode(Mode mode)
    {
        this->gizmo->activateMode(static_cast<int>(mode));
    }

    texture::TextureGizmo& textureGizmo() const
    {
        return static_cast<texture::TextureGizmo&>(*this->gizmo);
    }

private:
    texture::MaterialComponent& edited() const { return textureGizmo().component; }
};

}  // namespace nbec::manipulator
