// SPDX-License-Identifier: MIT
#include "viewer/textures/TextureValueCommands.h"

#include "viewer/commands/JsonReader.h"
#include "viewer/replay/SessionTargets.h"
#include "viewer/stage/Stage.h"
#include "viewer/texts/Text.h"
#include "viewer/textures/TextureTool.h"

#include <QJsonArray>

#include <algorithm>
#include <array>
#include <cmath>

namespace viewer {
namespace {

using Settings = TextureTarget::Settings;

constexpr double kDegPerRad = 57.295779513082323;
constexpr int kMostNumbers = 3;

QString named(const char* name)
{
    return QStringLiteral("texture.") + QLatin1String(name);
}

struct TypeRow
{
    const char* word;
    Settings::TextureProjection type;
};

constexpr std::array<TypeRow, 4> kTypes { {
    { "uv", Settings::UVProjection },
    { "planar", Settings::PlanarProjection },
    { "triplanar", Settings::TriplanarProjection },
    { "tire", Settings::TireProjection },
} };

/// Numbers among the values of a projection.
struct NumbersRow
{
    const char* name;
    int count;
    /// The first of them.
    float* (*find)(nbTextureValues&);
    double shown = 1.0;  ///< what a 1 among the values is shown as
    bool mustNotBeZero = false;
    bool endsFitting = false;  ///< of the tire projection
};

constexpr std::array<NumbersRow, 12> kNumbers { {
    { "uvOffset", 2, [](nbTextureValues& v) { return v.offset.getValues(); } },
    { "uvRepeat", 2, [](nbTextureValues& v) { return v.repeat.getValues(); }, 1.0, true },
    { "uvRotate", 1, [](nbTextureValues& v) { return &v.rotate; } },
    { "triplanarRotation", 3, [](nbTextureValues& v) { return v.triplanarRotation.getValues(); },
      kDegPerRad },
    { "triplanarOffsetU", 3, [](nbTextureValues& v) { return v.triplanarOffsetU.getValues(); } },
    { "triplanarOffsetV", 3, [](nbTextureValues& v) { return v.triplanarOffsetV.getValues(); } },
    { "triplanarRepeatU", 3, [](nbTextureValues& v) { return v.triplanarRepeatU.getValues(); }, 1.0,
      true },
    { "triplanarRepeatV", 3, [](nbTextureValues& v) { return v.triplanarRepeatV.getValues(); }, 1.0,
      true },
    { "tireCenter", 3, [](nbTextureValues& v) { return v.tireCenter.getValues(); }, 1.0, false,
      true },
    { "tireHeight", 1, [](nbTextureValues& v) { return &v.tireScaleHeight; }, 1.0, true, true },
    { "tireRadius", 1, [](nbTextureValues& v) { return &v.tireScaleRadius; }, 1.0, true, true },
    { "tireScaleU", 1, [](nbTextureValues& v) { return &v.tireScaleU; }, 1.0, true },
} };

bool orNoPicture(bool isDone, QString& error)
{
    if (!isDone) {
        error = Text::tr("there is no picture on the selected object");
    }
    return isDone;
}

QJsonValue jsonOf(const float* numbers, int count, double shown)
{
    QJsonArray array;
    for (int i = 0; i < count; ++i) {
        array.append(static_cast<double>(numbers[i]) * shown);
    }
    return count == 1 ? array.first() : QJsonValue(array);
}

bool setNumbers(const NumbersRow& row, const QJsonValue& value, TextureTool& tool, QString& error)
{
    std::array<double, kMostNumbers> numbers {};
    const QJsonValue array = row.count == 1 ? QJsonValue(QJsonArray { value }) : value;
    if (!JsonReader(error).readNumbers(array, named(row.name), numbers.data(), row.count)) {
        return false;
    }
    nbTextureValues values = tool.target().values();
    float* const target = row.find(values);
    for (int i = 0; i < row.count; ++i) {
        target[i] = static_cast<float>(numbers[static_cast<std::size_t>(i)] / row.shown);
        if (row.mustNotBeZero && !std::isnormal(target[i])) {
            return JsonReader(error).fail(named(row.name), "must not be 0");
        }
    }
    values.tireAutoParameter = values.tireAutoParameter && !row.endsFitting;
    return orNoPicture(tool.target().setValues(values), error);
}

void addNumbers(Stage& stage, TextureTool& tool)
{
    for (const NumbersRow& row : kNumbers) {
        stage.commands().add(named(row.name), [&tool, &row](const QJsonValue& value, QString& e) {
            return setNumbers(row, value, tool, e);
        });
        stage.commands().addValue(named(row.name), [&tool, &row]() -> QJsonValue {
            nbTextureValues values = tool.target().values();
            return tool.target().settings() == osg::NullFC
                ? QJsonValue()
                : jsonOf(row.find(values), row.count, row.shown);
        });
    }
}

void addProjection(Stage& stage, TextureTool& tool)
{
    stage.commands().add(named("projection"), [&tool](const QJsonValue& value, QString& error) {
        const auto* const row = std::find_if(kTypes.begin(), kTypes.end(), [&](const TypeRow& r) {
            return value.toString() == QLatin1String(r.word);
        });
        if (row == kTypes.end()) {
            error = QStringLiteral("there is no projection %1").arg(textOf(value));
            return false;
        }
        return orNoPicture(tool.setProjectionType(row->type), error);
    });
    stage.commands().addValue(named("projection"), [&tool]() -> QJsonValue {
        const Settings::TextureProjection type = tool.target().projectionType();
        const auto* const row = std::find_if(kTypes.begin(), kTypes.end(),
                                             [type](const TypeRow& r) { return r.type == type; });
        return tool.target().settings() == osg::NullFC ? QJsonValue()
                                                       : QJsonValue(QLatin1String(row->word));
    });
    stage.commands().add(named("tireFit"), [&tool](const QJsonValue& value, QString& error) {
        nbTextureValues values = tool.target().values();
        return JsonReader(error).readBool(value, named("tireFit"), values.tireAutoParameter) &&
            orNoPicture(tool.target().setValues(values), error);
    });
    stage.commands().addValue(named("tireFit"), [&tool]() -> QJsonValue {
        return tool.target().settings() == osg::NullFC
            ? QJsonValue()
            : QJsonValue(tool.target().values().tireAutoParameter);
    });
}

void addHandlePlace(Stage& stage, TextureTool& tool)
{
    stage.commands().add(named("anchor"), [&stage, &tool](const QJsonValue& value, QString& error) {
        SessionTarget target;
        osg::Pnt2f px;
        if (!readSessionTarget(value, named("anchor"), target, error) ||
            !resolveTarget(target, stage, px, error)) {
            return false;
        }
        const bool isSet = tool.setAnchor(px);
        if (!isSet) {
            error = Text::tr("the surface with the picture is not there");
        }
        return isSet;
    });
    stage.commands().addValue(named("anchor"), [&tool]() -> QJsonValue {
        const std::optional<osg::Pnt3f> anchor = tool.anchor();
        return anchor ? jsonOf(anchor->getValues(), 3, 1.0) : QJsonValue();
    });
    stage.commands().add(named("handleSize"), [&tool](const QJsonValue& value, QString& error) {
        const TextureGizmos::Size size = tool.handleSize();
        const auto wanted = static_cast<float>(value.toDouble(-1.0));
        if (wanted < size.least || wanted > size.most) {
            return JsonReader(error).fail(named("handleSize"),
                                          QStringLiteral("must be from %1 to %2")
                                              .arg(static_cast<double>(size.least))
                                              .arg(static_cast<double>(size.most)));
        }
        tool.setHandleSize(wanted);
        return true;
    });
    stage.commands().addValue(named("handleSize"),
                              [&tool] { return static_cast<double>(tool.handleSize().present); });
}

/// Adds what a person can set of a gizmo, true or false.
template <class Write, class Read>
void addGizmoSwitch(Stage& stage, const char* name, Write write, Read read)
{
    stage.commands().add(named(name), [name, write](const QJsonValue& value, QString& error) {
        bool on = false;
        const bool isRead = JsonReader(error).readBool(value, named(name), on);
        if (isRead) {
            write(on);
        }
        return isRead;
    });
    stage.commands().addValue(named(name), [read]() -> QJsonValue { return read(); });
}

}  // namespace

void addTextureValueCommands(Stage& stage, TextureTool& tool)
{
    addProjection(stage, tool);
    addNumbers(stage, tool);
    addHandlePlace(stage, tool);
    auto& uv = tool.allGizmos().uvGizmo();
    addGizmoSwitch(
        stage, "uvKeepAspect", [&uv](bool on) { uv.setKeepAspectRatio(on); },
        [&uv] { return uv.getKeepAspectRatio(); });
    auto& triplanar = tool.allGizmos().triplanarGizmo();
    addGizmoSwitch(
        stage, "ringsTilted", [&triplanar](bool on) { triplanar.setRingsTilted(on); },
        [&triplanar] { return triplanar.areRingsTilted(); });
}

}  // namespace viewer
