// SPDX-License-Identifier: MIT
#include "viewer/scenes/SceneCapture.h"

#include "viewer/commands/SceneLimits.h"
#include "viewer/scenes/SceneMatchState.h"
#include "viewer/scenes/ScenePictures.h"
#include "viewer/stage/ClipPlanes.h"
#include "viewer/stage/ObjectCommands.h"
#include "viewer/stage/Stage.h"
#include "viewer/texts/Text.h"
#include "viewer/textures/SurfaceMaterial.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGExt/ClipPlane3D.h>
#include <nbOpenSGExt/NodePermissions.h>
#include <nbOpenSGSceneplate/nbSceneplateList.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <map>
#include <set>
#include <tuple>
#include <utility>

namespace viewer {
namespace {

QString nameOf(const osg::NodePtr& node)
{
    return QString::fromStdString(nbNodeUtils::getName(node));
}

std::optional<nbTransformState> stateOf(const osg::Transform3DPtr& core)
{
    if (core == osg::NullFC) {
        return std::nullopt;
    }
    nbTransformState state = nbTransformState::of(*core);
    osg::Vec3f& scale = state.scale;
    scale.setValues(nearestScale(scale[0]), nearestScale(scale[1]), nearestScale(scale[2]));
    return state;
}

/// Everything that may be edited of a node with a transform.
SceneNode nodeOf(const osg::NodePtr& node, const QString& formerName)
{
    SceneNode captured;
    captured.name = formerName;
    if (nameOf(node) != formerName) {
        captured.newName = nameOf(node);
    }
    captured.visible = node->getActive();
    const auto permissions =
        osg::NodePermissionsPtr::dcast(node->findAttachment(osg::NodePermissions::getClassType()));
    captured.denied = permissions == osg::NullFC ? 0 : permissions->getDenied();
    captured.transform = stateOf(osg::Transform3DPtr::dcast(node->getCore()));
    return captured;
}

SceneSettings settingsOf(const osg::ColorComponentSettingsPtr& settings)
{
    SceneSettings captured;
    captured.type = settings->getTextureProjectionType();
    captured.flags = static_cast<int>(settings->getPlanarProjectionFlags());
    captured.asMask = settings->getAsMask();
    captured.invert = settings->getInvert();
    captured.projection = stateOf(settings->getPlanarProjection());
    captured.values = nbTextureValues::of(*settings);
    return captured;
}

class Capture
{
public:
    Capture(Stage& capturedStage, QString& errorText)
        : stage(capturedStage)
        , error(errorText)
    { }

    bool captureAll(SceneDocument& document)
    {
        document.camera = stage.pose();
        document.match = matchOf(stage);
        const osg::NodePtr root = nbScenegraph::getRootNode();
        if (!collectPlanes(root, document) || !captureBranches(root, document, document.tree)) {
            return false;
        }
        if (document.clipPlanes.empty()) {
            document.tree.clear();
        }
        return capturePlates(document);
    }

private:
    // == Clip planes and the tree

    bool collectPlanes(const osg::NodePtr& top, SceneDocument& document)
    {
        const auto core = osg::ClipPlane3DPtr::dcast(top->getCore());
        if (core != osg::NullFC) {
            const osg::NodePtr frame = core->getTransformNode();
            if (frame == osg::NullFC ||
                osg::Transform3DPtr::dcast(frame->getCore()) == osg::NullFC) {
                error = Text::tr("a clip plane has lost its frame");
                return false;
            }
            SceneClipPlane plane;
            plane.equation = core->getEquation();
            plane.enabled = core->getEnable();
            plane.outline = nearestScale(clipOutlineEdge(frame));
            plane.frame = nodeOf(frame, nameOf(frame));
            const int number = static_cast<int>(document.clipPlanes.size());
            planeParts[top.getFieldContainerId()] = { SceneBranch::Kind::Plane, number };
            planeParts[frame.getFieldContainerId()] = { SceneBranch::Kind::Frame, number };
            document.clipPlanes.push_back(plane);
        }
        for (osg::UInt32 i = 0; i < top->getNChildren(); ++i) {
            if (!collectPlanes(top->getChild(i), document)) {
                return false;
            }
        }
        return true;
    }

    bool captureBranches(const osg::NodePtr& parent, SceneDocument& document,
                         std::vector<SceneBranch>& branches)
    {
        for (osg::UInt32 i = 0; i < parent->getNChildren(); ++i) {
            const osg::NodePtr node = parent->getChild(i);
            if (!nbNodeUtils::isAuxiliaryNode(node) &&
                !captureBranch(node, document, branches.emplace_back())) {
                return false;
            }
        }
        return true;
    }

    bool captureBranch(const osg::NodePtr& node, SceneDocument& document, SceneBranch& branch)
    {
        const osg::UInt32 id = node.getFieldContainerId();
        if (const auto found = planeParts.find(id); found != planeParts.end()) {
            std::tie(branch.kind, branch.number) = found->second;
            return branch.kind == SceneBranch::Kind::Frame ||
                captureBranches(node, document, branch.children);
        }
        branch.number = static_cast<int>(document.models.size());
        return captureModel(node, document.models.emplace_back());
    }

    // == Models

    bool captureModel(const osg::NodePtr& root, SceneModel& model)
    {
        const ModelSources::Source* source = stage.sources().find(root);
        if (source == nullptr || (source->file.isEmpty() && source->builtIn.isEmpty())) {
            error =
                QStringLiteral("\"%1\" came from no file and cannot be saved").arg(nameOf(root));
            return false;
        }
        model.file = source->file;
        model.builtIn = source->builtIn;
        present.clear();
        if (!captureObject(root, model)) {
            return false;
        }
        captureRemoved(root, model);
        return true;
    }

    /// What was read and is gone; of what is below it nothing need be said.
    void captureRemoved(const osg::NodePtr& root, SceneModel& model)
    {
        for (const auto& [path, name] : stage.sources().objectsOf(root)) {
            const int last = path.lastIndexOf('/');
            const bool isCopy = path.indexOf('+', last + 1) >= 0;
            if (!isCopy && present.count(path) == 0 &&
                present.count(path.left(qMax(last, 0))) > 0) {
                SceneNode& node = model.nodes.emplace_back();
                node.path = path;
                node.name = QString::fromStdString(name);
                node.removed = true;
            }
        }
    }

    bool captureObject(const osg::NodePtr& object, SceneModel& model)
    {
        const QString path = stage.sources().pathOf(object);
        const bool isCopy = path.section('/', -1).contains('+');
        present.insert(path);
        SceneNode node = nodeOf(object, QString::fromStdString(stage.sources().nameOf(object)));
        if (isCopy || node.transform || !node.visible || node.denied != 0 || node.newName) {
            node.path = path;
            model.nodes.push_back(node);
        }
        const std::vector<osg::NodePtr> surfaces = ownSurfaces(object);
        for (std::size_t part = 0; part < surfaces.size(); ++part) {
            if (!captureSurface(surfaces[part], path, static_cast<int>(part), model)) {
                return false;
            }
        }
        for (const osg::NodePtr& child : childObjects(object)) {
            if (!captureObject(child, model)) {
                return false;
            }
        }
        return true;
    }

    bool captureSurface(const osg::NodePtr& node, const QString& path, int part, SceneModel& model)
    {
        const osg::UberMaterialPtr material = uberMaterialOf(node);
        if (material == osg::NullFC) {
            return true;
        }
        SceneSurface& surface = model.surfaces.emplace_back();
        surface.object = path;
        surface.part = part;
        surface.name = QString::fromStdString(stage.sources().nameOf(node));
        surface.ambient = material->getAmbient();
        surface.diffuse = material->getDiffuse();
        surface.specular = material->getSpecular();
        surface.emission = material->getEmission();
        surface.shininess = material->getShininess();
        surface.transparency = material->getTransparency();
        for (const std::string& name : material->getComponentNames()) {
            SceneComponent& component = surface.components.emplace_back();
            component.name = QString::fromStdString(name);
            const osg::ColorComponentSettingsPtr settings = material->getComponentSettings(name);
            if (settings != osg::NullFC) {
                component.settings = settingsOf(settings);
            }
            if (!capturePicture(material->getImage(name), component.picture, error)) {
                return false;
            }
        }
        return true;
    }

    // == Plates

    bool capturePlates(SceneDocument& document)
    {
        const osg::NodePtr root = nbScenegraph::getSceneplateRoot();
        for (osg::UInt32 i = 0; i < root->getNChildren(); ++i) {
            const osg::NodePtr node = root->getChild(i);
            if (nbSceneplateList::plateOf(node) == osg::NullFC) {
                continue;
            }
            ScenePlate& plate = document.plates.emplace_back();
            plate.state = nbSceneplateState::of(node);
            const osg::RefPtr<osg::ImagePtr> image = std::exchange(plate.state.image, {});
            if (!capturePicture(image.get(), plate.picture, error)) {
                return false;
            }
        }
        return true;
    }

    Stage& stage;
    QString& error;
    std::set<QString> present;  ///< paths of the objects of a model
    /// Nodes and frames of clip planes by their ids, and the numbers of the planes.
    std::map<osg::UInt32, std::pair<SceneBranch::Kind, int>> planeParts;
};

}  // namespace

std::optional<SceneDocument> captureScene(Stage& stage, QString& error)
{
    SceneDocument document;
    const bool isWhole = Capture(stage, error).captureAll(document);
    return isWhole ? std::make_optional(document) : std::nullopt;
}

bool saveScene(Stage& stage, const QString& path, QString& error)
{
    const std::optional<SceneDocument> document = captureScene(stage, error);
    return document && writeSceneFile(path, *document, error);
}

}  // namespace viewer
