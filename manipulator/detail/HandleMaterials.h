// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGExt/DepthTestChunk.h>

#include <OpenSG/OSGBlendChunk.h>
#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGLineChunk.h>
#include <OpenSG/OSGSimpleMaterial.h>

#include <vector>

namespace nbec::manipulator::detail {

/// Takes over the reference with which the functions of nbManipulatorMaterials return.
template <class MaterialPointer>
osg::RefPtr<MaterialPointer> adopt(MaterialPointer material)
{
    osg::RefPtr<MaterialPointer> held(material);
    osg::subRefCP(material);
    return held;
}

/// The three state chunks that the line materials of one gizmo share.
struct LineChunks
{
    osg::RefPtr<osg::LineChunkPtr> line;  ///< width 2 px, smooth
    osg::RefPtr<osg::BlendChunkPtr> blend;  ///< GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA
    osg::RefPtr<osg::DepthTestChunkPtr> depth;  ///< GL_ALWAYS
};

LineChunks makeLineChunks();

/// A chunk of smooth lines, count 0. @param widthPx  logical pixels
osg::LineChunkPtr makeLineChunk(float widthPx);

/// A depth-test chunk with function GL_ALWAYS, count 0.
osg::DepthTestChunkPtr makeAlwaysDepthChunk();

/// Unlit handle material: black but for its diffuse colour, shininess 10.
/// @param chunks        the line chunks to add, null for a solid material
/// @param transparency  0 opaque, 1 invisible; a tiny one has the handle drawn among the blended
///                      items, in the order of their sort keys, and still looks opaque
osg::SimpleMaterialRefPtr makeHandleMaterial(const osg::Color3f& diffuse, int sortKey,
                                             const LineChunks* chunks, float transparency = 0.0F);

/// Colour, transparency and sort key of a solid handle material.
struct HandleMaterialRow
{
    float red, green, blue;
    float transparency;
    int sortKey;
};

/// The solid handle material of a row.
osg::SimpleMaterialRefPtr makeHandleMaterial(const HandleMaterialRow& row);

/// Those of all rows of a table, in their order.
template <class Rows>
std::vector<osg::SimpleMaterialRefPtr> makeHandleMaterials(const Rows& rows)
{
    std::vector<osg::SimpleMaterialRefPtr> materials;
    materials.reserve(std::size(rows));
    for (const HandleMaterialRow& row : rows) {
        materials.push_back(makeHandleMaterial(row));
    }
    return materials;
}

/// Unlit material of a handle pass: the depth-test chunk and the sort key are all that matters of
/// it.
osg::SimpleMaterialRefPtr makePassMaterial(const osg::DepthTestChunkPtr& depth, int sortKey);

}  // namespace nbec::manipulator::detail
