// SPDX-License-Identifier: MIT
#include "viewer/gui/PerspectiveMatchPanel.h"

#include "viewer/gui/VectorEdit.h"
#include "viewer/match/MatchWords.h"
#include "viewer/match/PerspectiveMatchCommands.h"
#include "viewer/stage/Stage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QJsonArray>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>
#include <QSlider>

namespace viewer {
namespace {

/// Reference sizes; lines reach out of the view, but hardly farther.
constexpr double kMostCoordinate = 100.0;
constexpr int kDecimals = 4;
constexpr double kStep = 0.001;

template <std::size_t size>
std::vector<std::pair<QJsonValue, QString>> choicesOf(const std::array<const char*, size>& words,
                                                      const QStringList& texts)
{
    std::vector<std::pair<QJsonValue, QString>> choices;
    for (std::size_t i = 0; i < size; ++i) {
        choices.emplace_back(QLatin1String(words[i]), texts.at(static_cast<int>(i)));
    }
    return choices;
}

}  // namespace

PerspectiveMatchPanel::PerspectiveMatchPanel(Stage& targetStage, PerspectiveMatchTool& targetTool)
    : Panel(targetStage)
    , tool(targetTool)
{
    auto* column = new QVBoxLayout(this);
    result = new QLabel(this);
    result->setObjectName("matchResult");
    result->setWordWrap(true);
    column->addWidget(result);
    column->addWidget(addSwitch("match.setActive", tr("Match mode"), "match.active"));
    auto* buttons = new QHBoxLayout;
    column->addLayout(buttons);
    for (const auto& [command, text] : { std::pair("match.layLines", tr("Lay lines as seen")),
                                         std::pair("match.solve", tr("Turn camera")) }) {
        addEdit(buttons, command, text, [this, name = command] { run(name); });
    }
    auto* form = new QFormLayout;
    column->addLayout(form);
    addPhotograph(*form);
    addSettings(*form);
    addKnowledge(*column);
    auto* lines = new QFormLayout;
    column->addLayout(lines);
    addLines(*lines);
    column->addStretch();
}

void PerspectiveMatchPanel::addEdit(QBoxLayout* row, const char* name, const QString& text,
                                    std::function<void()> press)
{
    ofUnlocked.push_back(addButton(row, new QPushButton(this), name, text, std::move(press)));
}

void PerspectiveMatchPanel::addPhotograph(QFormLayout& form)
{
    photograph = new QLabel(this);
    photograph->setObjectName("matchPhotograph");
    form.addRow(tr("Photograph"), photograph);
    auto* buttons = new QHBoxLayout;
    form.addRow(buttons);
    addButton(buttons, new QPushButton(this), "matchOpen", tr("Open…"), [this] {
        const QString file = askForPicture(tr("Open photograph"));
        if (!file.isEmpty() && run("match.setPhotograph", file)) {
            run("match.setEdgeSnapping", true);
        }
    });
    remove = addButton(buttons, new QPushButton(this), "matchRemove", tr("Remove"),
                       [this] { run("match.setPhotograph", QString()); });
    fit =
        addChoice("match.fit",
                  { { "height", tr("Height of the view") }, { "width", tr("Width of the view") } },
                  "match.fitted");
    form.addRow(tr("Fills"), fit);
    form.addRow(tr("Over the models"),
                addSlider(
                    "match.setVeil", [] { return std::pair(0.0, 1.0); }, "match.veil"));
}

void PerspectiveMatchPanel::addSettings(QFormLayout& form)
{
    form.addRow(addSwitch("match.showLines", tr("Lines"), "match.linesShown"));
    form.addRow(addSwitch("match.setLocked", tr("Camera locked"), "match.locked"));
    ofUnlocked.push_back(
        addChoice("match.setLinesType",
                  choicesOf(kLinesTypeNames,
                            { tr("X, Y and Z"), tr("X and Y"), tr("X and Z"), tr("Y and Z") }),
                  "match.linesType"));
    form.addRow(tr("Lines used"), ofUnlocked.back());
    ofUnlocked.push_back(addChoice("match.setFovMode",
                                   choicesOf(kFovModeNames, { tr("From the lines"), tr("Fixed") }),
                                   "match.fovMode"));
    form.addRow(tr("Field of view"), ofUnlocked.back());
    const NumberBox::Style style { 1.0,
                                   static_cast<double>(nbdPerspectiveMatch::kSmallestMagnifyFactor),
                                   static_cast<double>(nbdPerspectiveMatch::kLargestMagnifyFactor),
                                   1 };
    ofUnlocked.push_back(
        addNumbers("match.setMagnifyFactor", { tr("Magnifier") }, style, "match.magnifyFactor"));
    form.addRow(tr("Magnifier"), ofUnlocked.back());
}

/// What a person may know besides the lines.
void PerspectiveMatchPanel::addKnowledge(QBoxLayout& column)
{
    auto* form = new QFormLayout;
    form->setRowWrapPolicy(QFormLayout::WrapAllRows);
    column.addLayout(form);
    const auto addNumber = [&](const QString& name, double start) {
        auto* box = new NumberBox({ NumberBox::Style::kUsualStep, 0.01, 1e5, 2 }, this);
        box->display(start);
        box->setAccessibleName(name);
        ofUnlocked.push_back(box);
        return box;
    };
    const auto addRow = [&](const QString& label, std::vector<QWidget*> widgets) {
        auto* row = new QHBoxLayout;
        for (QWidget* widget : widgets) {
            row->addWidget(widget);
            ofUnlocked.push_back(widget);
        }
        form->addRow(label, row);
        return row;
    };
    constexpr double kUsualLens = 35.0;
    constexpr double kFullFrame = 36.0;
    NumberBox* const focal = addNumber(tr("Focal length"), kUsualLens);
    NumberBox* const sensor = addNumber(tr("Sensor width"), kFullFrame);
    addEdit(addRow(tr("Lens, sensor (mm)"), { focal, sensor }), "match.setLens", tr("Set"), [=] {
        run("match.setLens",
            QJsonObject { { "focalLength", focal->value() }, { "sensorWidth", sensor->value() } });
    });
    auto* line = new QComboBox(this);
    line->setAccessibleName(tr("Line"));
    for (int i = 0; i < PerspectiveMatchTool::kLineCount; ++i) {
        line->addItem(lineTitle(i));
    }
    NumberBox* const length = addNumber(tr("Length"), 1.0);
    addEdit(addRow(tr("A line from the origin, its length"), { line, length }), "match.placeByLine",
            tr("Move camera"), [=] {
                run("match.placeByLine",
                    QJsonObject { { "line", line->currentText().toLower() },
                                  { "length", length->value() } });
            });
    QHBoxLayout* const turns = addRow(tr("Turn axes about"), {});
    for (const char* axis : { "x", "y", "z" }) {
        addEdit(turns, axis, QString(axis).toUpper(), [this, axis] { run("match.turn", axis); });
    }
    form->addRow(addSwitch("match.setEdgeSnapping", tr("Lines snap to edges (Alt: not)"),
                           "match.edgeSnapping"));
}

void PerspectiveMatchPanel::addLines(QFormLayout& form)
{
    const NumberBox::Style style { kStep, -kMostCoordinate, kMostCoordinate, kDecimals };
    for (int line = 0; line < PerspectiveMatchTool::kLineCount; ++line) {
        const QString word = QLatin1String(PerspectiveMatchTool::lineName(line));
        const QString name = lineTitle(line);
        auto* edit = new VectorEdit(
            { tr("Line %1, start, across").arg(name), tr("Line %1, start, up").arg(name),
              tr("Line %1, end, across").arg(name), tr("Line %1, end, up").arg(name) },
            style, this);
        edit->setObjectName("matchLine_" + word);
        form.addRow(name, edit);
        connect(edit, &VectorEdit::edited, this, [this, word](const QJsonArray& ends) {
            run("match.setLine", QJsonObject { { "line", word }, { "ends", ends } });
        });
        bind(edit, "match.lines",
             [edit, word](const QJsonValue& lines) { edit->display(lines[word].toArray()); });
        ofUnlocked.push_back(edit);
    }
}

void PerspectiveMatchPanel::refresh()
{
    Panel::refresh();
    const QString name = tool.photograph().name();
    setTextOf(photograph, name.isEmpty() ? tr("none") : name);
    remove->setEnabled(!name.isEmpty());
    for (QWidget* widget : ofUnlocked) {
        widget->setEnabled(!tool.camera().isLocked());
    }
    fit->setEnabled(!name.isEmpty() && !tool.camera().isLocked());
    const auto fovDeg = static_cast<double>(stage().pose().fovDeg);
    setTextOf(result,
              tr("%1 Field of view %2°.", "sentence, number")
                      .arg(resultText(tool), QString::number(fovDeg, 'f', 2)) +
                  ' ' + qualityText(tool));
}

}  // namespace viewer
