// SPDX-License-Identifier: MIT
#include "viewer/textures/TextureCommands.h"

#include "viewer/commands/JsonReader.h"
#include "viewer/loading/PictureFile.h"
#include "viewer/replay/SessionTargets.h"
#include "viewer/stage/Stage.h"
#include "viewer/texts/Text.h"
#include "viewer/textures/TextureTool.h"
#include "viewer/textures/TextureValueCommands.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <array>

namespace viewer {
namespace {

using Settings = TextureTarget::Settings;

const char* const kPrefix = "texture.";

QString named(const char* name)
{
    return QLatin1String(kPrefix) + QLatin1String(name);
}

/// The vectors of the projection, each by its command.
struct VectorRow
{
    const char* name;
    bool (TextureTarget::*write)(const osg::Vec3f&);
    osg::Vec3f (*read)(const osg::Transform3DPtr&);
    bool mustBePositive;
};

constexpr std::array<VectorRow, 3> kVectors { {
    { "translation", &TextureTarget::setTranslation,
      [](const osg::Transform3DPtr& projection) -> osg::Vec3f {
          return projection->getTranslation();
      },
      false },
    { "rotation", &TextureTarget::setRotation,
      [](const osg::Transform3DPtr& projection) -> osg::Vec3f { return projection->getRotation(); },
      false },
    { "scale", &TextureTarget::setScale,
      [](const osg::Transform3DPtr& projection) -> osg::Vec3f { return projection->getScale(); },
      true },
} };

struct FlagRow
{
    const char* name;
    TextureTarget::Flag flag;
};

constexpr std::array<FlagRow, 4> kFlags { {
    { "keepAspect", Settings::KeepAspectRatio },
    { "repeatU", Settings::RepeatU },
    { "repeatV", Settings::RepeatV },
    { "endInDepth", Settings::ClampZ },
} };

QJsonValue jsonOf(const osg::Vec3f& vector)
{
    return QJsonArray { static_cast<double>(vector[0]), static_cast<double>(vector[1]),
                        static_cast<double>(vector[2]) };
}

/// Answers of edits that need a projection.
bool orNoPicture(bool isDone, QString& error)
{
    if (!isDone) {
        error = Text::tr("there is no picture on the selected object");
    }
    return isDone;
}

/// Adds a command that takes true or false. @param write  bool (bool on, QString& error)
template <class Write>
void addSwitch(Commands& commands, const char* name, Write write)
{
    commands.add(named(name), [name, write](const QJsonValue& value, QString& error) {
        bool on = false;
        return JsonReader(error).readBool(value, named(name), on) && write(on, error);
    });
}

}  // namespace

TextureCommands::TextureCommands(Stage& targetStage, TextureTool& textureTool)
    : stage(targetStage)
    , tool(textureTool)
{
    addPictureCommands();
    addHandleCommands();
    addProjectionCommands();
    addSwitches();
    addSceneCommands();
    addTextureValueCommands(stage, tool);
}

TextureCommands::~TextureCommands()
{
    stage.commands().remove(QLatin1String(kPrefix));
}

void TextureCommands::addPictureCommands()
{
    Commands& commands = stage.commands();
    commands.add(named("component"), [this](const QJsonValue& value, QString& error) {
        if (!tool.setComponent(value.toString().toStdString())) {
            error = QStringLiteral("there is no component %1").arg(textOf(value));
            return false;
        }
        return true;
    });
    commands.addValue(named("component"),
                      [this] { return QString::fromStdString(tool.target().component()); });
    commands.add(named("picture"), [this](const QJsonValue& value, QString& error) {
        QString file;
        if (value.isNull()) {
            return orNoPicture(tool.target().removeImage(), error);
        }
        return JsonReader(error).readString(value, named("picture"), file) &&
            tool.setPicture(stage.commands().filePath(file), error);
    });
    commands.addValue(named("picture"), [this] { return pictureName(tool.target().image()); });
    commands.addValue(named("surface"), [this] {
        return QString::fromStdString(nbNodeUtils::getName(tool.target().surface()));
    });
    commands.add(named("drop"),
                 [this](const QJsonValue& value, QString& error) { return drop(value, error); });
}

bool TextureCommands::drop(const QJsonValue& value, QString& error)
{
    const QJsonObject object = value.toObject();
    SessionTarget target;
    QString file;
    osg::Pnt2f px;
    JsonReader reader(error);
    if (!reader.checkKeys(object, named("drop"), { "file", "at" }) ||
        !reader.readString(object.value("file"), named("drop") + ".file", file) ||
        !readSessionTarget(object.value("at"), named("drop") + ".at", target, error) ||
        !resolveTarget(target, stage, px, error)) {
        return false;
    }
    return tool.dropPicture(stage.commands().filePath(file), px, error);
}

void TextureCommands::addHandleCommands()
{
    Commands& commands = stage.commands();
    commands.add(named("handles"), [this](const QJsonValue& value, QString& error) {
        if (!tool.showGroup(value.toString().toStdString())) {
            error = QStringLiteral("there are no handles %1").arg(textOf(value));
            return false;
        }
        return true;
    });
    commands.addValue(named("handles"), [this]() -> QJsonValue {
        const bool areShown = tool.isActive() && !tool.isPlacing();
        return QString::fromStdString(areShown ? tool.group() : std::string());
    });
    commands.add(named("edit"), [this](const QJsonValue& value, QString& error) {
        bool on = !tool.isActive();
        if (!value.isNull() && !JsonReader(error).readBool(value, named("edit"), on)) {
            return false;
        }
        if (on != tool.isActive()) {
            stage.setActiveTool(on ? &tool : nullptr);
        }
        return true;
    });
    commands.addValue(named("edit"), [this] { return tool.isActive(); });
    addSwitch(commands, "place", [this](bool on, QString& error) {
        const bool isPossible = !on || tool.target().settings() != osg::NullFC;
        if (isPossible) {
            tool.setPlacing(on);
        }
        return orNoPicture(isPossible, error);
    });
    commands.addValue(named("place"), [this] { return tool.isPlacing(); });
    commands.addValue(named("preview"), [this] { return !tool.preview().isPaused(); });
}

void TextureCommands::addProjectionCommands()
{
    for (const VectorRow& row : kVectors) {
        stage.commands().add(named(row.name), [this, row](const QJsonValue& value, QString& error) {
            std::array<double, 3> numbers {};
            if (!JsonReader(error).readNumbers(value, named(row.name), numbers.data(), 3)) {
                return false;
            }
            if (row.mustBePositive && *std::min_element(numbers.begin(), numbers.end()) <= 0.0) {
                return JsonReader(error).fail(named(row.name), "must be above 0");
            }
            const osg::Vec3f vector(static_cast<float>(numbers[0]), static_cast<float>(numbers[1]),
                                    static_cast<float>(numbers[2]));
            return orNoPicture((tool.target().*row.write)(vector), error);
        });
        stage.commands().addValue(named(row.name), [this, row]() -> QJsonValue {
            const osg::Transform3DPtr projection = tool.target().projection();
            return projection == osg::NullFC ? QJsonValue() : jsonOf(row.read(projection));
        });
    }
}

void TextureCommands::addSwitches()
{
    Commands& commands = stage.commands();
    const auto read = [this](auto get) {
        return [this, get]() -> QJsonValue {
            const osg::ColorComponentSettingsPtr settings = tool.target().settings();
            return settings == osg::NullFC ? QJsonValue() : QJsonValue(get(settings));
        };
    };
    for (const FlagRow& row : kFlags) {
        addSwitch(commands, row.name, [this, row](bool on, QString& error) {
            return orNoPicture(tool.target().setFlag(row.flag, on), error);
        });
        commands.addValue(named(row.name), read([row](const osg::ColorComponentSettingsPtr& s) {
                              return s->hasPlanarProjectionFlag(row.flag);
                          }));
    }
    addSwitch(commands, "mask", [this](bool on, QString& error) {
        const osg::ColorComponentSettingsPtr settings = tool.target().settings();
        return orNoPicture(
            settings != osg::NullFC && tool.target().setCoverage(on, settings->getInvert()), error);
    });
    commands.addValue(named("mask"),
                      read([](const osg::ColorComponentSettingsPtr& s) { return s->getAsMask(); }));
    addSwitch(commands, "invert", [this](bool on, QString& error) {
        const osg::ColorComponentSettingsPtr settings = tool.target().settings();
        return orNoPicture(
            settings != osg::NullFC && tool.target().setCoverage(settings->getAsMask(), on), error);
    });
    commands.addValue(named("invert"),
                      read([](const osg::ColorComponentSettingsPtr& s) { return s->getInvert(); }));
}

void TextureCommands::addSceneCommands()
{
    Commands& commands = stage.commands();
    addSwitch(commands, "showProjection", [this](bool on, QString&) {
        tool.showProjection(on);
        return true;
    });
    commands.addValue(named("showProjection"), [this] { return tool.isProjectionShown(); });
    addSwitch(commands, "showDepth", [this](bool on, QString&) {
        tool.showDepth(on);
        return true;
    });
    commands.addValue(named("showDepth"), [this] { return tool.isDepthShown(); });
    commands.add(named("planeTransparency"), [this](const QJsonValue& value, QString& error) {
        const double wanted = value.toDouble(-1.0);
        if (wanted < 0.0 || wanted > 1.0) {
            return JsonReader(error).fail(named("planeTransparency"), "must be from 0 to 1");
        }
        tool.setPlaneTransparency(static_cast<float>(wanted));
        return true;
    });
    commands.addValue(named("planeTransparency"),
                      [this] { return static_cast<double>(tool.planeTransparency()); });
}

}  // namespace viewer
