// SPDX-License-Identifier: MIT
#include "viewer/gui/PerspectiveMatchPanel.h"

#include "viewer/gui/VectorEdit.h"
#include "viewer/loading/PictureFile.h"
#include "viewer/match/MatchWords.h"
#include "viewer/match/PerspectiveMatchCommands.h"
#include "viewer/stage/Stage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
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

PerspectiveMatchPanel::PerspectiveMatchPanel(Stage& targetStage, PerspectiveMatchTool& targetTool,
                                             QWidget* parent)
    : Panel(targetStage, parent)
    , tool(targetTool)
{
    auto* column = new QVBoxLayout(this);
    result = new QLabel(this);
    result->setObjectName(QStringLiteral("matchResult"));
    result->setWordWrap(true);
    column->addWidget(result);
    column->addWidget(addSwitch(QStringLiteral("match.setActive"), tr("Match mode"),
                                QStringLiteral("match.active")));
    auto* buttons = new QHBoxLayout;
    column->addLayout(buttons);
    for (const auto& [command, text] : { std::pair("match.layLines", tr("Lay lines as seen")),
                                         std::pair("match.solve", tr("Turn camera")) }) {
        QPushButton* button = addButton(*buttons, command, text);
        connect(button, &QPushButton::clicked, this,
                [this, name = QLatin1String(command)] { run(name); });
        ofUnlocked.push_back(button);
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

QPushButton* PerspectiveMatchPanel::addButton(QBoxLayout& row, const char* name,
                                              const QString& text)
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setFocusPolicy(Qt::TabFocus);
    row.addWidget(button);
    return button;
}

void PerspectiveMatchPanel::addPhotograph(QFormLayout& form)
{
    photograph = new QLabel(this);
    photograph->setObjectName(QStringLiteral("matchPhotograph"));
    form.addRow(tr("Photograph"), photograph);
    auto* buttons = new QHBoxLayout;
    form.addRow(buttons);
    connect(addButton(*buttons, "matchOpen", tr("Open…")), &QPushButton::clicked, this,
            &PerspectiveMatchPanel::askForPhotograph);
    remove = addButton(*buttons, "matchRemove", tr("Remove"));
    connect(remove, &QPushButton::clicked, this,
            [this] { run(QStringLiteral("match.setPhotograph"), QString()); });
    fit = addChoice(QStringLiteral("match.fit"),
                    { { QLatin1String("height"), tr("Height of the view") },
                      { QLatin1String("width"), tr("Width of the view") } },
                    QStringLiteral("match.fitted"));
    form.addRow(tr("Fills"), fit);
    form.addRow(tr("Over the models"),
                addSlider(
                    QStringLiteral("match.setVeil"), [] { return std::pair(0.0, 1.0); },
                    QStringLiteral("match.veil")));
}

void PerspectiveMatchPanel::addSettings(QFormLayout& form)
{
    form.addRow(addSwitch(QStringLiteral("match.showLines"), tr("Lines"),
                          QStringLiteral("match.linesShown")));
    form.addRow(addSwitch(QStringLiteral("match.setLocked"), tr("Camera locked"),
                          QStringLiteral("match.locked")));
    ofUnlocked.push_back(
        addChoice(QStringLiteral("match.setLinesType"),
                  choicesOf(kLinesTypeNames,
                            { tr("X, Y and Z"), tr("X and Y"), tr("X and Z"), tr("Y and Z") }),
                  QStringLiteral("match.linesType")));
    form.addRow(tr("Lines used"), ofUnlocked.back());
    ofUnlocked.push_back(addChoice(QStringLiteral("match.setFovMode"),
                                   choicesOf(kFovModeNames, { tr("From the lines"), tr("Fixed") }),
                                   QStringLiteral("match.fovMode")));
    form.addRow(tr("Field of view"), ofUnlocked.back());
    NumberBox::Style style;
    style.step = 1.0;
    style.least = static_cast<double>(nbdPerspectiveMatch::kSmallestMagnifyFactor);
    style.most = static_cast<double>(nbdPerspectiveMatch::kLargestMagnifyFactor);
    style.decimals = 1;
    ofUnlocked.push_back(addNumbers(QStringLiteral("match.setMagnifyFactor"), { tr("Magnifier") },
                                    style, QStringLiteral("match.magnifyFactor")));
    form.addRow(tr("Magnifier"), ofUnlocked.back());
}

/// What a person may know besides the lines.
void PerspectiveMatchPanel::addKnowledge(QBoxLayout& column)
{
    auto* form = new QFormLayout;
    form->setRowWrapPolicy(QFormLayout::WrapAllRows);
    column.addLayout(form);
    const auto addNumber = [&](const QString& name, double start) {
        NumberBox::Style style;
        style.least = 0.01;
        style.most = 1e5;
        style.decimals = 2;
        auto* box = new NumberBox(style, this);
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
    QPushButton* const lens =
        addButton(*addRow(tr("Lens, sensor (mm)"), { focal, sensor }), "match.setLens", tr("Set"));
    connect(lens, &QPushButton::clicked, this, [=] {
        run(QStringLiteral("match.setLens"),
            QJsonObject { { "focalLength", focal->value() }, { "sensorWidth", sensor->value() } });
    });
    auto* line = new QComboBox(this);
    line->setAccessibleName(tr("Line"));
    for (int i = 0; i < PerspectiveMatchTool::kLineCount; ++i) {
        line->addItem(QString(QLatin1String(PerspectiveMatchTool::lineName(i))).toUpper());
    }
    NumberBox* const length = addNumber(tr("Length"), 1.0);
    QPushButton* const place =
        addButton(*addRow(tr("A line from the origin, its length"), { line, length }),
                  "match.placeByLine", tr("Move camera"));
    connect(place, &QPushButton::clicked, this, [=] {
        run(QStringLiteral("match.placeByLine"),
            QJsonObject { { "line", line->currentText().toLower() },
                          { "length", length->value() } });
    });
    QHBoxLayout* const turns = addRow(tr("Turn axes about"), {});
    ofUnlocked.insert(ofUnlocked.end(), { lens, place });
    for (const char* axis : { "x", "y", "z" }) {
        QPushButton* const turn = addButton(*turns, axis, QString(QLatin1String(axis)).toUpper());
        connect(turn, &QPushButton::clicked, this,
                [this, axis] { run(QStringLiteral("match.turn"), QLatin1String(axis)); });
        ofUnlocked.push_back(turn);
    }
    form->addRow(addSwitch(QStringLiteral("match.setEdgeSnapping"),
                           tr("Lines snap to edges (Alt: not)"),
                           QStringLiteral("match.edgeSnapping")));
}

void PerspectiveMatchPanel::addLines(QFormLayout& form)
{
    NumberBox::Style style;
    style.step = kStep;
    style.least = -kMostCoordinate;
    style.most = kMostCoordinate;
    style.decimals = kDecimals;
    for (int line = 0; line < PerspectiveMatchTool::kLineCount; ++line) {
        const QString word = QLatin1String(PerspectiveMatchTool::lineName(line));
        const QString name = word.toUpper();
        auto* edit = new VectorEdit(
            { tr("Line %1, start, across").arg(name), tr("Line %1, start, up").arg(name),
              tr("Line %1, end, across").arg(name), tr("Line %1, end, up").arg(name) },
            style, this);
        edit->setObjectName(QStringLiteral("matchLine_") + word);
        form.addRow(name, edit);
        connect(edit, &VectorEdit::edited, this,
                [this, word](const QJsonArray& ends, Commands::Moment moment) {
                    run(QStringLiteral("match.setLine"),
                        QJsonObject { { "line", word }, { "ends", ends } }, moment);
                });
        bind(edit, QStringLiteral("match.lines"),
             [edit, word](const QJsonValue& lines) { edit->display(lines[word].toArray()); });
        ofUnlocked.push_back(edit);
    }
}

void PerspectiveMatchPanel::askForPhotograph()
{
    const QString file =
        QFileDialog::getOpenFileName(this, tr("Open photograph"), {}, pictureFileFilter());
    if (!file.isEmpty() && run(QStringLiteral("match.setPhotograph"), file)) {
        run(QStringLiteral("match.setEdgeSnapping"), true);
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
                  QLatin1Char(' ') + qualityText(tool));
}

}  // namespace viewer
