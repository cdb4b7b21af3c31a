// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/stage/ClipPlanes.h"
#include "viewer/stage/ObjectCommands.h"
#include "viewer/stage/Stage.h"

#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbScopedUndo.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbOpenSGUtils/nbTransformState.h>

#include <QJsonArray>
#include <QJsonObject>

#include <random>

namespace viewer {

/// Edits a stage as people do, in ways that a number decides.
class Edits
{
public:
    Edits(Stage& editedStage, unsigned seed)
        : stage(editedStage)
        , random(seed)
    { }

    /// Makes one edit; whether it was possible does not matter.
    void make()
    {
        select();
        switch (random() % 13) {
        case 0:
        case 1:
        case 2:
            return run(oneOf({ "object.translation", "object.rotation", "object.scale",
                               "object.rotatePivot", "object.scalePivot" }),
                       vector());
        case 3:
            return run(oneOf({ "object.visible", "object.locked" }), random() % 2 == 0);
        case 4:
            run("texture.picture",
                oneOf({ NB_VIEWER_FOLDER "/models/label.png",
                        NB_VIEWER_FOLDER "/models/tiles.png" }));
            return run("texture.projection", oneOf({ "uv", "planar", "triplanar", "tire" }));
        case 5:
            return editPicture();
        case 6:
            return addPlate();
        case 7:
            return editMatch();
        case 8:
            return run(oneOf({ "scene.addClipPlane", "scene.removeClipPlane" }), {});
        case 9:
            return editState();
        case 10:
            stage.undo();
            return;
        case 11:
            run(oneOf({ "scene.delete", "scene.duplicate", "scene.duplicate" }), {});
            return run("object.name", oneOf({ "Urn", "Box" }));
        default:
            return moveCamera();
        }
    }

private:
    float number() { return static_cast<float>(static_cast<int>(random() % 2001) - 1000) / 37.0F; }

    QJsonArray vector()
    {
        return { double(number()) + 0.01, double(number()) + 0.01, double(number()) + 0.01 };
    }

    const char* oneOf(std::initializer_list<const char*> words)
    {
        return words.begin()[random() % words.size()];
    }

    void run(const char* name, const QJsonValue& value)
    {
        QString error;
        stage.commands().run(QLatin1String(name), value, error);
    }

    void select()
    {
        std::vector<osg::NodePtr> objects = childObjects(osg::NodePtr());
        for (std::size_t i = 0; i < objects.size(); ++i) {
            const std::vector<osg::NodePtr> children = childObjects(objects[i]);
            objects.insert(objects.end(), children.begin(), children.end());
        }
        if (!objects.empty()) {
            stage.select(objects[random() % objects.size()]);
        }
    }

    void editPicture()
    {
        run(oneOf({ "texture.translation", "texture.rotation", "texture.scale",
                    "texture.triplanarRotation", "texture.tireCenter" }),
            vector());
        run(oneOf({ "texture.keepAspect", "texture.repeatU", "texture.repeatV",
                    "texture.endInDepth", "texture.mask", "texture.invert", "texture.tireFit" }),
            random() % 2 == 0);
        run("texture.component", oneOf({ "diffuse", "transparency" }));
    }

    void addPlate()
    {
        if (random() % 2 == 0) {
            run("plates.addColor",
                QJsonObject { { "color", "#80ff4020" }, { "name", oneOf({ "Veil", "Bar" }) } });
        } else {
            run("plates.addPicture",
                QJsonObject { { "file", NB_VIEWER_FOLDER "/sessions/logo.png" },
                              { "anchor", oneOf({ "top", "left", "bottomRight" }) } });
        }
        run("plates.rotation", double(number()));
        run("plates.position", QJsonArray { double(number()), double(number()) });
        run("plates.opacity", static_cast<double>(random() % 100) / 99.0);
        run(oneOf({ "plates.backward", "plates.remove" }), {});
        run(oneOf({ "plates.front", "plates.visible" }), random() % 2 == 0);
    }

    void editMatch()
    {
        run("match.setPhotograph", oneOf({ "", NB_VIEWER_FOLDER "/models/boxes-photograph.png" }));
        run("match.setActive", true);
        run("match.setLine",
            QJsonObject { { "line", oneOf({ "x1", "y2", "z1" }) },
                          { "ends",
                            QJsonArray { 0.1 + 1e-9 * double(number()), 0.2, 0.7,
                                         0.01 * double(number()) } } });
        run("match.setLinesType", oneOf({ "xyz", "xy", "yz" }));
        run("match.setVeil", static_cast<double>(random() % 100) / 100.0);
        run(oneOf({ "match.setLocked", "match.showLines" }), random() % 2 == 0);
        run("match.setActive", false);
    }

    /// Values that no panel gives, down to the sign of zeros.
    void editState()
    {
        const osg::NodePtr node = stage.selectedObject();
        if (node == osg::NullFC) {
            return;
        }
        const nbScopedUndo step(QStringLiteral("State"));
        nbNodeUtils::convertToTransform3DNode(node);
        const auto core = osg::Transform3DPtr::dcast(node->getCore());
        nbUndoService::the()->noteTransform(core);
        nbTransformState state = nbTransformState::of(*core);
        state.translation = osg::Vec3f(-0.0F, 1e-42F, number());
        state.rotationQuaternion.setValueAsAxisDeg(osg::Vec3f(number(), 1.0F, 0.3F), number());
        state.rotationMode = static_cast<osg::Int32>(random() % 3);
        state.eulerRotationOrder = oneOf({ "xyz", "zyx", "yzx" });
        state.applyTo(core);
    }

    void moveCamera()
    {
        CameraPose pose = stage.pose();
        pose.from = osg::Pnt3f(number(), number(), number());
        pose.fovDeg = 20.0F + static_cast<float>(random() % 50) / 3.0F;
        pose.orthographic = random() % 2 == 0;
        stage.setPose(pose);
    }

    Stage& stage;
    std::mt19937 random;
};

}  // namespace viewer
