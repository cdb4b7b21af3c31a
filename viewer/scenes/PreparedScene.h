// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/loading/BuiltModel.h"
#include "viewer/loading/ModelSources.h"
#include "viewer/scenes/SceneDocument.h"

#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace viewer {

class Stage;

/// Where the files that a scene refers to are read, each model once; each answers nothing with one
/// line in its error.
struct SceneAssets
{
    std::function<std::optional<BuiltModel>(const QString& file, QString& error)> model;
    std::function<osg::RefPtr<osg::ImagePtr>(const QString& file, QString& error)> picture;

    static SceneAssets fromDisk();
};

/// A scene that was built from a document beside the one that is shown, so that whatever is wrong
/// with it is found before anything of that is touched.
class PreparedScene
{
public:
    /// @param error  one line with the place, such as "models[0].nodes[2]: ..."
    /// @return null if a file cannot be read or does not fit what the document says about it
    static std::unique_ptr<PreparedScene> prepare(const SceneDocument& document,
                                                  const SceneAssets& assets, QString& error);

    /// Replaces everything that the stage shows; steps of undo before it are gone. Once only.
    void show(Stage& stage);

private:
    class Builder;

    PreparedScene() = default;

    std::vector<osg::RefPtr<osg::NodePtr>> top;  ///< right below the scene's root
    std::vector<osg::RefPtr<osg::NodePtr>> plates;
    ModelSources sources;
    osg::RefPtr<osg::ImagePtr> photograph;
    CameraPose camera;
    std::optional<SceneMatch> match;
};

/// Opens a scene file.
/// @return false with one line in `error` that begins with the file; all is as it was
bool openScene(Stage& stage, const QString& path, QString& error);

}  // namespace viewer
