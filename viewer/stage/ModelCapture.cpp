// SPDX-License-Identifier: MIT
#include "viewer/stage/ModelCapture.h"

#include "viewer/texts/Text.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGRenderAction/nbImageConvert.h>
#include <nbOpenSGUberMaterial/UberMaterial.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGTextureChunk.h>

#include <algorithm>
#include <map>

namespace viewer {
namespace {

class Capture
{
public:
    NodeData nodeOf(const osg::NodePtr& node)
    {
        NodeData data;
        data.name = QString::fromStdString(nbNodeUtils::getName(node));
        if (node->getParent() != osg::NullFC) {
            osg::Matrix parentFromNode;
            node->getParent()->getToWorld().inverse(parentFromNode);
            parentFromNode.mult(node->getToWorld());
            std::copy_n(parentFromNode.getValues(), kMatrixSize, data.matrix.begin());
        }
        const auto geometry = osg::GeometryPtr::dcast(node->getCore());
        if (geometry != osg::NullFC && geometry->getPositions() != osg::NullFC) {
            data.meshes.push_back(meshOf(geometry));
        }
        for (osg::UInt32 i = 0; i < node->getNChildren(); ++i) {
            const osg::NodePtr child = node->getChild(i);
            if (child->getActive() && !nbNodeUtils::isAuxiliaryNode(child)) {
                data.children.push_back(nodeOf(child));
            }
        }
        return data;
    }

    ModelData model;

private:
    std::size_t meshOf(const osg::GeometryPtr& geometry)
    {
        const auto [known, isNew] =
            meshes.emplace(geometry.getFieldContainerId(), model.meshes.size());
        if (!isNew) {
            return known->second;
        }
        MeshData mesh;
        mesh.material = materialOf(geometry->getMaterial());
        const osg::UInt32 count = geometry->getPositions()->getSize();
        const auto isWhole = [count](const auto& property) {
            return property != osg::NullFC && property->getSize() == count;
        };
        for (osg::UInt32 i = 0; i < count; ++i) {
            const osg::Pnt3f place = geometry->getPositions()->getValue(i);
            mesh.positions.push_back({ place[0], place[1], place[2] });
            if (isWhole(geometry->getNormals())) {
                const osg::Vec3f normal = geometry->getNormals()->getValue(i);
                mesh.normals.push_back({ normal[0], normal[1], normal[2] });
            }
            if (isWhole(geometry->getTexCoords())) {
                const osg::Vec2f place2 = geometry->getTexCoords()->getValue(i);
                mesh.texCoords.push_back({ place2[0], place2[1] });
            }
        }
        const osg::GeoIndicesPtr indices = geometry->getIndices();
        const osg::UInt32 corners = indices != osg::NullFC ? indices->getSize() : count;
        for (osg::UInt32 i = 0; i < corners - corners % 3; ++i) {
            mesh.triangles.push_back(indices != osg::NullFC ? indices->getValue(i) : i);
        }
        model.meshes.push_back(std::move(mesh));
        return known->second;
    }

    std::size_t materialOf(const osg::MaterialPtr& source)
    {
        const auto [known, isNew] = materials.emplace(
            source == osg::NullFC ? 0 : source.getFieldContainerId(), model.materials.size());
        if (!isNew) {
            return known->second;
        }
        MaterialData material;
        const auto simple = osg::SimpleMaterialPtr::dcast(source);
        if (simple != osg::NullFC) {
            const auto rgb = [](const osg::Color3f& color) {
                return Rgb { color[0], color[1], color[2] };
            };
            material.diffuse = rgb(simple->getDiffuse());
            material.specular = rgb(simple->getSpecular());
            material.emission = rgb(simple->getEmission());
            material.shininess = std::clamp(simple->getShininess(), 1.0F, 128.0F);
            material.opacity = std::clamp(1.0F - simple->getTransparency(), 0.0F, 1.0F);
            const auto texture =
                osg::TextureChunkPtr::dcast(simple->find(osg::TextureChunk::getClassType()));
            if (texture != osg::NullFC) {
                material.texture = nbImageConvert::toPicture(texture->getImage());
            }
        }
        const auto uber = osg::UberMaterialPtr::dcast(source);
        if (uber != osg::NullFC &&
            uber->getImage(osg::UberMaterial::kDiffuseComponent) != osg::NullFC) {
            model.warnings.append(Text::tr("pictures that were put on objects are not exported"));
        }
        model.materials.push_back(material);
        return known->second;
    }

    std::map<osg::UInt32, std::size_t> meshes;  ///< by the ids of geometries
    std::map<osg::UInt32, std::size_t> materials;  ///< by their ids
};

}  // namespace

ModelData captureModel()
{
    Capture capture;
    NodeData root = capture.nodeOf(nbScenegraph::getRootNode());
    capture.model.root = std::move(root);
    capture.model.warnings.removeDuplicates();
    return std::move(capture.model);
}

}  // namespace viewer
