// SPDX-License-Identifier: MIT
#include "viewer/loading/BuiltModel.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGRenderAction/nbImageConvert.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGBlendChunk.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGTextureChunk.h>
#include <OpenSG/OSGTransform.h>

#include <tuple>
#include <type_traits>

namespace viewer {
namespace {

osg::Color3f colorOf(const Rgb& rgb)
{
    return { rgb[0], rgb[1], rgb[2] };
}

/// Less than this is nothing, and hides nothing behind it.
constexpr float kLeastAlpha = 0.02F;

bool isSeenThrough(const QImage& picture)
{
    if (!picture.hasAlphaChannel()) {
        return false;
    }
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qAlpha(picture.pixel(x, y)) < 255) {
                return true;
            }
        }
    }
    return false;
}

osg::MaterialPtr makeMaterial(const MaterialData& data)
{
    osg::SimpleMaterialPtr material = osg::SimpleMaterial::create();
    const nbEdit edit(material, osg::FieldBits::AllFields);
    material->setDiffuse(colorOf(data.diffuse));
    material->setSpecular(colorOf(data.specular));
    material->setEmission(colorOf(data.emission));
    material->setShininess(data.shininess);
    material->setTransparency(1.0F - data.opacity);
    material->setLit(true);
    if (!data.texture.isNull()) {
        osg::ImagePtr image = nbImageConvert::toImage(data.texture);
        osg::TextureChunkPtr texture = osg::TextureChunk::create();
        const nbEdit textureEdit(texture, osg::FieldBits::AllFields);
        texture->setImage(image);
        texture->setEnvMode(GL_MODULATE);
        material->addChunk(texture);
        if (isSeenThrough(data.texture)) {
            osg::BlendChunkPtr blend = osg::BlendChunk::create();
            const nbEdit blendEdit(blend, osg::FieldBits::AllFields);
            blend->setSrcFactor(GL_SRC_ALPHA);
            blend->setDestFactor(GL_ONE_MINUS_SRC_ALPHA);
            blend->setAlphaFunc(GL_GREATER);
            blend->setAlphaValue(kLeastAlpha);
            material->addChunk(blend);
        }
    }
    return material;
}

/// An array of a geometry. @param source  arrays of the parts of its values, or the values
template <class Property, class Source>
auto makeProperty(const std::vector<Source>& source)
{
    const auto property = Property::create();
    const nbEdit edit(property, osg::FieldBits::AllFields);
    auto& field = property->getField();
    using Value = std::decay_t<decltype(field[0])>;
    field.reserve(source.size());
    for (const Source& value : source) {
        if constexpr (std::is_integral_v<Source>) {
            field.push_back(value);
        } else {
            field.push_back(std::apply([](auto... part) { return Value(part...); }, value));
        }
    }
    return property;
}

osg::GeometryPtr makeGeometry(const MeshData& mesh, const osg::MaterialPtr& material)
{
    osg::GeometryPtr geometry = osg::Geometry::create();
    const nbEdit edit(geometry, osg::FieldBits::AllFields);
    osg::GeoPTypesUI8Ptr types = osg::GeoPTypesUI8::create();
    types->push_back(GL_TRIANGLES);
    osg::GeoPLengthsUI32Ptr lengths = osg::GeoPLengthsUI32::create();
    lengths->push_back(static_cast<osg::UInt32>(mesh.triangles.size()));
    geometry->setTypes(types);
    geometry->setLengths(lengths);
    const std::size_t count = mesh.positions.size();
    geometry->setPositions(makeProperty<osg::GeoPositions3f>(mesh.positions));
    if (mesh.normals.size() == count) {
        geometry->setNormals(makeProperty<osg::GeoNormals3f>(mesh.normals));
    }
    if (mesh.texCoords.size() == count) {
        geometry->setTexCoords(makeProperty<osg::GeoTexCoords2f>(mesh.texCoords));
    }
    if (mesh.colors.size() == count) {
        geometry->setColors(makeProperty<osg::GeoColors4ub>(mesh.colors));
    }
    geometry->setIndices(makeProperty<osg::GeoIndicesUI32>(mesh.triangles));
    geometry->setMaterial(material);
    return geometry;
}

/// Geometries of a model, made once each however many nodes show them.
class Builder
{
public:
    explicit Builder(const ModelData& source)
        : model(source)
    {
        for (const MaterialData& material : model.materials) {
            materials.emplace_back(makeMaterial(material));
        }
        geometries.resize(model.meshes.size());
    }

    osg::NodePtr build(const NodeData& data)
    {
        osg::TransformPtr transform = osg::Transform::create();
        osg::Matrix matrix;
        matrix.setValue(data.matrix.data());
        {
            const nbEdit edit(transform, osg::Transform::MatrixFieldMask);
            transform->setMatrix(matrix);
        }
        osg::NodePtr node = osg::makeNodeFor(transform);
        nbNodeUtils::setName(node, data.name.toStdString());
        const nbEdit edit(node, osg::Node::ChildrenFieldMask);
        for (const std::size_t mesh : data.meshes) {
            osg::NodePtr leaf = osg::makeNodeFor(geometryOf(mesh));
            const QString& name = model.meshes[mesh].name;
            nbNodeUtils::setName(leaf, (name.isEmpty() ? data.name : name).toStdString());
            node->addChild(leaf);
        }
        for (const NodeData& child : data.children) {
            node->addChild(build(child));
        }
        return node;
    }

private:
    osg::GeometryPtr geometryOf(std::size_t mesh)
    {
        if (geometries[mesh] == osg::NullFC) {
            geometries[mesh] =
                makeGeometry(model.meshes[mesh], materials[model.meshes[mesh].material].get());
        }
        return geometries[mesh].get();
    }

    const ModelData& model;
    std::vector<osg::RefPtr<osg::MaterialPtr>> materials;
    std::vector<osg::RefPtr<osg::GeometryPtr>> geometries;
};

/// A copy of a tree that was built: geometries are shared, names kept.
osg::NodePtr copyTree(const osg::NodePtr& source)
{
    osg::NodeCorePtr core = source->getCore();
    if (osg::GeometryPtr::dcast(core) == osg::NullFC) {
        core = osg::NodeCorePtr::dcast(osg::deepClone(core));
    }
    const osg::NodePtr copy = osg::makeNodeFor(core);
    nbNodeUtils::setName(copy, nbNodeUtils::getName(source));
    const nbEdit edit(copy, osg::Node::ChildrenFieldMask);
    for (osg::UInt32 i = 0; i < source->getNChildren(); ++i) {
        copy->addChild(copyTree(source->getChild(i)));
    }
    return copy;
}

void collectSurfaces(const osg::NodePtr& node, std::vector<osg::NodePtr>& objects)
{
    if (node == osg::NullFC || nbNodeUtils::isAuxiliaryNode(node)) {
        return;
    }
    if (osg::GeometryPtr::dcast(node->getCore()) != osg::NullFC) {
        const osg::NodePtr object = objectOf(node);
        if (std::find(objects.begin(), objects.end(), object) == objects.end()) {
            objects.push_back(object);
        }
    }
    for (osg::UInt32 i = 0; i < node->getNChildren(); ++i) {
        collectSurfaces(node->getChild(i), objects);
    }
}

void collectChildObjects(const osg::NodePtr& node, std::vector<osg::NodePtr>& objects)
{
    for (osg::UInt32 i = 0; i < node->getNChildren(); ++i) {
        const osg::NodePtr child = node->getChild(i);
        if (nbNodeUtils::isAuxiliaryNode(child)) {
            continue;
        }
        if (nbNodeUtils::resolveToTransformNode(child) == child) {
            objects.push_back(child);
        } else {
            collectChildObjects(child, objects);
        }
    }
}

}  // namespace

BuiltModel buildModel(const ModelData& model)
{
    return { osg::RefPtr<osg::NodePtr>(Builder(model).build(model.root)), model.triangleCount(),
             model.warnings, model.file, model.builtIn };
}

BuiltModel anotherOf(const BuiltModel& model)
{
    BuiltModel another = model;
    another.root = osg::RefPtr<osg::NodePtr>(copyTree(model.root.get()));
    return another;
}

osg::NodePtr objectOf(const osg::NodePtr& node)
{
    const osg::NodePtr object = nbNodeUtils::resolveToTransformNode(node);
    return nbNodeUtils::hasParent(object, nbScenegraph::getRootNode()) ? object : osg::NodePtr();
}

std::vector<osg::NodePtr> childObjects(const osg::NodePtr& object)
{
    std::vector<osg::NodePtr> objects;
    collectChildObjects(object != osg::NullFC ? object : nbScenegraph::getRootNode(), objects);
    return objects;
}

osg::NodePtr copyOfObject(const osg::NodePtr& object)
{
    return osg::deepCloneTree(object, kSharedByCopies);
}

osg::NodePtr findObject(const osg::NodePtr& root, const std::string& name)
{
    if (root == osg::NullFC) {
        return {};
    }
    if (objectOf(root) == root && nbNodeUtils::getName(root) == name) {
        return root;
    }
    for (osg::UInt32 i = 0; i < root->getNChildren(); ++i) {
        if (const osg::NodePtr found = findObject(root->getChild(i), name); found != osg::NullFC) {
            return found;
        }
    }
    return {};
}

std::vector<osg::NodePtr> objectsWithSurface(const osg::NodePtr& root)
{
    std::vector<osg::NodePtr> objects;
    collectSurfaces(root, objects);
    return objects;
}

}  // namespace viewer
