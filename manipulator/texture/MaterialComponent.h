// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernel/nbController.h>
#include <nbOpenSGExt/nbContainerId.h>
#include <nbOpenSGUberMaterial/ColorComponentSettings.h>
#include <nbOpenSGUberMaterial/UberMaterial.h>
#include <nbOpenSGUberMaterial/nbStateChunkBase.h>
#include <nbUtils/nbFunctionRef.h>
#include <nbUtils/nbGuard.h>
#include <nbUtils/nbMessage.h>

#include <OpenSG/OSGMaterial.h>

#include <string>

namespace nbec::manipulator::texture {

/// The component of a material that a texture gizmo edits, and who is told of its edits. The
/// material is kept by its container id and looked up on each use, so that one that was deleted
/// reads as null.
class MaterialComponent
{
public:
    /// @param editedMaterial  null for none  @param component  name within the material
    /// @param editor          object of the host that mirrors the component, not owned, may be null
    void set(const osg::MaterialPtr& editedMaterial, const std::string& component,
             nbStateChunkBase* editor)
    {
        materialId = containerId(editedMaterial);
        name = component;
        gui = editor;
    }

    /// The material; null if there is none or it no longer exists.
    osg::MaterialPtr getMaterial() const { return resolveContainer<osg::MaterialPtr>(materialId); }

    /// The material as one with components; null if it is of another class.
    osg::UberMaterialPtr getUberMaterial() const
    {
        return resolveContainer<osg::UberMaterialPtr>(materialId);
    }

    /// The component's settings; null without such a material or without settings.
    osg::ColorComponentSettingsPtr getSettings() const
    {
        const osg::UberMaterialPtr material = getUberMaterial();
        return material != osg::NullFC ? material->getComponentSettings(name)
                                       : osg::ColorComponentSettingsPtr();
    }

    /// Whether the material is the given one; false for null.
    bool isOf(const osg::MaterialPtr& other) const
    {
        return materialId != 0 && materialId == containerId(other);
    }

    /// The same, and the component has exactly the given name.
    bool is(const osg::MaterialPtr& other, const std::string& component) const
    {
        return isOf(other) && name == component;
    }

    const std::string& getName() const { return name; }

    nbStateChunkBase* getGUI() const { return gui; }

    void setGUI(nbStateChunkBase* editor) { gui = editor; }

    /// Has values read from the host's object, if that has the component; what it throws is logged.
    /// @return whether all were read
    bool readGUI(nbFunctionRef<void(const nbStateChunkBase&)> read) const
    {
        return gui != nullptr && nbGuarded("The editor object of a component", [&] {
                   const bool isKnown = gui->hasComponent(name);
                   if (isKnown) {
                       read(*gui);
                   }
                   return isKnown;
               });
    }

    void setReceiver(const std::string& prefix) { receiver = prefix; }

    /// Sends a message to the host's editor, which may write replies into it. Afterwards nothing
    /// that was edited need exist any more (see Manipulator): it is looked up by its id again.
    /// @param suffix  follows the receiver's name directly, begins with "::"
    void send(const char* suffix, nbMessage& message) const
    {
        nbController::call((receiver + suffix).c_str(), message, 0);
    }

private:
    std::string receiver;
    osg::UInt32 materialId = 0;
    std::string name;
    nbStateChunkBase* gui = nullptr;
};

}  // namespace nbec::manipulator::texture
