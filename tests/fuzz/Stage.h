// SPDX-License-Identifier: MIT
#pragma once

#include "tests/fuzz/Bytes.h"
#include "tests/fuzz/WildGui.h"

#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbMaterialEditor/nbMaterialEditor.h>
#include <nbMaterialEditor/nbMaterialPreview.h>
#include <nbOpenSGSceneplate/Sceneplate.h>
#include <nbOpenSGUberMaterial/UberMaterial.h>
#include <nbSceneplateModule/nbSceneplateModule.h>

#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGNode.h>

#include <QtCore/QObject>

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace nbec::manipulator::test {

/// A host with views, cameras, a scene of nested nodes that wear materials, scene plates, an
/// editor, a preview and undo: all that actors may meet, and all of which may go at any moment.
class Stage
{
public:
    /// What a message handler may do to who sends the message, and what may happen at any time.
    enum class Fault : std::size_t
    {
        None,
        Throw,
        ThrowNumber,
        DropNode,
        DropMaterial,
        DropSettings,
        DropPlate,
        DropView,
        DropCamera,
        Undo,
        ClearTexts,
        Count
    };

    /// @param endOrder  bits of what goes before the manipulators at the end, and how they go
    explicit Stage(unsigned endOrder = 0);
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;
    ~Stage();

    /// Destroys what hosts may destroy before their manipulators and tools.
    void endEarly();

    bool hasManager() const { return ownManager.has_value(); }

    /// Whether contexts go before their manipulators.
    bool doContextsGoFirst() const { return (endBits & 4U) != 0; }

    /// Does something that hosts do beside driving manipulators.
    void act(Bytes& bytes);

    /// Has something happen. @param index  of the node, material, plate or camera
    void commit(Fault what, std::size_t index);
    /// Leaves it to the next handler, of the receiver "harm" or of the object service.
    /// @param index  as above
    void arm(Fault what, std::size_t index = 0);

    bool isArmed() const { return nextFault != Fault::None; }

    /// The platform's receivers in the place of any other.
    void renewReceivers();
    /// A view, in the place of the one that was dropped.
    void addView();
    void addNode(std::size_t index);
    void addMaterial(std::size_t index);
    void addPlate(std::size_t index);

    /// @return the first invariant of the scene that does not hold; empty if all do
    std::string check() const;

    // == What there is; null for what was deleted
    osg::NodePtr node(Bytes& bytes) const;
    osg::UberMaterialPtr material(Bytes& bytes) const;
    osg::NodePtr plate(Bytes& bytes) const;
    std::vector<osg::NodePtr> somePlates(Bytes& bytes) const;
    osg::UberCameraPtr camera(Bytes& bytes) const;
    /// A few pixels with or without alpha, the last image again, or null.
    osg::ImagePtr image(Bytes& bytes);
    /// Wild, an editor's, or null.
    nbStateChunkBase* gui(Bytes& bytes);

    /// What gizmos of pictures are given together.
    struct Edited
    {
        osg::UberMaterialPtr material;
        std::string component;
        nbStateChunkBase* gui;
    };

    Edited edited(Bytes& bytes) { return { material(bytes), component(bytes), gui(bytes) }; }

    // == What fits together, for beginning; null for what was deleted
    osg::NodePtr firstNode() const { return nodes[0].get(); }

    osg::UberCameraPtr firstCamera() const { return cameras[0].get(); }

    /// @param index  0 with a planar projection, 1 triplanar, 2 of a tire; becomes the editor's
    Edited firstEdited(std::size_t index);
    std::vector<osg::NodePtr> allPlates() const;

    /// Of the editor, of handlers that do harm, of nobody.
    std::string receiver(Bytes& bytes) const;
    std::string component(Bytes& bytes) const;
    std::string hint(Bytes& bytes) const;
    std::string mode(Bytes& bytes) const;

    /// The value of a plate, a projection or a component, for comparing.
    std::vector<float> values() const;

    // == Input
    /// Pixel of a place in the world, y from the top; needs the view.
    osg::Pnt2f pixelOf(const osg::Pnt3f& world) const;
    /// A place on screen: one on what is shown below a node, as a rule, or any other.
    osg::Pnt2f aimAt(const osg::NodePtr& tree, Bytes& bytes) const;
    void point(const osg::Pnt2f& px);
    /// Moves the pointer, as a rule to the target, and sends an event, as a rule a sensible one.
    void send(const osg::Pnt2f& target, Bytes& bytes);
    /// Presses on the target, goes a few steps, and releases, as a rule.
    void drag(const osg::Pnt2f& target, Bytes& bytes);

    std::unique_ptr<nbOSGWidget> view;
    interaction::Picker picker;
    std::optional<interaction::InteractionManager> ownManager { std::in_place };
    interaction::InteractionManager& manager = *ownManager;
    std::unique_ptr<nbMaterialEditor> editor;
    nbMaterialPreview preview;
    std::unique_ptr<nbSceneplateModule> plateModule;
    /// A root of helpers beside the usual one, in the scene at first.
    osg::RefPtr<osg::NodePtr> otherRoot;

private:
    static constexpr std::size_t kNodes = 4;
    static constexpr std::size_t kMaterials = 3;
    static constexpr std::size_t kPlates = 3;
    static constexpr std::size_t kCameras = 2;

    void listen(const std::string& name);
    void listenToObjects();
    void resize(Bytes& bytes);
    void editCamera(Bytes& bytes) const;
    void editNode(Bytes& bytes) const;
    void editMaterial(Bytes& bytes);
    void editPlate(Bytes& bytes);
    void editUndo(Bytes& bytes) const;
    void deleteOrAdd(Bytes& bytes);
    void dropNode(std::size_t index);
    void dropMaterial(std::size_t index);
    void dropPlate(std::size_t index);

    std::array<osg::RefPtr<osg::NodePtr>, kNodes> nodes;
    std::array<osg::UberMaterialRefPtr, kMaterials> materials;
    std::array<osg::RefPtr<osg::NodePtr>, kPlates> plates;
    std::array<osg::UberCameraRefPtr, kCameras> cameras;
    std::unique_ptr<nbOSGWidget> otherView;
    QObject listener;  ///< to the object service
    WildGui wildGui;
    osg::RefPtr<osg::ImagePtr> picture;  ///< made last
    unsigned endBits;  ///< 1: manager, 2: view, 4: contexts
    Fault nextFault = Fault::None;  ///< of a handler that does harm
    std::size_t faultIndex = 0;
};

}  // namespace nbec::manipulator::test
