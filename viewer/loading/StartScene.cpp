// SPDX-License-Identifier: MIT
#include "viewer/loading/StartScene.h"

#include "viewer/loading/Shapes.h"

#include <utility>

// NOLINTBEGIN(readability-magic-numbers): places, sizes and colours of a composition say nothing by
// a name.
namespace viewer {
namespace {

constexpr unsigned kFine = 96;
constexpr unsigned kVeryFine = 160;

using Profile = std::vector<std::array<float, 2>>;

/// Collects objects: each a mesh with a material of its own under a node of its own.
struct Composition
{
    void place(const char* name, MeshData mesh, const MaterialData& material, const Vec3& position)
    {
        mesh.name = QLatin1String(name);
        mesh.material = model.materials.size();
        NodeData node;
        node.name = mesh.name;
        node.matrix[12] = position[0];
        node.matrix[13] = position[1];
        node.matrix[14] = position[2];
        node.meshes = { model.meshes.size() };
        model.materials.push_back(material);
        model.materials.back().name = mesh.name;
        model.meshes.push_back(std::move(mesh));
        model.root.children.push_back(node);
    }

    ModelData model;
};

MaterialData glossy(const Rgb& color, float strength, float shininess)
{
    MaterialData material;
    material.diffuse = color;
    material.specular = { strength, strength, strength };
    material.shininess = shininess;
    return material;
}

Profile tableProfile()
{
    return { { 0.0F, -0.55F },  { 1.2F, -0.55F },  { 1.2F, -0.55F },  { 3.6F, -0.42F },
             { 5.2F, -0.3F },   { 5.42F, -0.18F }, { 5.42F, -0.08F }, { 5.3F, 0.0F },
             { 5.3F, 0.0F },    { 4.9F, 0.0F },    { 4.9F, 0.0F },    { 4.86F, -0.03F },
             { 4.86F, -0.03F }, { 4.82F, 0.0F },   { 4.82F, 0.0F },   { 0.0F, 0.0F } };
}

Profile plinthProfile(float radius, float height)
{
    return { { radius, 0.0F },
             { radius, 0.0F },
             { radius, 0.06F },
             { radius, 0.06F },
             { radius - 0.05F, 0.09F },
             { radius - 0.05F, 0.09F },
             { radius - 0.05F, height - 0.05F },
             { radius - 0.05F, height - 0.05F },
             { radius - 0.065F, height - 0.015F },
             { radius - 0.1F, height },
             { radius - 0.1F, height },
             { 0.0F, height } };
}

Profile vaseProfile()
{
    return { { 0.0F, 0.0F },   { 0.42F, 0.0F }, { 0.42F, 0.0F }, { 0.46F, 0.05F }, { 0.62F, 0.35F },
             { 0.86F, 0.85F }, { 0.9F, 1.25F }, { 0.68F, 1.7F }, { 0.38F, 2.02F }, { 0.29F, 2.32F },
             { 0.34F, 2.6F },  { 0.5F, 2.78F }, { 0.52F, 2.8F }, { 0.47F, 2.8F },  { 0.3F, 2.6F },
             { 0.24F, 2.32F }, { 0.3F, 2.05F } };
}

Profile bowlProfile()
{
    return { { 0.0F, 0.0F },   { 0.3F, 0.0F },   { 0.3F, 0.0F },   { 0.3F, 0.07F },
             { 0.55F, 0.16F }, { 0.86F, 0.42F }, { 0.98F, 0.72F }, { 0.96F, 0.75F },
             { 0.92F, 0.72F }, { 0.78F, 0.44F }, { 0.45F, 0.2F },  { 0.0F, 0.14F } };
}

Profile pawnProfile()
{
    return { { 0.0F, 0.0F },   { 0.44F, 0.0F },  { 0.44F, 0.0F },  { 0.46F, 0.1F },
             { 0.42F, 0.18F }, { 0.3F, 0.26F },  { 0.3F, 0.26F },  { 0.22F, 0.5F },
             { 0.15F, 0.85F }, { 0.15F, 0.85F }, { 0.27F, 0.89F }, { 0.27F, 0.94F },
             { 0.17F, 0.98F }, { 0.17F, 0.98F }, { 0.27F, 1.08F }, { 0.31F, 1.22F },
             { 0.26F, 1.38F }, { 0.14F, 1.47F }, { 0.0F, 1.5F } };
}

void placeTable(Composition& scene)
{
    scene.place("Table", makeLathe(tableProfile(), kVeryFine),
                glossy({ 0.60F, 0.57F, 0.53F }, 0.06F, 12.0F), { 0, 0, 0 });
    const MaterialData stone = glossy({ 0.80F, 0.79F, 0.77F }, 0.08F, 16.0F);
    scene.place("Plinth", makeLathe(plinthProfile(1.55F, 0.34F), kVeryFine), stone, { 0, 0, 0 });
    scene.place("Plinth left", makeLathe(plinthProfile(0.95F, 0.2F), kFine), stone,
                { -2.75F, 0, -0.75F });
    scene.place("Plinth back", makeLathe(plinthProfile(0.9F, 0.5F), kFine), stone,
                { 1.6F, 0, -2.9F });
}

void placeObjects(Composition& scene)
{
    scene.place(kStartSceneMainObject, makeTorusKnot(0.92F, 0.27F),
                glossy({ 0.16F, 0.52F, 0.56F }, 0.55F, 48.0F), { 0, 1.16F, 0 });
    scene.place("Vase", makeLathe(vaseProfile(), kFine),
                glossy({ 0.74F, 0.36F, 0.24F }, 0.30F, 28.0F), { -2.75F, 0.2F, -0.75F });
    scene.place("Pebble", makeBlob(0.62F), glossy({ 0.83F, 0.67F, 0.34F }, 0.25F, 24.0F),
                { 3.05F, 0.6F, -0.85F });
    scene.place("Column", makeTwistedColumn(0.62F, 2.9F),
                glossy({ 0.52F, 0.56F, 0.66F }, 0.0F, 1.0F), { 1.6F, 0.5F, -2.9F });
    scene.place("Bowl", makeLathe(bowlProfile(), kFine),
                glossy({ 0.33F, 0.42F, 0.30F }, 0.35F, 40.0F), { -1.35F, 0, 2.55F });
    scene.place("Ball", makeBall(0.42F), glossy({ 0.78F, 0.20F, 0.22F }, 0.60F, 64.0F),
                { -1.22F, 0.58F, 2.5F });
    scene.place("Pawn", makeLathe(pawnProfile(), kFine),
                glossy({ 0.90F, 0.87F, 0.80F }, 0.30F, 32.0F), { 2.9F, 0, 1.9F });
}

}  // namespace

ModelData makeStartScene()
{
    Composition scene;
    placeTable(scene);
    placeObjects(scene);
    scene.model.root.name = "Still life";
    scene.model.builtIn = kStartSceneName;
    return std::move(scene.model);
}

}  // namespace viewer

// NOLINTEND(readability-magic-numbers)
