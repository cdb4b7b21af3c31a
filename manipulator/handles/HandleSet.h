// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/handles/HandleNodes.h"
#include "manipulator/handles/HandleTable.h"
#include "manipulator/handles/HandleTrim.h"
#include "manipulator/nbManipulatorExport.h"

#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSimpleMaterial.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace nbec::manipulator {

/// The handles of one gizmo: a tree of nodes built from a table, with its colours and visibility.
///
/// Below the root are the handles without a group node and then the groups, in their order. Every
/// node of a handle bears the handle's name. All showing and hiding acts on the nodes that share a
/// core, so that a depth-pass copy follows. A copy of the set shares the tree.
class NB_MANIPULATOR_API HandleSet
{
public:
    using Materials = std::vector<osg::SimpleMaterialRefPtr>;

    /// @param handleMaterials  those that the table names by their places
    HandleSet(HandleTable handleTable, Materials handleMaterials);

    /// Goes on with a table that begins as the present one: builds what it has more, below the
    /// root. @param copies  also gets unnamed copies of that, for a depth pass
    void extend(HandleTable longer, const osg::NodePtr& copies);

    osg::NodePtr getRoot() const { return root.get(); }

    /// Origin of the root, world.
    osg::Pnt3f centre() const;

    /// Core of the root; null where the table's root has another one.
    osg::Transform3DPtr getRootTransform() const
    {
        return osg::Transform3DPtr::dcast(root->getCore());
    }

    osg::Transform3DPtr getGroupTransform(std::size_t group) const
    {
        return osg::Transform3DPtr::dcast(groups[group]->getCore());
    }

    /// Top node of the handle of a row.
    osg::NodePtr getNode(std::size_t row) const { return handles[row].top; }

    /// Geometries of the handle of a row of the table.
    const std::vector<osg::NodePtr>& partsOf(const HandleRow& row) const
    {
        return handles[static_cast<std::size_t>(&row - table->rows.data())].parts;
    }

    /// A material by its place in the list.
    osg::SimpleMaterialPtr getMaterial(std::size_t index) const { return materials[index].get(); }

    const HandleTable& getTable() const { return *table; }

    /// The first row of a handle; null for 0.
    const HandleRow* findRow(int handle) const;

    /// The row of the handle that does the same as another one along or about an axis of the gizmo,
    /// if a mode shows it; null without one.
    const HandleRow* findAlike(int handle, std::size_t axis, int mode) const;

    /// The row that a node is part of, as find(); null for any other node.
    const HandleRow* findRow(const osg::NodePtr& node) const;

    /// An axis of the frame in which a handle moves; world, unit length. @param row  of the table
    osg::Vec3f axisOf(const HandleRow& row, std::size_t axis) const;

    /// How well a handle's motion is seen: sine of the angle between the line of sight and the
    /// handle's axis, or the plane of its ring or plane. 1 for one without.
    /// @param row    of the table
    /// @param sight  world, unit length
    float openness(const HandleRow& row, const osg::Vec3f& sight) const;

    /// The handle that a node is part of, by its name; 0 for any other node and null. Rows are
    /// compared in their order, exactly.
    int find(const osg::NodePtr& node) const;

    // == Colours

    /// Gives handles their idle colours, and none is lit.
    /// @param mode  says which colours, and which handles, see HandleTable::restored
    void setDefaultMaterials(int mode);

    /// Lights one handle up, and those that go with it; the one before goes back to its idle
    /// colours. @param handle  0 for none @param mode  as for setDefaultMaterials()
    void light(int handle, int mode);

    /// Whether what is lit up has lines of another width than idle, by which it is hit otherwise.
    bool isLitThinner() const;

    /// Gives the materials the colours of the palette in force. @return whether they had others
    bool takePalette();

    /// Draws the handle of a row in part, lit up or not as it is, of a ring with a front the rest
    /// of it; at 0 it is hidden with the next show(). @param opacity  0 to 1 @return whether it had
    /// another
    bool setOpacity(std::size_t row, float opacity, int mode);

    /// Whether a handle is drawn in part, or not at all for that.
    bool isFaded() const;

    /// Turns letters and the fronts of faded rings to the viewer. @param sight  world, unit length
    /// @param facing  turn of the camera
    void face(const osg::Vec3f& sight, const osg::Quaternion& facing, int mode);

    /// Whether the last face() has turned anything.
    bool isTurned() const { return isFacing; }

    /// Whether the handle of a row is a ring of which a half can be in front.
    bool hasFront(std::size_t row) const;

    // == Visibility

    void showRoot(bool isVisible) { showNode(root.get(), isVisible); }

    /// Shows what a mode shows. @param held  of that only what the drag of this handle leaves; 0
    /// for no drag
    void show(int mode, int held);
    void showAll(bool isVisible);

    /// Keeps a handle out of every mode, or lets it in again; seen with the next show().
    void setExcluded(int handle, bool isExcluded);
    /// The same, as the host wants it. @return false for an unknown name
    bool setHidden(const std::string& name, bool isHidden);

private:
    struct Nodes
    {
        osg::NodePtr top;
        std::vector<osg::NodePtr> parts;
        Materials faded;  ///< of parts, if it ever faded
        HandleTrim trim;
        float opacity = 1.0F;
        bool isExcluded = false;
        bool isHidden = false;  ///< by the host
    };

    void build(const osg::NodePtr& copies);
    static Nodes buildHandle(const HandleRow& row);
    void colour(std::size_t row, bool isHigh, int mode);
    bool isLitBy(std::size_t row, int handle) const;
    osg::SimpleMaterialPtr fadedMaterial(Nodes& of, std::size_t part, std::size_t color);
    bool isShown(std::size_t row, int mode, const HandleRow* held) const;

    std::shared_ptr<const HandleTable> table;
    Materials materials;
    osg::RefPtr<osg::NodePtr> root;
    std::vector<osg::NodePtr> groups;
    std::vector<Nodes> handles;
    std::vector<osg::Color3f> classicColours;  ///< of the materials
    std::vector<float> classicWidths;  ///< of their lines; 0 without
    osg::RefPtr<osg::MaterialPtr> dark;  ///< of edges
    bool isFacing = false;  ///< letters or fronts are shown
    unsigned paletteCount = 0;  ///< of the palette that they have
    int lit = 0;
};

}  // namespace nbec::manipulator
