// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/UniversalTransformManipulator2.h"
#include "tests/manipulator/support/GizmoScene.h"

#include <OpenSG/OSGGeometry.h>

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace nbec::manipulator::test {

/// Scale of a gizmo 10 units from the eye under 45 degrees with size 32: 10 / (0.84 * 800 / 45).
inline constexpr float kScaleAtTen = 10.0F * 45.0F / 672.0F;
inline constexpr float kTolerance = 1e-4F;
inline constexpr const char* kOrange = "1 0.5 0";

/// Names of the handles that can be hit.
inline const std::vector<std::string> kAllNames = { "xaShape", "yaShape", "zaShape",  "xsShape",
                                                    "ysShape", "zsShape", "grid",     "rxShape",
                                                    "ryShape", "rzShape", "xyaShape", "xzaShape",
                                                    "yzaShape" };

inline void forEachNode(const osg::NodePtr& tree,
                        const std::function<void(const osg::NodePtr&)>& visit)
{
    visit(tree);
    for (osg::UInt32 i = 0; i < tree->getNChildren(); ++i) {
        forEachNode(tree->getChild(i), visit);
    }
}

/// Geometry nodes below a handle's node, in tree order.
inline std::vector<osg::NodePtr> partsOf(const osg::NodePtr& handle)
{
    std::vector<osg::NodePtr> parts;
    forEachNode(handle, [&parts](const osg::NodePtr& node) {
        if (osg::GeometryPtr::dcast(node->getCore()) != osg::NullFC) {
            parts.push_back(node);
        }
    });
    return parts;
}

/// A scene with a transform gizmo on its node.
class UniversalTransformManipulator2Test : public testing::Test
{
protected:
    void SetUp() override
    {
        gizmo.setNode(scene.node);
        scene.install(gizmo);
    }

    osg::NodePtr root() { return gizmo.getVisualisation(); }

    osg::NodePtr handle(const std::string& name) { return findNode(root(), name); }

    /// World position of a point in the gizmo's unit frame.
    osg::Pnt3f at(float x, float y, float z) const
    {
        return osg::Pnt3f(x * kScaleAtTen, y * kScaleAtTen, z * kScaleAtTen);
    }

    std::set<std::string> shownHandles()
    {
        std::set<std::string> shown;
        for (const std::string& name : kAllNames) {
            if (isShown(handle(name))) {
                shown.insert(name);
            }
        }
        return shown;
    }

    UniversalTransformManipulator2 gizmo;  // outlives the scene, which deactivates it
    GizmoScene scene;
};

}  // namespace nbec::manipulator::test
