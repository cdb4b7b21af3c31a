// SPDX-License-Identifier: MIT
#include "viewer/plates/PlateCommands.h"

#include "viewer/commands/JsonReader.h"
#include "viewer/loading/PictureFile.h"
#include "viewer/plates/PlateField.h"
#include "viewer/plates/PlateText.h"
#include "viewer/plates/PlatesTool.h"
#include "viewer/stage/Stage.h"
#include "viewer/texts/Text.h"

#include <nbOpenSGRenderAction/nbImageConvert.h>
#include <nbOpenSGSceneplate/nbSceneplateLayout.h>
#include <nbOpenSGSceneplate/nbSceneplateList.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbSceneplateModule/nbSceneplateEditing.h>

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

#include <cmath>

namespace viewer {
namespace {

QString prefixed(const char* name)
{
    return QStringLiteral("plates.") + QLatin1String(name);
}

bool refuse(const char* command, const QString& reason, QString& error)
{
    error = prefixed(command) + QStringLiteral(": ") + reason;
    return false;
}

QJsonArray namesOf(const std::vector<osg::NodePtr>& nodes)
{
    QJsonArray names;
    for (const osg::NodePtr& node : nodes) {
        names.append(QString::fromStdString(nbNodeUtils::getName(node)));
    }
    return names;
}

bool hasSelection(const PlatesTool& tool, const char* command, QString& error)
{
    return !tool.selected().empty() ||
        refuse(command, Text::tr("no scene plate is selected"), error);
}

// == Adding

const QStringList kPlacing { QStringLiteral("name"), QStringLiteral("front"),
                             QStringLiteral("anchor"), QStringLiteral("position") };

/// The part of a value that all kinds of plates share.
bool readPlacing(const QJsonObject& object, const QString& path, JsonReader& reader,
                 NewPlate& plate)
{
    QString name = QString::fromStdString(plate.name);
    const auto value = [&object](const char* key) { return object[QLatin1String(key)]; };
    if ((!value("name").isUndefined() &&
         !reader.readString(value("name"), path + QStringLiteral(".name"), name)) ||
        (!value("front").isUndefined() &&
         !reader.readBool(value("front"), path + QStringLiteral(".front"), plate.front))) {
        return false;
    }
    plate.name = name.toStdString();
    const std::optional<osg::Int32> anchor =
        value("anchor").isUndefined() ? plate.anchor : anchorFromName(value("anchor").toString());
    if (!anchor) {
        return reader.fail(path + QStringLiteral(".anchor"), QStringLiteral("unknown place"));
    }
    plate.anchor = *anchor;
    osg::Vec2f position;
    if (readPair(value("position"), position)) {
        plate.position = position;
    }
    return value("position").isUndefined() || plate.position ||
        reader.fail(path + QStringLiteral(".position"),
                    QStringLiteral("expected an array of two numbers"));
}

bool addPicture(Stage& stage, PlatesTool& tool, const QJsonValue& value, QString& error)
{
    JsonReader reader(error);
    const QString path = QStringLiteral("plates.addPicture");
    const QJsonObject object = value.toObject();
    const QString file = stage.commands().filePath(object[QLatin1String("file")].toString());
    NewPlate plate;
    plate.name = QFileInfo(file).completeBaseName().toStdString();
    constexpr double kMostHeight = 10.0;
    const QJsonValue wanted = object[QLatin1String("height")];
    const double height = wanted.toDouble();
    if (!reader.checkKeys(object, path,
                          kPlacing +
                              QStringList { QStringLiteral("file"), QStringLiteral("height") }) ||
        !readPlacing(object, path, reader, plate)) {
        return false;
    }
    if (!wanted.isUndefined() && !(height > 0.0 && height <= kMostHeight)) {
        return reader.fail(path + QStringLiteral(".height"),
                           QStringLiteral("expected a number above 0, at most 10"));
    }
    plate.image = readPicture(file, error);
    if (!plate.image) {
        return false;
    }
    if (height > 0.0) {
        const double heightPx = height * stage.view().getHeight();
        plate.sizePx = osg::Vec2f(
            static_cast<float>(heightPx * plate.image->getWidth() / plate.image->getHeight()),
            static_cast<float>(heightPx));
        tool.add(plate);
    } else {
        tool.addPicture(plate);
    }
    return true;
}

const QStringList kOfText { QStringLiteral("text"), QStringLiteral("font"), QStringLiteral("color"),
                            QStringLiteral("bold"), QStringLiteral("height") };

/// Paints a text for a plate. @return false with one line of reason
bool paint(const PlateText& text, Stage& stage, const QString& path, JsonReader& reader,
           NewPlate& plate)
{
    const QImage picture = paintPlateText(text, stage.view().getHeight());
    if (picture.isNull()) {
        return reader.fail(path + QStringLiteral(".text"),
                           Text::tr("expected a text that fits into a picture"));
    }
    plate.image = osg::RefPtr<osg::ImagePtr>(nbImageConvert::toImage(picture));
    setPictureSource(plate.image.get(), textOf(toJson(text)));
    plate.sizePx = osg::Vec2f(static_cast<float>(picture.width()) / kTextOversampling,
                              static_cast<float>(picture.height()) / kTextOversampling);
    return true;
}

bool addText(Stage& stage, PlatesTool& tool, const QJsonValue& value, QString& error)
{
    JsonReader reader(error);
    const QString path = QStringLiteral("plates.addText");
    const QJsonObject object = value.toObject();
    PlateText text;
    NewPlate plate;
    if (!reader.checkKeys(object, path, kPlacing + kOfText) ||
        !readPlateText(object, path, reader, text)) {
        return false;
    }
    plate.name = text.text.simplified().toStdString();
    if (!readPlacing(object, path, reader, plate) || !paint(text, stage, path, reader, plate)) {
        return false;
    }
    tool.add(plate);
    return true;
}

/// The text of the plate selected last; nothing if it shows none.
std::optional<PlateText> selectedText(const PlatesTool& tool)
{
    if (tool.selected().empty()) {
        return std::nullopt;
    }
    const osg::ImagePtr image = nbSceneplateList::plateOf(tool.selected().back())->getImage();
    QString error;
    JsonReader reader(error);
    PlateText text;
    const std::optional<QJsonObject> source = parseJsonObject(pictureSource(image).toUtf8(), error);
    return source && readPlateText(*source, {}, reader, text) ? std::make_optional(text)
                                                              : std::nullopt;
}

bool changeText(Stage& stage, PlatesTool& tool, const QJsonValue& value, QString& error)
{
    JsonReader reader(error);
    const QString path = QStringLiteral("plates.text");
    std::optional<PlateText> text = selectedText(tool);
    NewPlate painted;
    if (!text) {
        return reader.fail(path, Text::tr("no text is selected"));
    }
    if (!reader.checkKeys(value.toObject(), path, kOfText) ||
        !readPlateText(value.toObject(), path, reader, *text) ||
        !paint(*text, stage, path, reader, painted)) {
        return false;
    }
    const osg::Vec2f size = painted.sizePx * (1.0F / static_cast<float>(stage.view().getHeight()));
    nbSceneplateEditing::edit({ tool.selected().back() },
                              QT_TRANSLATE_NOOP("Manipulator", "Change text"),
                              [&](osg::Sceneplate& plate) {
                                  plate.setImage(painted.image.get());
                                  plate.setSize(size);
                              });
    return true;
}

bool addColor(Stage& stage, PlatesTool& tool, const QJsonValue& value, QString& error)
{
    JsonReader reader(error);
    const QString path = QStringLiteral("plates.addColor");
    const QJsonObject object = value.toObject();
    NewPlate plate;
    plate.name = "Colour";
    osg::Vec2f size(osg::kSceneplateSize, osg::kSceneplateSize);
    const QStringList known { QStringLiteral("color"), QStringLiteral("size") };
    if (!reader.checkKeys(object, path, kPlacing + known) ||
        !readPlacing(object, path, reader, plate)) {
        return false;
    }
    const std::optional<osg::Color4f> color = readPlateColor(object[QLatin1String("color")]);
    if (!color) {
        return reader.fail(path + QStringLiteral(".color"), QStringLiteral("unknown colour"));
    }
    if (object.contains(QLatin1String("size")) &&
        (!readPair(object[QLatin1String("size")], size) || !(size.x() > 0.0F) ||
         !(size.y() > 0.0F))) {
        return reader.fail(path + QStringLiteral(".size"),
                           QStringLiteral("expected two numbers above 0"));
    }
    plate.color = *color;
    plate.sizePx = size * static_cast<float>(stage.view().getHeight());
    tool.add(plate);
    return true;
}

// == The selected ones

bool select(PlatesTool& tool, const QJsonValue& value, QString& error)
{
    if (!value.isArray()) {
        return refuse("select", QStringLiteral("expected an array of names"), error);
    }
    std::vector<osg::NodePtr> nodes;
    const QJsonArray names = value.toArray();
    for (const QJsonValue& name : names) {
        nodes.push_back(PlatesTool::plateByName(name.toString().toStdString()));
        if (nodes.back() == osg::NullFC) {
            return refuse("select",
                          QStringLiteral("there is no scene plate \"%1\"").arg(name.toString()),
                          error);
        }
    }
    tool.select(nodes);
    return true;
}

bool setField(const std::vector<osg::NodePtr>& nodes, const PlateField& field,
              const QJsonValue& value, QString& error)
{
    if (!field.accept(value, nullptr)) {
        return refuse(field.name, QLatin1String(field.expected), error);
    }
    nbSceneplateEditing::edit(nodes, field.title,
                              [&](osg::Sceneplate& plate) { field.accept(value, &plate); });
    return true;
}

/// Shows or hides a plate that need not be selected.
bool setVisible(const PlateField& field, const QJsonObject& value, QString& error)
{
    const QString name = value[QLatin1String("name")].toString();
    const osg::NodePtr node = PlatesTool::plateByName(name.toStdString());
    if (node == osg::NullFC) {
        return refuse(field.name, QStringLiteral("there is no scene plate \"%1\"").arg(name),
                      error);
    }
    return setField({ node }, field, value[QLatin1String("visible")], error);
}

void addField(Stage& stage, PlatesTool& tool, const PlateField& field)
{
    const bool isVisible = QLatin1String(field.name) == QLatin1String("visible");
    stage.commands().add(prefixed(field.name),
                         [&tool, &field, isVisible](const QJsonValue& value, QString& error) {
                             if (isVisible && value.isObject()) {
                                 return setVisible(field, value.toObject(), error);
                             }
                             return hasSelection(tool, field.name, error) &&
                                 setField(tool.selected(), field, value, error);
                         });
    stage.commands().addValue(prefixed(field.name), [&tool, &field] {
        const std::vector<osg::NodePtr> nodes = tool.selected();
        return nodes.empty() ? QJsonValue() : field.read(*nbSceneplateList::plateOf(nodes.back()));
    });
}

bool setAnchor(Stage& stage, const PlatesTool& tool, const QJsonValue& value, QString& error)
{
    const std::optional<osg::Int32> anchor = anchorFromName(value.toString());
    if (!hasSelection(tool, "anchor", error)) {
        return false;
    }
    if (!anchor) {
        return refuse("anchor", QStringLiteral("expected a place such as \"topLeft\""), error);
    }
    nbSceneplateEditing::setAnchor(tool.selected(), *anchor, stage.view().getWidth(),
                                   stage.view().getHeight());
    return true;
}

bool rename(const PlatesTool& tool, const QJsonValue& value, QString& error)
{
    if (!hasSelection(tool, "name", error)) {
        return false;
    }
    const std::string name = value.toString().trimmed().toStdString();
    const osg::NodePtr node = tool.selected().back();
    const osg::NodePtr former = PlatesTool::plateByName(name);
    if (name.empty() || (former != osg::NullFC && former != node)) {
        return refuse("name", Text::tr("expected a name that no other plate has"), error);
    }
    nbSceneplateEditing::rename(node, name);
    return true;
}

void addRestacking(Stage& stage, PlatesTool& tool, const char* name, int steps)
{
    stage.commands().add(prefixed(name), [&tool, name, steps](const QJsonValue&, QString& error) {
        return hasSelection(tool, name, error) &&
            (nbSceneplateEditing::restack(tool.selected(), steps) ||
             refuse(name, Text::tr("there is no further plate on this side"), error));
    });
}

QJsonValue centreOf(Stage& stage, const PlatesTool& tool)
{
    const std::vector<osg::NodePtr> nodes = tool.selected();
    if (nodes.empty()) {
        return {};
    }
    const osg::Pnt2f centre = nbSceneplateLayout::centre(
        nbSceneplateList::plateOf(nodes.back()), stage.view().getWidth(), stage.view().getHeight());
    return QJsonArray { static_cast<double>(centre.x()), static_cast<double>(centre.y()) };
}

void addSelectionCommands(Stage& stage, PlatesTool& tool)
{
    Commands& commands = stage.commands();
    commands.add(prefixed("select"), [&tool](const QJsonValue& value, QString& error) {
        return select(tool, value, error);
    });
    commands.add(prefixed("remove"), [&tool](const QJsonValue&, QString& error) {
        return hasSelection(tool, "remove", error) &&
            nbSceneplateEditing::remove(tool.selected()) > 0;
    });
    addRestacking(stage, tool, "forward", 1);
    addRestacking(stage, tool, "backward", -1);
    for (const PlateField& field : plateFields()) {
        addField(stage, tool, field);
    }
    commands.add(prefixed("name"), [&tool](const QJsonValue& value, QString& error) {
        return rename(tool, value, error);
    });
    commands.add(prefixed("anchor"), [&stage, &tool](const QJsonValue& value, QString& error) {
        return setAnchor(stage, tool, value, error);
    });
}

void addValues(Stage& stage, PlatesTool& tool)
{
    Commands& commands = stage.commands();
    commands.addValue(prefixed("text"), [&tool]() -> QJsonValue {
        const std::optional<PlateText> text = selectedText(tool);
        return text ? QJsonValue(toJson(*text)) : QJsonValue();
    });
    commands.addValue(prefixed("list"), [] { return namesOf(PlatesTool::all()); });
    commands.addValue(prefixed("selected"), [&tool] { return namesOf(tool.selected()); });
    commands.addValue(prefixed("preselected"),
                      [&tool] { return QString::fromStdString(tool.preselectedName()); });
    commands.addValue(prefixed("edit"), [&tool] { return tool.isActive(); });
    commands.addValue(prefixed("snapping"), [&stage] { return stage.gizmo().isSnapping(); });
    commands.addValue(prefixed("centre"), [&stage, &tool] { return centreOf(stage, tool); });
    commands.addValue(prefixed("name"), [&tool] {
        const QJsonArray names = namesOf(tool.selected());
        return names.isEmpty() ? QJsonValue() : names.last();
    });
    commands.addValue(prefixed("anchor"), [&tool] {
        const std::vector<osg::NodePtr> nodes = tool.selected();
        return nodes.empty()
            ? QJsonValue()
            : QJsonValue(anchorName(nbSceneplateList::plateOf(nodes.back())->getAnchor()));
    });
}

void addModes(Stage& stage, PlatesTool& tool)
{
    stage.commands().addSwitch(
        prefixed("edit"),
        [&stage, &tool](bool on, QString&) {
            stage.useTool(tool, on);
            return true;
        },
        [&tool] { return tool.isActive(); });
    stage.commands().addSwitch(prefixed("snapping"), [&stage](bool on, QString&) {
        stage.gizmo().setSnapping(on);
        return true;
    });
}

}  // namespace

void addPlateCommands(Stage& stage, PlatesTool& tool)
{
    using Add = bool (*)(Stage&, PlatesTool&, const QJsonValue&, QString&);
    const std::pair<const char*, Add> kAdds[] = { { "addPicture", &addPicture },
                                                  { "addText", &addText },
                                                  { "addColor", &addColor },
                                                  { "text", &changeText } };
    for (const auto& [name, add] : kAdds) {
        stage.commands().add(prefixed(name),
                             [&stage, &tool, run = add](const QJsonValue& value, QString& error) {
                                 return run(stage, tool, value, error);
                             });
    }
    addSelectionCommands(stage, tool);
    addModes(stage, tool);
    addValues(stage, tool);
}

}  // namespace viewer
