// SPDX-License-Identifier: MIT
#include "viewer/plates/PlateCommands.h"

#include "viewer/commands/JsonInput.h"
#include "viewer/commands/JsonReader.h"
#include "viewer/loading/PictureFile.h"
#include "viewer/plates/PlateField.h"
#include "viewer/plates/PlateText.h"
#include "viewer/plates/PlatesTool.h"
#include "viewer/stage/Stage.h"
#include "viewer/texts/Text.h"

#include <nbKernelServices/nbScopedUndo.h>
#include <nbOpenSGRenderAction/nbImageConvert.h>
#include <nbOpenSGSceneplate/nbSceneplateLayout.h>
#include <nbOpenSGSceneplate/nbSceneplateList.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbSceneplateModule/nbSceneplateEditing.h>

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

#include <cmath>

namespace viewer {

// == What commands that add a plate take

struct NewPicture
{
    NewPlate plate;
    QString file;
    std::optional<double> height;  ///< heights of the view
};

struct NewText
{
    NewPlate plate;
    PlateText text;
};

struct NewColor
{
    NewPlate plate;
    QColor color;
    osg::Vec2f size { osg::kSceneplateSize, osg::kSceneplateSize };
};

/// Reads what all kinds of plates share.
static bool describe(JsonInput& in, NewPlate& plate)
{
    return in.maybe("name", plate.name) && in.maybe("front", plate.front) &&
        in.words("anchor", plate.anchor, kAnchorNames, plate.anchor) &&
        in.field("position", plate.position);
}

static bool describe(JsonInput& in, NewPicture& picture)
{
    constexpr double kMostHeight = 10.0;
    const std::optional<double>& height = picture.height;
    return in.field("file", picture.file) && in.field("height", picture.height) &&
        in.demand(!height || (*height > 0.0 && *height <= kMostHeight), "height",
                  "expected a number above 0, at most 10") &&
        describe(in, picture.plate);
}

static bool describe(JsonInput& in, NewText& text)
{
    return describe(in, text.text) && describe(in, text.plate);
}

static bool describe(JsonInput& in, NewColor& color)
{
    return in.field("color", color.color) && in.maybe("size", color.size) &&
        in.demand(color.size.x() > 0.0F && color.size.y() > 0.0F, "size",
                  "expected two numbers above 0") &&
        describe(in, color.plate);
}

namespace {

QString prefixed(const char* name)
{
    return QStringLiteral("plates.") + QLatin1String(name);
}

bool refuse(const char* command, const QString& reason, QString& error)
{
    return JsonReader(error).fail(prefixed(command), reason);
}

QJsonArray namesOf(const std::vector<osg::NodePtr>& nodes)
{
    QJsonArray names;
    for (const osg::NodePtr& node : nodes) {
        names.append(QString::fromStdString(nbNodeUtils::getName(node)));
    }
    return names;
}

// == Adding

bool paint(const PlateText& text, int viewHeightPx, NewPlate& plate, QString& error)
{
    const QImage picture = paintPlateText(text, viewHeightPx);
    if (picture.isNull()) {
        error = Text::tr("expected a text that fits into a picture");
        return false;
    }
    plate.image = osg::RefPtr<osg::ImagePtr>(nbImageConvert::toImage(picture));
    setPictureSource(plate.image.get(), textOf(toJson(text)));
    plate.sizePx = osg::Vec2f(static_cast<float>(picture.width()) / kTextOversampling,
                              static_cast<float>(picture.height()) / kTextOversampling);
    return true;
}

bool addPicture(Stage& stage, PlatesTool& tool, const QJsonValue& value, QString& error)
{
    NewPicture wanted;
    const QString file = stage.commands().filePath(value["file"].toString());
    NewPlate& plate = wanted.plate;
    plate.name = QFileInfo(file).completeBaseName().toStdString();
    if (!JsonInput(error).readObject(value, prefixed("addPicture"), wanted)) {
        return false;
    }
    plate.image = readPicture(file, error);
    if (!plate.image) {
        return false;
    }
    if (!wanted.height) {
        tool.addPicture(plate);
        return true;
    }
    const double heightPx = *wanted.height * stage.view().getHeight();
    plate.sizePx = osg::Vec2f(
        static_cast<float>(heightPx * plate.image->getWidth() / plate.image->getHeight()),
        static_cast<float>(heightPx));
    tool.add(plate);
    return true;
}

bool addText(Stage& stage, PlatesTool& tool, const QJsonValue& value, QString& error)
{
    NewText wanted;
    wanted.plate.name = value["text"].toString().simplified().toStdString();
    const bool isPainted = JsonInput(error).readObject(value, prefixed("addText"), wanted) &&
        paint(wanted.text, stage.view().getHeight(), wanted.plate, error);
    if (isPainted) {
        tool.add(wanted.plate);
    }
    return isPainted;
}

/// The text of the plate selected last; nothing if it shows none.
std::optional<PlateText> selectedText(const PlatesTool& tool)
{
    if (tool.selected().empty()) {
        return std::nullopt;
    }
    const osg::ImagePtr image = nbSceneplateList::plateOf(tool.selected().back())->getImage();
    QString error;
    PlateText text;
    const std::optional<QJsonObject> source = parseJsonObject(pictureSource(image).toUtf8(), error);
    return source && JsonInput(error).readObject(*source, {}, text) ? std::make_optional(text)
                                                                    : std::nullopt;
}

bool changeText(Stage& stage, PlatesTool& tool, const QJsonValue& value, QString& error)
{
    std::optional<PlateText> text = selectedText(tool);
    NewPlate painted;
    if (!text) {
        error = Text::tr("no text is selected");
        return false;
    }
    const QString former = text->text.simplified();
    const auto height = static_cast<float>(stage.view().getHeight());
    if (!JsonInput(error).readObject(value, prefixed("text"), *text) ||
        !paint(*text, stage.view().getHeight(), painted, error)) {
        return false;
    }
    const osg::NodePtr node = tool.selected().back();
    const nbScopedUndo step;
    nbSceneplateEditing::edit({ node }, QT_TRANSLATE_NOOP("Manipulator", "Change text"),
                              [&](osg::Sceneplate& plate) {
                                  plate.setImage(painted.image.get());
                                  plate.setSize(painted.sizePx * (1.0F / height));
                              });
    // A name that the text has given, such as "Title" or "Title 2", goes with it.
    static const QRegularExpression kNumber(" [0-9]+$");
    const QString name = QString::fromStdString(nbNodeUtils::getName(node));
    const QString wanted = text->text.simplified();
    if (wanted != former && (name == former || QString(name).remove(kNumber) == former)) {
        nbSceneplateEditing::rename(node, PlatesTool::unusedName(wanted.toStdString()));
    }
    return true;
}

bool addColor(Stage& stage, PlatesTool& tool, const QJsonValue& value, QString& error)
{
    NewColor wanted;
    wanted.plate.name = "Colour";
    if (!JsonInput(error).readObject(value, prefixed("addColor"), wanted)) {
        return false;
    }
    wanted.plate.color = colorOf(wanted.color);
    wanted.plate.sizePx = wanted.size * static_cast<float>(stage.view().getHeight());
    tool.add(wanted.plate);
    return true;
}

// == The selected ones

/// @return null, with one line in `error`, if there is none
osg::NodePtr findPlate(const char* command, const QJsonValue& name, QString& error)
{
    const osg::NodePtr node = PlatesTool::plateByName(name.toString().toStdString());
    if (node == osg::NullFC) {
        refuse(command, QStringLiteral("there is no scene plate \"%1\"").arg(name.toString()),
               error);
    }
    return node;
}

bool select(Stage& /*stage*/, PlatesTool& tool, const QJsonValue& value, QString& error)
{
    if (!value.isArray()) {
        return refuse("select", "expected an array of names", error);
    }
    std::vector<osg::NodePtr> nodes;
    const QJsonArray names = value.toArray();
    for (const QJsonValue& name : names) {
        nodes.push_back(findPlate("select", name, error));
        if (nodes.back() == osg::NullFC) {
            return false;
        }
    }
    tool.select(nodes);
    return true;
}

bool setField(const std::vector<osg::NodePtr>& nodes, const PlateField& field,
              const QJsonValue& value, QString& error)
{
    const auto valueOf = [&](const osg::Sceneplate& plate) {
        return withoutGaps(value, field.read(plate).toArray());
    };
    if (!field.accept(valueOf(*nbSceneplateList::plateOf(nodes.front())), nullptr)) {
        return refuse(field.name, QLatin1String(field.expected), error);
    }
    nbSceneplateEditing::edit(
        nodes, field.title, [&](osg::Sceneplate& plate) { field.accept(valueOf(plate), &plate); });
    return true;
}

/// Shows or hides a plate that need not be selected.
bool setVisible(const PlateField& field, const QJsonObject& value, QString& error)
{
    const osg::NodePtr node = findPlate(field.name, value["name"], error);
    return node != osg::NullFC && setField({ node }, field, value["visible"], error);
}

/// Adds a value of the plate selected last, null without one.
/// @param read  QJsonValue (const osg::NodePtr&)
template <class Read>
void addValueOfLast(Stage& stage, const PlatesTool& tool, const char* name, Read read)
{
    stage.commands().addValue(prefixed(name), [&tool, read] {
        const std::vector<osg::NodePtr> nodes = tool.selected();
        return nodes.empty() ? QJsonValue() : QJsonValue(read(nodes.back()));
    });
}

void addField(Stage& stage, PlatesTool& tool, const PlateField& field)
{
    const bool isVisible = QLatin1String(field.name) == "visible";
    stage.commands().add(
        prefixed(field.name), [&tool, &field, isVisible](const QJsonValue& value, QString& error) {
            if (isVisible && value.isObject()) {
                return setVisible(field, value.toObject(), error);
            }
            return tool.hasSelection(error) && setField(tool.selected(), field, value, error);
        });
    addValueOfLast(stage, tool, field.name, [&field](const osg::NodePtr& node) {
        return field.read(*nbSceneplateList::plateOf(node));
    });
}

bool setAnchor(Stage& stage, PlatesTool& tool, const QJsonValue& value, QString& error)
{
    const std::optional<osg::Int32> anchor = anchorFromName(value.toString());
    if (!anchor) {
        return refuse("anchor", "expected a place such as \"topLeft\"", error);
    }
    nbSceneplateEditing::setAnchor(tool.selected(), *anchor, stage.view().getWidth(),
                                   stage.view().getHeight());
    return tool.hasSelection(error);
}

bool rename(Stage& /*stage*/, PlatesTool& tool, const QJsonValue& value, QString& error)
{
    if (!tool.hasSelection(error)) {
        return false;
    }
    const std::string name = value.toString().trimmed().toStdString();
    const osg::NodePtr node = tool.selected().back();
    const osg::NodePtr former = PlatesTool::plateByName(name);
    if (name.empty() || (former != osg::NullFC && former != node)) {
        error = Text::tr("expected a name that no other plate has");
        return false;
    }
    nbSceneplateEditing::rename(node, name);
    return true;
}

bool remove(Stage& /*stage*/, PlatesTool& tool, const QJsonValue& /*value*/, QString& error)
{
    return tool.hasSelection(error) && nbSceneplateEditing::remove(tool.selected()) > 0;
}

void addRestacking(Stage& stage, PlatesTool& tool, const char* name, int steps)
{
    stage.commands().add(prefixed(name), [&tool, steps](const QJsonValue&, QString& error) {
        const bool isDone = nbSceneplateEditing::restack(tool.selected(), steps);
        error = isDone ? error : Text::tr("there is no further plate on this side");
        return tool.hasSelection(error) && isDone;
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
    addValueOfLast(stage, tool, "centre", [&stage](const osg::NodePtr& node) {
        const osg::Pnt2f centre = nbSceneplateLayout::centre(
            nbSceneplateList::plateOf(node), stage.view().getWidth(), stage.view().getHeight());
        return QJsonArray { centre.x(), centre.y() };
    });
    addValueOfLast(stage, tool, "name", [](const osg::NodePtr& node) {
        return QString::fromStdString(nbNodeUtils::getName(node));
    });
    addValueOfLast(stage, tool, "anchor", [](const osg::NodePtr& node) {
        return anchorName(nbSceneplateList::plateOf(node)->getAnchor());
    });
}

void addModes(Stage& stage, PlatesTool& tool)
{
    stage.commands().addSwitch(
        prefixed("edit"), [&stage, &tool](bool on) { stage.useTool(tool, on); },
        [&tool] { return tool.isActive(); });
    stage.commands().addSwitch(prefixed("snapping"),
                               [&stage](bool on) { stage.gizmo().setSnapping(on); });
}

using Side = nbSceneplateEditing::Side;
constexpr Side kSides[] = { Side::Low, Side::Middle, Side::High };

bool move(Stage& stage, const PlatesTool& tool, const QJsonValue& value, QString& error)
{
    constexpr double kMostPx = 1e5;
    const double across = value[0].toDouble(NAN);
    const double up = value[1].toDouble(NAN);
    if (!(std::abs(across) <= kMostPx) || !(std::abs(up) <= kMostPx)) {
        error = "expected [across, up] in pixels";
        return false;
    }
    const osg::Vec2f way(static_cast<float>(across), static_cast<float>(-up));
    nbSceneplateEditing::move(tool.selected(), way, stage.view().getHeight());
    return true;
}

void addArranging(Stage& stage, PlatesTool& tool)
{
    Commands& commands = stage.commands();
    // Of each axis from its low side to its high one.
    commands.addChoice("plates.align", { "left", "centre", "right", "top", "middle", "bottom" },
                       [&stage, &tool](int place, QString& error) {
                           nbSceneplateEditing::align(tool.selected(), place < 3 ? 0 : 1,
                                                      kSides[place % 3], stage.view().getWidth(),
                                                      stage.view().getHeight());
                           return tool.hasSelection(error);
                       });
    commands.addChoice(
        "plates.distribute", { "across", "down" }, [&stage, &tool](int place, QString& error) {
            const bool isDone =
                nbSceneplateEditing::distribute(tool.selected(), static_cast<osg::UInt32>(place),
                                                stage.view().getWidth(), stage.view().getHeight());
            error = isDone ? error : Text::tr("at least three scene plates are needed");
            return tool.hasSelection(error) && isDone;
        });
    commands.add("plates.move", [&stage, &tool](const QJsonValue& value, QString& error) {
        return tool.hasSelection(error) && move(stage, tool, value, error);
    });
    commands.add("plates.duplicate", [&tool](const QJsonValue&, QString& error) {
        tool.select(nbSceneplateEditing::duplicate(tool.selected(), &PlatesTool::unusedName));
        return tool.hasSelection(error);
    });
}

}  // namespace

void addPlateCommands(Stage& stage, PlatesTool& tool)
{
    addArranging(stage, tool);
    using Run = bool (*)(Stage&, PlatesTool&, const QJsonValue&, QString&);
    const std::pair<const char*, Run> kRows[] = {
        { "addPicture", &addPicture }, { "addText", &addText },  { "addColor", &addColor },
        { "text", &changeText },       { "select", &select },    { "remove", &remove },
        { "name", &rename },           { "anchor", &setAnchor },
    };
    for (const auto& [name, run] : kRows) {
        stage.commands().add(prefixed(name),
                             [&stage, &tool, doIt = run](const QJsonValue& value, QString& error) {
                                 return doIt(stage, tool, value, error);
                             });
    }
    addRestacking(stage, tool, "forward", 1);
    addRestacking(stage, tool, "backward", -1);
    for (const PlateField& field : plateFields()) {
        addField(stage, tool, field);
    }
    addModes(stage, tool);
    addValues(stage, tool);
}

}  // namespace viewer
