// SPDX-License-Identifier: MIT
#include "viewer/textures/SurfaceMaterial.h"

#include "viewer/loading/BuiltModel.h"
#include "viewer/stage/ValueRecord.h"

#include <nbKernelServices/nbScopedUndo.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGNodePtr.h>

#include <utility>

namespace viewer {
namespace {

constexpr float kPlainGrey = 0.7F;

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

/// What a node shows.
using Shown = std::pair<osg::RefPtr<osg::GeometryPtr>, osg::RefPtr<osg::MaterialPtr>>;

Shown shownBy(const osg::NodePtr& surface)
{
    const osg::GeometryPtr geometry = geometryOf(surface);
    return { osg::RefPtr<osg::GeometryPtr>(geometry),
             osg::RefPtr<osg::MaterialPtr>(geometry->getMaterial()) };
}

void show(const osg::NodePtr& surface, const Shown& shown)
{
    setMaterialOf(shown.first.get(), shown.second.get());
    setCoreOf(surface, shown.first.get());
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

osg::GeometryPtr geometryOf(const osg::NodePtr& node)
{
    return node == osg::NullFC ? osg::GeometryPtr() : osg::GeometryPtr::dcast(node->getCore());
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
    recordValue(surface, &shownBy, &show);
    osg::GeometryPtr geometry = geometryOf(surface);
    const osg::UberMaterialPtr material = makeLikeness(geometry->getMaterial());
    if (geometry->getParents().size() > 1) {
        geometry = osg::GeometryPtr::dcast(
            osg::deepClone(geometry, std::string("Material, ") + kSharedByCopies));
        setCoreOf(surface, geometry);
    }
    setMaterialOf(geometry, material);
    return material;
}

}  // namespace viewer
