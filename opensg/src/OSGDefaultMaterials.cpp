// SPDX-License-Identifier: MIT
#include <OpenSG/OSGDefaultMaterials.h>
#include <OpenSG/OSGSimpleMaterial.h>

namespace osg {

namespace {

/// Takes the count that keeps it for ever: geometries that outlive static objects may refer to it.
MaterialPtr keep(const SimpleMaterialPtr& material)
{
    addRefCP(material);
    return material;
}

SimpleMaterialPtr makeLit()
{
    const SimpleMaterialPtr material = SimpleMaterial::create();
    material->setDiffuse(Color3f(0.7F, 0.7F, 0.5F));
    material->setAmbient(Color3f(0.1F, 0.1F, 0.1F));
    material->setSpecular(Color3f(1.0F, 1.0F, 1.0F));
    material->setShininess(20.0F);
    return material;
}

SimpleMaterialPtr makeUnlit()
{
    const SimpleMaterialPtr material = SimpleMaterial::create();
    material->setDiffuse(Color3f(1.0F, 1.0F, 0.5F));
    material->setLit(false);
    return material;
}

}  // namespace

MaterialPtr getDefaultMaterial()
{
    static const MaterialPtr material = keep(makeLit());
    return material;
}

MaterialPtr getDefaultUnlitMaterial()
{
    static const MaterialPtr material = keep(makeUnlit());
    return material;
}

}  // namespace osg
