// SPDX-License-Identifier: MIT
#include "viewer/textures/TextureCommands.h"

#include "viewer/commands/JsonReader.h"
#include "viewer/loading/PictureFile.h"
#include "viewer/replay/SessionStage.h"
#include "viewer/stage/Stage.h"
#include "viewer/texts/Text.h"
#include "viewer/textures/TextureTool.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <array>

namespace viewer {
namespace {

using Settings = TextureTarget::Settings;
using Triplanar = nbec::manipulator::TriplanarTextureManipulator;
using UvGizmo = nbec::manipulator::UVTextureManipulator;

constexpr double kDegPerRad = 57.295779513082323;
constexpr int kMostNumbers = 3;

QString named(const char* name)
{
    return QStringLiteral("texture.") + QLatin1String(name);
}

/// The vectors of the planar projection, each by its command.
struct VectorRow
{
    const char* name;
    bool (*write)(TextureTarget&, const osg::Vec3f&);
    osg::Vec3f (*read)(const osg::Transform3D&);
    bool mustBePositive = false;
};

constexpr std::array<VectorRow, 3> kVectors { {
    { "translation",
      [](TextureTarget& target, const osg::Vec3f& wanted) {
          return target.editProjection([&](auto& state) { state.translation = wanted; });
      },
      [](const osg::Transform3D& projection) -> osg::Vec3f {
          return projection.getTranslation();
      } },
    { "rotation",
      [](TextureTarget& target, const osg::Vec3f& anglesDeg) {
          return target.editProjection([&](auto& state) {
              state.rotationMode = osg::Transform3D::EulerMode;
              state.eulerRotation = anglesDeg;
          });
      },
      [](const osg::Transform3D& projection) -> osg::Vec3f { return projection.getRotation(); } },
    { "scale",
      [](TextureTarget& target, const osg::Vec3f& wanted) { return target.setScale(wanted); },
      // Mirrored ones have negative ones.
      [](const osg::Transform3D& projection) -> osg::Vec3f {
          const osg::Vec3f& scale = projection.getScale();
          return { std::abs(scale.x()), std::abs(scale.y()), std::abs(scale.z()) };
      },
      true },
} };

constexpr std::pair<const char*, TextureTarget::Flag> kFlags[] = {
    { "keepAspect", Settings::KeepAspectRatio },
    { "repeatU", Settings::RepeatU },
    { "repeatV", Settings::RepeatV },
    { "endInDepth", Settings::ClampZ }
};

/// By TextureProjection.
constexpr std::array<const char*, 4> kTypes { "uv", "planar", "triplanar", "tire" };

using Values = nbTextureValues;

/// Numbers among the values of a projection.
struct NumbersRow
{
    const char* name;
    int count;
    /// The first of them.
    float* (*find)(Values&);
    double shown = 1.0;  ///< what a 1 among the values is shown as
    bool mustNotBeZero = false;
    bool endsFitting = false;  ///< of the tire projection
};

constexpr std::array<NumbersRow, 13> kNumbers { {
    { "angles", 2, [](Values& v) { return v.planarAngles.getValues(); } },
    { "uvOffset", 2, [](Values& v) { return v.offset.getValues(); } },
    { "uvRepeat", 2, [](Values& v) { return v.repeat.getValues(); }, 1.0, true },
    { "uvRotate", 1, [](Values& v) { return &v.rotate; } },
    { "triplanarRotation", 3, [](Values& v) { return v.triplanarRotation.getValues(); },
      kDegPerRad },
    { "triplanarOffsetU", 3, [](Values& v) { return v.triplanarOffsetU.getValues(); } },
    { "triplanarOffsetV", 3, [](Values& v) { return v.triplanarOffsetV.getValues(); } },
    { "triplanarRepeatU", 3, [](Values& v) { return v.triplanarRepeatU.getValues(); }, 1.0, true },
    { "triplanarRepeatV", 3, [](Values& v) { return v.triplanarRepeatV.getValues(); }, 1.0, true },
    { "tireCenter", 3, [](Values& v) { return v.tireCenter.getValues(); }, 1.0, false, true },
    { "tireHeight", 1, [](Values& v) { return &v.tireScaleHeight; }, 1.0, true, true },
    { "tireRadius", 1, [](Values& v) { return &v.tireScaleRadius; }, 1.0, true, true },
    { "tireScaleU", 1, [](Values& v) { return &v.tireScaleU; }, 1.0, true },
} };

/// Gives the reason where something was not done.
bool orSay(bool isDone, const QString& reason, QString& error)
{
    error = isDone ? error : reason;
    return isDone;
}

/// The same for edits that need a projection.
bool orNoPicture(bool isDone, QString& error)
{
    return orSay(isDone, Text::tr("there is no picture on the selected object"), error);
}

QJsonValue jsonOf(const float* numbers, int count, double shown = 1.0)
{
    QJsonArray array;
    for (int i = 0; i < count; ++i) {
        array.append(numbers[i] * shown);
    }
    return count == 1 ? array.first() : QJsonValue(array);
}

/// What commands work on; both outlive them.
struct Owner
{
    Stage& stage;
    TextureTool& tool;

    Commands& commands() const { return stage.commands(); }
};

/// Adds a value that is null without a picture. @param read  QJsonValue (const Settings&)
template <class Read>
void addSettingValue(const Owner& owner, const char* name, Read read)
{
    owner.commands().addValue(named(name), [owner, read]() -> QJsonValue {
        const osg::ColorComponentSettingsPtr settings = owner.tool.target().settings();
        return settings == osg::NullFC ? QJsonValue() : QJsonValue(read(*settings));
    });
}

/// Adds true or false of the picture's settings.
/// @param write  bool (TextureTarget&, bool on)  @param read  bool (const Settings&)
template <class Write, class Read>
void addSetting(const Owner& owner, const char* name, Write write, Read read)
{
    owner.commands().addSwitch(named(name), [owner, write](bool on, QString& error) {
        TextureTarget& target = owner.tool.target();
        return orNoPicture(target.settings() != osg::NullFC && write(target, on), error);
    });
    addSettingValue(owner, name, read);
}

/// Adds true or false of the tool, or of a gizmo.
template <class Of>
void addOwn(const Owner& owner, const char* name, Of& of, void (Of::*write)(bool),
            bool (Of::*read)() const)
{
    owner.commands().addSwitch(named(name), [&of, write](bool on, QString&) {
        (of.*write)(on);
        return true;
    });
    owner.commands().addValue(named(name), [&of, read] { return (of.*read)(); });
}

// == Pictures

bool drop(const Owner& owner, const QJsonValue& value, QString& error)
{
    const QJsonObject object = value.toObject();
    SessionTarget target;
    QString file;
    osg::Pnt2f px;
    JsonReader reader(error);
    return reader.checkKeys(object, named("drop"), { "file", "at" }) &&
        reader.readString(object.value("file"), named("drop") + ".file", file) &&
        readSessionTarget(object.value("at"), named("drop") + ".at", target, error) &&
        resolveTarget(target, owner.stage, px, error) &&
        owner.tool.dropPicture(owner.commands().filePath(file), px, error);
}

void addPictures(const Owner& owner)
{
    Commands& commands = owner.commands();
    TextureTool& tool = owner.tool;
    commands.add(named("component"), [&tool](const QJsonValue& value, QString& error) {
        return orSay(tool.setComponent(value.toString().toStdString()),
                     QStringLiteral("there is no component %1").arg(textOf(value)), error);
    });
    commands.addValue(named("component"),
                      [&tool] { return QString::fromStdString(tool.target().component()); });
    commands.add(named("picture"), [owner](const QJsonValue& value, QString& error) {
        QString file;
        if (value.isNull()) {
            return orNoPicture(owner.tool.target().removeImage(), error);
        }
        return JsonReader(error).readString(value, named("picture"), file) &&
            owner.tool.setPicture(owner.commands().filePath(file), error);
    });
    commands.addValue(named("picture"), [&tool] { return pictureName(tool.target().image()); });
    commands.addValue(named("surface"), [&tool] {
        return QString::fromStdString(nbNodeUtils::getName(tool.target().surface()));
    });
    commands.add(named("drop"), [owner](const QJsonValue& value, QString& error) {
        return drop(owner, value, error);
    });
}

// == Handles

void addHandles(const Owner& owner)
{
    Commands& commands = owner.commands();
    TextureTool& tool = owner.tool;
    commands.add(named("handles"), [&tool](const QJsonValue& value, QString& error) {
        return orSay(tool.showGroup(value.toString().toStdString()),
                     QStringLiteral("there are no handles %1").arg(textOf(value)), error);
    });
    commands.addValue(named("handles"), [&tool]() -> QJsonValue {
        const bool areShown = tool.isActive() && !tool.isPlacing();
        return QString::fromStdString(areShown ? tool.group() : std::string());
    });
    const auto isActive = [&tool] { return tool.isActive(); };
    commands.addSwitch(
        named("edit"),
        [owner](bool on, QString&) {
            owner.stage.useTool(owner.tool, on);
            return true;
        },
        isActive);
    commands.addValue(named("edit"), isActive);
    commands.addSwitch(named("place"), [&tool](bool on, QString& error) {
        const bool isPossible = !on || tool.target().settings() != osg::NullFC;
        if (isPossible) {
            tool.setPlacing(on);
        }
        return orNoPicture(isPossible, error);
    });
    commands.addValue(named("place"), [&tool] { return tool.isPlacing(); });
    commands.addValue(named("preview"), [&tool] { return !tool.preview().isPaused(); });
    commands.add(named("handleSize"), [&tool](const QJsonValue& value, QString& error) {
        const TextureGizmos::Size size = tool.handleSize();
        const auto wanted = static_cast<float>(value.toDouble(-1.0));
        if (wanted < size.least || wanted > size.most) {
            return JsonReader(error).fail(
                named("handleSize"),
                QStringLiteral("must be from %1 to %2").arg(size.least).arg(size.most));
        }
        tool.setHandleSize(wanted);
        return true;
    });
    commands.addValue(named("handleSize"), [&tool] { return tool.handleSize().present; });
    TextureGizmos& gizmos = tool.allGizmos();
    addOwn(owner, "grabPicture", gizmos, &TextureGizmos::setGrabsPicture,
           &TextureGizmos::grabsPicture);
    addOwn(owner, "pivotAtHandles", gizmos, &TextureGizmos::setPivotsAtHandles,
           &TextureGizmos::pivotsAtHandles);
    addOwn(owner, "uvKeepAspect", tool.allGizmos().uvGizmo(), &UvGizmo::setKeepAspectRatio,
           &UvGizmo::getKeepAspectRatio);
    addOwn(owner, "ringsTilted", tool.allGizmos().triplanarGizmo(), &Triplanar::setRingsTilted,
           &Triplanar::areRingsTilted);
}

void addHandlePlace(const Owner& owner)
{
    owner.commands().add(named("anchor"), [owner](const QJsonValue& value, QString& error) {
        SessionTarget target;
        osg::Pnt2f px;
        return readSessionTarget(value, named("anchor"), target, error) &&
            resolveTarget(target, owner.stage, px, error) &&
            orSay(owner.tool.setAnchor(px), Text::tr("the surface with the picture is not there"),
                  error);
    });
    owner.commands().addValue(named("anchor"), [owner]() -> QJsonValue {
        const std::optional<osg::Pnt3f> anchor = owner.tool.anchor();
        return anchor ? jsonOf(anchor->getValues(), 3) : QJsonValue();
    });
}

// == Projections

bool setVector(const VectorRow& row, TextureTarget& target, const QJsonValue& value, QString& error)
{
    std::array<double, 3> numbers {};
    if (!JsonReader(error).readNumbers(value, named(row.name), numbers.data(), 3)) {
        return false;
    }
    if (row.mustBePositive && *std::min_element(numbers.begin(), numbers.end()) <= 0.0) {
        return JsonReader(error).fail(named(row.name), "must be above 0");
    }
    const osg::Vec3f vector(static_cast<float>(numbers[0]), static_cast<float>(numbers[1]),
                            static_cast<float>(numbers[2]));
    return orNoPicture(row.write(target, vector), error);
}

bool setNumbers(const NumbersRow& row, TextureTarget& target, const QJsonValue& value,
                QString& error)
{
    std::array<double, kMostNumbers> numbers {};
    const QJsonValue array = row.count == 1 ? QJsonValue(QJsonArray { value }) : value;
    if (!JsonReader(error).readNumbers(array, named(row.name), numbers.data(), row.count)) {
        return false;
    }
    nbTextureValues values = target.values();
    float* const written = row.find(values);
    for (int i = 0; i < row.count; ++i) {
        written[i] = static_cast<float>(numbers[static_cast<std::size_t>(i)] / row.shown);
        if (row.mustNotBeZero && !std::isnormal(written[i])) {
            return JsonReader(error).fail(named(row.name), "must not be 0");
        }
    }
    values.tireAutoParameter = values.tireAutoParameter && !row.endsFitting;
    return orNoPicture(target.setValues(values), error);
}

void addNumbers(const Owner& owner)
{
    TextureTarget& target = owner.tool.target();
    for (const VectorRow& row : kVectors) {
        owner.commands().add(named(row.name), [&](const QJsonValue& value, QString& error) {
            return setVector(row, target, value, error);
        });
        owner.commands().addValue(named(row.name), [&]() -> QJsonValue {
            const osg::Transform3DPtr projection = target.projection();
            return projection == osg::NullFC ? QJsonValue()
                                             : jsonOf(row.read(*projection).getValues(), 3);
        });
    }
    for (const NumbersRow& row : kNumbers) {
        owner.commands().add(named(row.name), [&](const QJsonValue& value, QString& error) {
            return setNumbers(row, target, value, error);
        });
        addSettingValue(owner, row.name, [&row](const Settings& settings) {
            nbTextureValues values = nbTextureValues::of(settings);
            return jsonOf(row.find(values), row.count, row.shown);
        });
    }
}

void addProjection(const Owner& owner)
{
    TextureTool& tool = owner.tool;
    owner.commands().addChoice(
        named("projection"), QStringList(kTypes.begin(), kTypes.end()),
        [&tool](int type, QString& error) {
            return orNoPicture(
                tool.setProjectionType(static_cast<Settings::TextureProjection>(type)), error);
        });
    addSettingValue(owner, "projection",
                    [&tool](const Settings&) { return kTypes[tool.target().projectionType()]; });
    addSetting(
        owner, "tireFit",
        [](TextureTarget& target, bool on) {
            nbTextureValues values = target.values();
            values.tireAutoParameter = on;
            return target.setValues(values);
        },
        [](const Settings& s) { return nbTextureValues::of(s).tireAutoParameter; });
    for (const auto& [name, flag] : kFlags) {
        addSetting(
            owner, name,
            [flag = flag](TextureTarget& target, bool on) { return target.setFlag(flag, on); },
            [flag = flag](const Settings& s) { return s.hasPlanarProjectionFlag(flag); });
    }
    addSetting(
        owner, "mask",
        [](TextureTarget& t, bool on) { return t.setCoverage(on, t.settings()->getInvert()); },
        [](const Settings& s) { return s.getAsMask(); });
    addSetting(
        owner, "invert",
        [](TextureTarget& t, bool on) { return t.setCoverage(t.settings()->getAsMask(), on); },
        [](const Settings& s) { return s.getInvert(); });
}

void addDisplay(const Owner& owner)
{
    TextureTool& tool = owner.tool;
    addOwn(owner, "showProjection", tool, &TextureTool::showProjection,
           &TextureTool::isProjectionShown);
    addOwn(owner, "showDepth", tool, &TextureTool::showDepth, &TextureTool::isDepthShown);
    owner.commands().addNumber(named("planeTransparency"), 0.0, 1.0,
                               [&tool](double wanted, QString&) {
                                   tool.setPlaneTransparency(static_cast<float>(wanted));
                                   return true;
                               });
    owner.commands().addValue(named("planeTransparency"),
                              [&tool] { return tool.planeTransparency(); });
}

}  // namespace

void addTextureCommands(Stage& stage, TextureTool& tool)
{
    const Owner owner { stage, tool };
    addPictures(owner);
    addHandles(owner);
    addHandlePlace(owner);
    addNumbers(owner);
    addProjection(owner);
    addDisplay(owner);
}

}  // namespace viewer
