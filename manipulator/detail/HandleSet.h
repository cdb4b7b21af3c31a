// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/detail/HandleShapes.h"

#include <nbOpenSGExt/Transform3D.h>

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSimpleMaterial.h>

#include <array>
#include <cstddef>
#include <initializer_list>
#include <vector>

namespace nbec::manipulator::detail {

/// Node that places what is below it.
enum class Holder
{
    None,
    Component,  ///< ComponentTransform core
    Euler  ///< Transform3D core, turned by angles
};

/// One drawn piece of a handle.
struct HandlePart
{
    HandleShape shape;
    std::size_t idle;  ///< material, by its place in the set's list
    std::size_t special;  ///< material in the modes with special colours
    Holder holder = Holder::None;
    std::array<float, 3> place = { 0.0F, 0.0F, 0.0F };  ///< of the holder
    Turn turn = Turn::None;  ///< of the holder
};

/// One handle. The order of rows is that of the comparison of names and of the tree.
struct HandleRow
{
    static constexpr std::size_t kMostParts = 3;

    const char* name;
    int activeMode;  ///< not 0
    int group;  ///< -1: directly below the root, before the groups
    int highlightedWith;  ///< further active mode in which the handle is highlighted; 0 none
    Holder holder;  ///< not None
    std::array<float, 3> place;
    Turn turn;
    std::size_t partCount;
    std::array<HandlePart, kMostParts> parts;
};

/// A row whose parts lie where their shapes do, below a ComponentTransform.
HandleRow makeHandleRow(const char* name, int activeMode, int group,
                        std::initializer_list<HandlePart> parts,
                        const std::array<float, 3>& place = {}, Turn turn = Turn::None);

/// Number of groups of a set: handles that translate, rotate and scale.
constexpr std::size_t kHandleGroupCount = 3;

/// A set of handles that can be shown.
struct HandleModeRow
{
    int mode;
    std::array<bool, kHandleGroupCount> isGroupHidden;
    int hiddenHandle;  ///< active mode of a further handle that is hidden; 0 none
    bool hasSpecialColors;
};

/// All handles of a class of gizmos as data.
struct HandleTable
{
    std::vector<HandleRow> rows;
    std::vector<HandleModeRow> modes;
    std::size_t highlight;  ///< material of a highlighted handle
    std::size_t groupCount = kHandleGroupCount;  ///< 0 if no row is in a group
};

/// The handles of one gizmo: a tree of nodes built from a table, its colours and visibility.
///
/// The root has a Transform3D core, and below it the handles without a group and then one node with
/// a Transform3D core for each group, if there are any, in their order. Every node of a handle
/// bears the handle's name. All showing and hiding acts on the nodes that share a core, so that a
/// depth-pass copy follows. A copy of the set shares the tree.
class HandleSet
{
public:
    using Materials = std::vector<osg::SimpleMaterialRefPtr>;

    /// @param handleTable  outlives the set
    /// @param handleMaterials  those that the table names by their places
    HandleSet(const HandleTable& handleTable, Materials handleMaterials);

    osg::NodePtr getRoot() const { return root.get(); }

    osg::Transform3DPtr getRootTransform() const;
    osg::Transform3DPtr getGroupTransform(std::size_t group) const;

    /// Top node of the handle of a row.
    osg::NodePtr getNode(std::size_t row) const { return handles[row].top; }

    /// The active mode of a node that is a handle's by its name and lies below another; 0 for any
    /// other node and null.
    int detect(const osg::NodePtr& node, const osg::NodePtr& below) const;

    /// Row of a mode; null if the table has none.
    const HandleModeRow* findMode(int mode) const;

    /// Gives each part its material. @param mode  says which colours
    void setDefaultMaterials(int mode);
    /// @param activeMode  of the handle; 0 for none
    void highlight(int activeMode);

    void showRoot(bool isVisible);
    void showAll();
    void hideAll();
    /// Shows all but what a mode hides.
    void showMode(const HandleModeRow& mode);
    /// Hides all handles but one. @param activeMode  0 shows all
    void showOnly(int activeMode);
    /// Shows again what the last showOnly() has hidden.
    void showHidden();

private:
    struct Nodes
    {
        osg::NodePtr top;
        std::array<osg::NodePtr, HandleRow::kMostParts> holders;  ///< or the part where none is
        std::array<osg::NodePtr, HandleRow::kMostParts> parts;
        bool isHiddenForDrag = false;
    };

    static Nodes buildHandle(const HandleRow& row);

    const HandleTable* table;
    Materials materials;
    osg::RefPtr<osg::NodePtr> root;
    std::vector<osg::NodePtr> groups;
    std::vector<Nodes> handles;
};

}  // namespace nbec::manipulator::detail
