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
    material->setDiffuse(Color3f(0.7f, 0.7f, 0.5f));
    material->setAmbient(Color3f(0.1f, 0.1f, 0.1f));
    material->setSpecular(Color3f(1.f, 1.f, 1.f));
    material->setShininess(20.f);
    return material;
}

SimpleMaterialPtr makeUnlit()
{
    const SimpleMaterialPtr material = SimpleMaterial::create();
    material->setDiffuse(Color3f(1.f, 1.f, 0.5f));
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
