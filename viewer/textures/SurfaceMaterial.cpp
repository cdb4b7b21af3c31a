// SPDX-License-Identifier: MIT
#include "viewer/textures/SurfaceMaterial.h"

#include <nbKernelServices/nbScopedUndo.h>
#include <nbKernelServices/nbUndoRecord.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGNodePtr.h>

#include <memory>
#include <utility>

namespace viewer {
namespace {

constexpr float kPlainGrey = 0.7F;

osg::GeometryPtr geometryOf(const osg::NodePtr& node)
{
    return node == osg::NullFC ? osg::GeometryPtr() : osg::GeometryPtr::dcast(node->getCore());
}

void setMaterialOf(const osg::GeometryPtr& geometry, const osg::MaterialPtr& material)
{
    const nbEdit edit(geometry, osg::Geometry::MaterialFieldMask);
    geometry->setMaterial(material);
}

void setCoreOf(const osg::NodePtr& node, const osg::NodeCorePtr& core)
{
    const nbEdit edit(node, osg::Node::CoreFieldMask);
    node->setCore(core);
}

/// What a node showed, and what it shows instead.
class SurfaceRecord : public nbUndoRecord
{
public:
    /// To be made before the edit.
    explicit SurfaceRecord(const osg::NodePtr& surface)
        : node(surface)
        , before(stateOf(surface))
    { }

    bool close() override
    {
        after = stateOf(node.get());
        return after != before;
    }

    void undo() override { restore(before); }

    void redo() override { restore(after); }

private:
    using State = std::pair<osg::RefPtr<osg::GeometryPtr>, osg::RefPtr<osg::MaterialPtr>>;

    static State stateOf(const osg::NodePtr& surface)
    {
        const osg::GeometryPtr geometry = geometryOf(surface);
        return { osg::RefPtr<osg::GeometryPtr>(geometry),
                 osg::RefPtr<osg::MaterialPtr>(geometry->getMaterial()) };
    }

    void restore(const State& state)
    {
        setMaterialOf(state.first.get(), state.second.get());
        setCoreOf(node.get(), state.first.get());
    }

    osg::NodeRefPtr node;
    State before;
    State after;
};

/// A geometry core of its own for a node, with the arrays of the one that it shares with others.
osg::GeometryPtr detachedGeometry(const osg::GeometryPtr& source)
{
    const osg::GeometryPtr geometry = osg::Geometry::create();
    const nbEdit edit(geometry, osg::FieldBits::AllFields);
    geometry->setTypes(source->getTypes());
    geometry->setLengths(source->getLengths());
    geometry->setPositions(source->getPositions());
    geometry->setNormals(source->getNormals());
    geometry->setColors(source->getColors());
    geometry->setTexCoords(source->getTexCoords());
    geometry->setIndices(source->getIndices());
    *geometry->getMFIndexMapping() = *source->getMFIndexMapping();
    geometry->setMaterial(source->getMaterial());
    return geometry;
}

void copyLook(const osg::SimpleMaterialPtr& source, const osg::UberMaterialPtr& target)
{
    target->setAmbient(source->getAmbient());
    target->setDiffuse(source->getDiffuse());
    target->setSpecular(source->getSpecular());
    target->setEmission(source->getEmission());
    target->setShininess(source->getShininess());
    target->setTransparency(source->getTransparency());
    target->setLit(source->getLit());
    target->setColorMaterial(source->getColorMaterial());
    target->setSortKey(source->getSortKey());
    target->setTransparencyMode(source->getTransparencyMode());
    // Viewer materials put every chunk into the slot that replaces its kind.
    for (osg::UInt32 i = 0; i < source->getMFChunks()->size(); ++i) {
        target->addChunk(source->getChunks(i));
    }
}

osg::UberMaterialPtr makeLikeness(const osg::MaterialPtr& source)
{
    const osg::UberMaterialPtr material = osg::UberMaterial::create();
    const nbEdit edit(material, osg::FieldBits::AllFields);
    const osg::SimpleMaterialPtr simple = osg::SimpleMaterialPtr::dcast(source);
    if (simple != osg::NullFC) {
        copyLook(simple, material);
    } else {
        material->setDiffuse(osg::Color3f(kPlainGrey, kPlainGrey, kPlainGrey));
    }
    return material;
}

}  // namespace

osg::NodePtr surfaceOf(const osg::NodePtr& object, const osg::NodePtr& preferred)
{
    if (object == osg::NullFC) {
        return {};
    }
    if (preferred != osg::NullFC && preferred->getParent() == object &&
        geometryOf(preferred) != osg::NullFC) {
        return preferred;
    }
    const std::vector<osg::NodePtr> surfaces = ownSurfaces(object);
    return surfaces.empty() ? osg::NodePtr() : surfaces.front();
}

std::vector<osg::NodePtr> ownSurfaces(const osg::NodePtr& object)
{
    std::vector<osg::NodePtr> surfaces;
    for (osg::UInt32 i = 0; object != osg::NullFC && i < object->getNChildren(); ++i) {
        const osg::NodePtr child = object->getChild(i);
        if (geometryOf(child) != osg::NullFC && !nbNodeUtils::isAuxiliaryNode(child)) {
            surfaces.push_back(child);
        }
    }
    return surfaces;
}

osg::UberMaterialPtr uberMaterialOf(const osg::NodePtr& surface)
{
    const osg::GeometryPtr geometry = geometryOf(surface);
    return geometry == osg::NullFC ? osg::UberMaterialPtr()
                                   : osg::UberMaterialPtr::dcast(geometry->getMaterial());
}

osg::UberMaterialPtr makeUberMaterial(const osg::NodePtr& surface)
{
    const osg::UberMaterialPtr present = uberMaterialOf(surface);
    if (present != osg::NullFC) {
        return present;
    }
    const nbScopedUndo undo(QT_TRANSLATE_NOOP("Manipulator", "Material for pictures"));
    nbUndoService::the()->record(std::make_unique<SurfaceRecord>(surface));
    osg::GeometryPtr geometry = geometryOf(surface);
    const osg::UberMaterialPtr material = makeLikeness(geometry->getMaterial());
    if (geometry->getParents().size() > 1) {
        geometry = detachedGeometry(geometry);
        setCoreOf(surface, geometry);
    }
    setMaterialOf(geometry, material);
    return material;
}

}  // namespace viewer
