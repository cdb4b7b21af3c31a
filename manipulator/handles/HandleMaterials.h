// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/nbManipulatorExport.h"

#include <nbOpenSGExt/DepthTestChunk.h>

#include <OpenSG/OSGBlendChunk.h>
#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGLineChunk.h>
#include <OpenSG/OSGSimpleMaterial.h>

#include <vector>

namespace nbec::manipulator {

/// Sort keys of handles: they are drawn after the scene, a greater key nearer.
namespace handleSortKey {
constexpr int kEarlyDepthPass = 64014;
constexpr int kDepthPass = 64015;
constexpr int kHandlePass = 64017;
constexpr int kLine = 64015;  ///< also of solid handles in light colours
constexpr int kSolid = 64016;
}  // namespace handleSortKey

/// Deliberate: a trace of transparency has handles drawn among the blended items, which are drawn
/// after the scene in the order of their sort keys, while they look opaque.
constexpr float kTraceOfTransparency = 0.001F;

/// The three state chunks that the line materials of one gizmo share.
struct LineChunks
{
    osg::RefPtr<osg::LineChunkPtr> line;  ///< width 2 px, smooth
    osg::RefPtr<osg::BlendChunkPtr> blend;  ///< GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA
    osg::RefPtr<osg::DepthTestChunkPtr> depth;  ///< GL_ALWAYS
};

NB_MANIPULATOR_API LineChunks makeLineChunks();

/// The line chunk of a material; null without one.
osg::LineChunkPtr lineChunkOf(const osg::SimpleMaterialPtr& material);

/// A chunk of smooth lines, count 0. @param widthPx  logical pixels
NB_MANIPULATOR_API osg::LineChunkPtr makeLineChunk(float widthPx);

/// A chunk that blends by alpha, GL_SRC_ALPHA and GL_ONE_MINUS_SRC_ALPHA, count 0.
osg::BlendChunkPtr makeBlendChunk();

/// A depth-test chunk with function GL_ALWAYS, count 0.
osg::DepthTestChunkPtr makeAlwaysDepthChunk();

/// Unlit material: black but for its diffuse colour, shininess 10.
/// @param chunks        the line chunks to add, null for a solid material
/// @param transparency  0 opaque, 1 invisible; a tiny one has the handle drawn among the blended
///                      items, in the order of their sort keys, and still looks opaque
/// @return null if the scene graph makes none
NB_MANIPULATOR_API osg::SimpleMaterialRefPtr makeHandleMaterial(const osg::Color3f& diffuse,
                                                                int sortKey,
                                                                const LineChunks* chunks,
                                                                float transparency = 0.0F);

/// Colour, transparency and sort key of a solid handle material.
struct HandleMaterialRow
{
    float red, green, blue;
    float transparency;
    int sortKey;
};

/// The solid handle materials of all rows of a table, in their order.
template <class Rows>
std::vector<osg::SimpleMaterialRefPtr> makeHandleMaterials(const Rows& rows)
{
    std::vector<osg::SimpleMaterialRefPtr> materials;
    materials.reserve(std::size(rows));
    for (const HandleMaterialRow& row : rows) {
        materials.push_back(makeHandleMaterial(osg::Color3f(row.red, row.green, row.blue),
                                               row.sortKey, nullptr, row.transparency));
    }
    return materials;
}

}  // namespace nbec::manipulator
