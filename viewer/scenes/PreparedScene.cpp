// SPDX-License-Identifier: MIT
#include "viewer/scenes/PreparedScene.h"

#include "viewer/commands/JsonReader.h"
#include "viewer/loading/ModelReader.h"
#include "viewer/loading/NodeChildren.h"
#include "viewer/loading/PictureFile.h"
#include "viewer/loading/StartScene.h"
#include "viewer/scenes/SceneMatchState.h"
#include "viewer/scenes/ScenePictures.h"
#include "viewer/stage/ClipPlanes.h"
#include "viewer/stage/ObjectCommands.h"
#include "viewer/stage/Stage.h"
#include "viewer/texts/Text.h"
#include "viewer/textures/SurfaceMaterial.h"

#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbScopedUndo.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbMaterialEditor/nbBoxCoordinates.h>
#include <nbOpenSGExt/ClipPlane3D.h>
#include <nbOpenSGSceneplate/Sceneplate.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodePermission.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGCoredNodePtr.h>

#include <map>
#include <utility>

namespace viewer {
namespace {

/// The object at a path of a model; null if there is none.
osg::NodePtr objectBelow(const ModelSources& sources, const osg::NodePtr& root, const QString& path)
{
    return path.isEmpty() ? root : sources.objectBelow(root, path);
}

}  // namespace

/// Builds what a document describes and remembers the first thing that is wrong.
class PreparedScene::Builder
{
public:
    Builder(PreparedScene& target, const SceneAssets& sceneAssets, QString& errorText)
        : scene(target)
        , assets(sceneAssets)
        , error(errorText)
    { }

    bool build(const SceneDocument& document)
    {
        // What is built here is not shown yet, so there is nothing to be taken back.
        const nbScopedUndo muted(false);
        scene.camera = document.camera;
        scene.match = document.match;
        if (!buildModels(document.models)) {
            return false;
        }
        buildPlanes(document.clipPlanes);
        buildTree(document);
        return buildPlates(document.plates) &&
            (!document.match ||
             readPicture(document.match->photograph, "match.photograph", scene.photograph));
    }

private:
    bool fail(const QString& place, const QString& what)
    {
        return JsonReader(error).fail(place, what);
    }

    // == Files

    bool readPicture(const ScenePicture& picture, const QString& place,
                     osg::RefPtr<osg::ImagePtr>& image)
    {
        if (picture.isNull()) {
            return true;
        }
        QString reason = Text::tr("is no picture");
        if (!picture.png.isEmpty()) {
            image = osg::RefPtr<osg::ImagePtr>(imageOf(picture.png));
        } else {
            osg::RefPtr<osg::ImagePtr>& known = pictures[picture.file];
            if (known == osg::NullFC) {
                known = assets.picture(picture.file, reason);
            }
            image = known;
        }
        return image != osg::NullFC || fail(place, reason);
    }

    // == Models

    /// Does something with each; the first failure ends it.
    /// @param run  bool (const Value&, const QString& place)
    template <class Value, class Run>
    static bool forEach(const std::vector<Value>& all, const QString& place, Run run)
    {
        for (std::size_t i = 0; i < all.size(); ++i) {
            if (!run(all[i], place + QStringLiteral("[%1]").arg(i))) {
                return false;
            }
        }
        return true;
    }

    bool buildModels(const std::vector<SceneModel>& wanted)
    {
        // All are there before the first is edited: those of one file share their geometries.
        std::map<QString, BuiltModel> known;
        std::size_t edited = 0;
        return forEach(wanted, "models",
                       [&](const SceneModel& model, const QString& place) {
                           return obtainModel(model, place, known);
                       }) &&
            forEach(wanted, "models", [&](const SceneModel& model, const QString& place) {
                   return editModel(models[edited++].get(), model, place);
               });
    }

    bool obtainModel(const SceneModel& wanted, const QString& place,
                     std::map<QString, BuiltModel>& known)
    {
        std::optional<BuiltModel> model;
        QString reason;
        const auto first = known.find(wanted.file + wanted.builtIn);
        if (first != known.end()) {
            model = anotherOf(first->second);
        } else if (!wanted.file.isEmpty()) {
            model = assets.model(wanted.file, reason);
        } else if (wanted.builtIn == QLatin1String(kStartSceneName)) {
            model = viewer::buildModel(makeStartScene());
        } else {
            reason = Text::tr("there is no model \"%1\"").arg(wanted.builtIn);
        }
        if (!model) {
            return fail(place, reason);
        }
        models.push_back(model->root);
        scene.sources.add(*model);
        known.emplace(wanted.file + wanted.builtIn, std::move(*model));
        return true;
    }

    bool editModel(const osg::NodePtr& root, const SceneModel& wanted, const QString& place)
    {
        for (const SceneNode& node : wanted.nodes) {
            copyObject(root, node.path);
        }
        const auto editOne = [&](const SceneNode& node, const QString& at) {
            return editObject(root, node, at);
        };
        const auto editPart = [&](const SceneSurface& surface, const QString& at) {
            return editSurface(root, surface, at);
        };
        if (!forEach(wanted.nodes, place + ".nodes", editOne) ||
            !forEach(wanted.surfaces, place + ".surfaces", editPart)) {
            return false;
        }
        for (const SceneNode& node : wanted.nodes) {
            const osg::NodePtr gone =
                node.removed ? objectBelow(scene.sources, root, node.path) : osg::NodePtr();
            if (gone != osg::NullFC && gone != root) {
                takeFromParent(gone);
            }
        }
        return true;
    }

    /// Makes the copy that a path stands for, as its original was read; nothing for other paths.
    void copyObject(const osg::NodePtr& root, const QString& path)
    {
        const int mark = path.lastIndexOf('+');
        if (mark < 0 || path.indexOf('/', mark) >= 0) {
            return;
        }
        const osg::NodePtr original = objectBelow(scene.sources, root, path.left(mark));
        if (original != osg::NullFC && original != root) {
            const osg::NodePtr copy = copyOfObject(original);
            addChild(original->getParent(), copy);
            scene.sources.addCopy(original, copy, path);
        }
    }

    bool isNamed(const osg::NodePtr& node, const QString& name, const QString& place)
    {
        const QString found = QString::fromStdString(scene.sources.nameOf(node));
        return found == name ||
            fail(place,
                 Text::tr("expected \"%1\" in the model, which has \"%2\" there").arg(name, found));
    }

    bool editObject(const osg::NodePtr& root, const SceneNode& wanted, const QString& place)
    {
        const osg::NodePtr node = objectBelow(scene.sources, root, wanted.path);
        if (node == osg::NullFC) {
            return fail(
                place,
                Text::tr("the model has no object \"%1\" at \"%2\"").arg(wanted.name, wanted.path));
        }
        if (!isNamed(node, wanted.name, place)) {
            return false;
        }
        editNode(node, wanted);
        return true;
    }

    static void editNode(const osg::NodePtr& node, const SceneNode& wanted)
    {
        if (wanted.transform) {
            nbNodeUtils::convertToTransform3DNode(node);
            wanted.transform->applyTo(osg::Transform3DPtr::dcast(node->getCore()));
        }
        if (!wanted.visible) {
            const nbEdit edit(node, osg::Node::TravMaskFieldMask);
            node->setActive(false);
        }
        for (osg::Int32 permission = 0; permission < kPermissions; ++permission) {
            if ((wanted.denied >> permission & 1U) != 0) {
                nbNodePermission::setAllowed(node, permission, false);
            }
        }
        if (wanted.newName) {
            nbNodeUtils::setName(node, wanted.newName->toStdString());
        }
    }

    bool editSurface(const osg::NodePtr& root, const SceneSurface& wanted, const QString& place)
    {
        const osg::NodePtr object = objectBelow(scene.sources, root, wanted.object);
        const std::vector<osg::NodePtr> surfaces = ownSurfaces(object);
        if (static_cast<std::size_t>(wanted.part) >= surfaces.size()) {
            return fail(place, Text::tr("the model has no surface \"%1\" there").arg(wanted.name));
        }
        const osg::NodePtr node = surfaces[static_cast<std::size_t>(wanted.part)];
        if (!isNamed(node, wanted.name, place)) {
            return false;
        }
        const osg::UberMaterialPtr material = makeUberMaterial(node);
        {
            const nbEdit edit(material, osg::FieldBits::AllFields);
            material->setAmbient(wanted.ambient);
            material->setDiffuse(wanted.diffuse);
            material->setSpecular(wanted.specular);
            material->setEmission(wanted.emission);
            material->setShininess(wanted.shininess);
            material->setTransparency(wanted.transparency);
        }
        return forEach(wanted.components, place + ".components",
                       [&](const SceneComponent& component, const QString& at) {
                           if (component.settings &&
                               component.settings->type ==
                                   osg::ColorComponentSettings::UVProjection) {
                               nbBoxCoordinates::layOn(geometryOf(node));
                           }
                           return addComponent(material, component, at);
                       });
    }

    bool addComponent(const osg::UberMaterialPtr& material, const SceneComponent& wanted,
                      const QString& place)
    {
        osg::RefPtr<osg::ImagePtr> image;
        if (!readPicture(wanted.picture, place + ".picture", image)) {
            return false;
        }
        const std::string name = wanted.name.toStdString();
        if (image != osg::NullFC) {
            material->setImage(name, image.get());
        }
        if (wanted.settings) {
            material->setComponentSettings(name, makeSettings(*wanted.settings));
        }
        return true;
    }

    static osg::ColorComponentSettingsPtr makeSettings(const SceneSettings& wanted)
    {
        const osg::ColorComponentSettingsPtr settings = osg::ColorComponentSettings::create();
        wanted.values.applyTo(settings);
        const nbEdit edit(settings, osg::FieldBits::AllFields);
        settings->setTextureProjectionType(wanted.type);
        settings->setPlanarProjectionFlags(static_cast<osg::UInt32>(wanted.flags));
        settings->setAsMask(wanted.asMask);
        settings->setInvert(wanted.invert);
        if (wanted.projection) {
            const osg::Transform3DPtr projection = osg::Transform3D::create();
            wanted.projection->applyTo(projection);
            settings->setPlanarProjection(projection);
        }
        return settings;
    }

    // == Clip planes and the tree

    void buildPlanes(const std::vector<SceneClipPlane>& wanted)
    {
        for (const SceneClipPlane& plane : wanted) {
            frames.emplace_back(makeClipFrame(plane.outline));
            const osg::NodePtr frame = frames.back().get();
            nbNodeUtils::setName(frame, plane.frame.name.toStdString());
            editNode(frame, plane.frame);
            planes.emplace_back(makeClipPlane(frame));
            const auto core = osg::ClipPlane3DPtr::dcast(planes.back()->getCore());
            const nbEdit edit(core, osg::FieldBits::AllFields);
            core->setEquation(plane.equation);
            core->setEnable(plane.enabled);
        }
    }

    void buildTree(const SceneDocument& document)
    {
        if (document.tree.empty()) {
            scene.top = models;
        }
        for (const SceneBranch& branch : document.tree) {
            scene.top.push_back(nodeOf(branch));
            hangChildren(branch);
        }
    }

    const osg::RefPtr<osg::NodePtr>& nodeOf(const SceneBranch& branch) const
    {
        const std::vector<osg::RefPtr<osg::NodePtr>>* const parts[] = { &models, &frames, &planes };
        return parts[static_cast<std::size_t>(branch.kind)]->at(
            static_cast<std::size_t>(branch.number));
    }

    void hangChildren(const SceneBranch& branch)
    {
        const osg::NodePtr node = nodeOf(branch).get();
        for (const SceneBranch& child : branch.children) {
            addChild(node, nodeOf(child).get());
            hangChildren(child);
        }
    }

    // == Plates

    bool buildPlates(const std::vector<ScenePlate>& wanted)
    {
        return forEach(wanted, "plates", [this](const ScenePlate& read, const QString& place) {
            nbSceneplateState state = read.state;
            if (!readPicture(read.picture, place + ".picture", state.image)) {
                return false;
            }
            scene.plates.emplace_back(osg::makeNodeFor(osg::Sceneplate::create()));
            state.applyTo(scene.plates.back().get());
            return true;
        });
    }

    static constexpr osg::Int32 kPermissions = 32;

    PreparedScene& scene;
    const SceneAssets& assets;
    QString& error;
    std::vector<osg::RefPtr<osg::NodePtr>> models;
    std::vector<osg::RefPtr<osg::NodePtr>> frames;
    std::vector<osg::RefPtr<osg::NodePtr>> planes;
    std::map<QString, osg::RefPtr<osg::ImagePtr>> pictures;  ///< by file
};

SceneAssets SceneAssets::fromDisk()
{
    return { [](const QString& file, QString& error) -> std::optional<BuiltModel> {
                const std::optional<ModelData> data = readModelFile(file, {}, error);
                return data ? std::make_optional(buildModel(*data)) : std::nullopt;
            },
             [](const QString& file, QString& error) { return readPicture(file, error); } };
}

std::unique_ptr<PreparedScene> PreparedScene::prepare(const SceneDocument& document,
                                                      const SceneAssets& assets, QString& error)
{
    std::unique_ptr<PreparedScene> scene(new PreparedScene);
    return Builder(*scene, assets, error).build(document) ? std::move(scene) : nullptr;
}

void PreparedScene::show(Stage& stage)
{
    {
        const nbScopedUndo muted(false);
        stage.setActiveTool(nullptr);
        stage.replace(top, std::move(sources));
        for (const osg::RefPtr<osg::NodePtr>& plate : plates) {
            addChild(nbScenegraph::getSceneplateRoot(), plate.get());
        }
        stage.setPose(camera);
        if (match) {
            showMatch(*match, photograph.get(), stage);
        }
    }
    nbUndoService::the()->clear();
    stage.edited();
}

bool openScene(Stage& stage, const QString& path, QString& error)
{
    const std::optional<SceneDocument> document = readSceneFile(path, error);
    if (!document) {
        return false;
    }
    QString problem;
    const std::unique_ptr<PreparedScene> scene =
        PreparedScene::prepare(*document, SceneAssets::fromDisk(), problem);
    if (!scene) {
        error = QStringLiteral("%1: %2").arg(path, problem);
        return false;
    }
    scene->show(stage);
    return true;
}

}  // namespace viewer
