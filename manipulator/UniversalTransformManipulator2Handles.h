// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/UniversalTransformManipulator2.h"

#include <OpenSG/OSGSimpleMaterial.h>

#include <array>
#include <cstddef>

namespace nbec::manipulator {

/// Colours of handles. Order of the material arrays; grey exists as a line material only.
enum class HandleColor : std::size_t
{
    Red,
    Green,
    Blue,
    Yellow,
    Purple,
    Orange,
    Grey
};

/// What a handle belongs to; markers belong to no family.
enum class HandleFamily
{
    Translate,
    Rotate,
    Scale,
    Marker
};

/// How a handle is built.
enum class HandleKind
{
    Arrow,
    ScaleHandle,
    Ring,
    PlaneHandle,
    CentreSphere,
    PivotCube
};

/// Which families a change of mode puts back to their idle colours; markers always are.
struct DefaultFamilies
{
    bool translate, rotate, scale;
};

/// The handles of one gizmo: their tree in the unit frame, their materials, what is shown and what
/// is lit up.
class TransformHandles
{
public:
    using Mode = UniversalTransformManipulator2::ManipulatorMode;
    using Active = UniversalTransformManipulator2::ActiveMode;

    /// Builds the tree below a node with a Transform3D, all in idle colours.
    TransformHandles();
    TransformHandles(const TransformHandles&) = delete;
    TransformHandles& operator=(const TransformHandles&) = delete;
    ~TransformHandles() = default;

    osg::NodePtr getTree() const { return tree.get(); }

    osg::SimpleMaterialPtr getLineMaterial(HandleColor color) const;

    /// Shows the elements of a mode, or of these only those of one handle. A ring's axis line shows
    /// with that handle only.
    /// @param grabbed  the one handle; None for all
    void show(Mode mode, Active grabbed);

    /// Puts families, without one handle, back to their idle colours.
    void makeIdle(const DefaultFamilies& families, Active except);
    /// Lights up a handle; None nothing.
    void highlight(Active handle);

    Active getHighlighted() const { return highlighted; }

    /// The handle that a node belongs to, by its name; None for null and others.
    static Active find(const osg::NodePtr& node);

private:
    static constexpr std::size_t kHandleCount = 15;
    static constexpr std::size_t kMaxParts = 3;
    static constexpr std::size_t kSolidCount = 6;
    static constexpr std::size_t kLineCount = 7;

    /// One row of the handle table. The order of rows is that of the tree and of the comparison of
    /// names.
    struct Row
    {
        const char* name;  ///< name of the handle's nodes; null for a marker, which is never hit
        Active active;
        HandleKind kind;
        std::size_t axis;  ///< 0 x, 1 y, 2 z; for planes 0 xy, 1 xz, 2 yz; for the scale handles 3
                           ///< is the uniform one
        HandleFamily family;
        std::array<HandleColor, kMaxParts> idle;  ///< idle colour of each part
        unsigned visibleIn;  ///< bit i: shown in the mode of value i
    };

    /// One drawn piece of a handle: a node with a geometry core, drawn solid or as lines.
    struct Part
    {
        osg::NodePtr node;
        bool isLine = false;
    };

    /// The nodes of one row of the table; the tree keeps them alive.
    struct Nodes
    {
        osg::NodePtr top;
        std::array<Part, kMaxParts> parts;
    };

    static const std::array<Row, kHandleCount> kRows;

    void createMaterials();
    static Nodes createArrow(std::size_t axis);
    static Nodes createScaleHandle(std::size_t axis);
    static Nodes createRing(std::size_t axis);
    static Nodes createPlaneHandle(std::size_t plane);
    static Nodes createMarker(bool sphere);
    static Nodes createHandle(const Row& row);
    void setMaterials(std::size_t row, bool highlight);

    osg::RefPtr<osg::NodePtr> tree;
    std::array<Nodes, kHandleCount> nodes;
    std::array<osg::SimpleMaterialRefPtr, kSolidCount> solidMaterials;
    std::array<osg::SimpleMaterialRefPtr, kLineCount> lineMaterials;
    Active highlighted = Active::None;
};

inline bool isRing(UniversalTransformManipulator2::ActiveMode handle)
{
    return handle >= UniversalTransformManipulator2::ActiveMode::RotateX &&
        handle <= UniversalTransformManipulator2::ActiveMode::RotateZ;
}

inline bool isTranslation(UniversalTransformManipulator2::ActiveMode handle)
{
    return handle >= UniversalTransformManipulator2::ActiveMode::TranslateX &&
        handle <= UniversalTransformManipulator2::ActiveMode::TranslateYZ;
}

inline bool isScale(UniversalTransformManipulator2::ActiveMode handle)
{
    return handle >= UniversalTransformManipulator2::ActiveMode::ScaleX &&
        handle <= UniversalTransformManipulator2::ActiveMode::ScaleUniform;
}

/// Axis of a handle of one axis: 0, 1, 2; 3 for all others.
inline osg::UInt32 axisOf(UniversalTransformManipulator2::ActiveMode handle)
{
    const auto value = static_cast<osg::UInt32>(handle);
    if (isRing(handle)) {
        return value -
            static_cast<osg::UInt32>(UniversalTransformManipulator2::ActiveMode::RotateX);
    }
    if (value >= static_cast<osg::UInt32>(UniversalTransformManipulator2::ActiveMode::TranslateX) &&
        value <= static_cast<osg::UInt32>(UniversalTransformManipulator2::ActiveMode::TranslateZ)) {
        return value -
            static_cast<osg::UInt32>(UniversalTransformManipulator2::ActiveMode::TranslateX);
    }
    if (value >= static_cast<osg::UInt32>(UniversalTransformManipulator2::ActiveMode::ScaleX) &&
        value <= static_cast<osg::UInt32>(UniversalTransformManipulator2::ActiveMode::ScaleZ)) {
        return value - static_cast<osg::UInt32>(UniversalTransformManipulator2::ActiveMode::ScaleX);
    }
    return 3;
}

/// Axis at right angles to a plane handle: z of xy, y of xz, x of yz; 3 for all others.
inline osg::UInt32 planeNormalAxis(UniversalTransformManipulator2::ActiveMode handle)
{
    switch (handle) {
    case UniversalTransformManipulator2::ActiveMode::TranslateXY:
        return 2;
    case UniversalTransformManipulator2::ActiveMode::TranslateXZ:
        return 1;
    case UniversalTransformManipulator2::ActiveMode::TranslateYZ:
        return 0;
    default:
        return 3;
    }
}

}  // namespace nbec::manipulator
