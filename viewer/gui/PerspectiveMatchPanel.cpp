// SPDX-License-Identifier: MIT
#include "viewer/gui/PerspectiveMatchPanel.h"

#include "viewer/gui/VectorEdit.h"
#include "viewer/loading/PictureFile.h"
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
#include <QSignalBlocker>
#include <QSlider>

namespace viewer {
namespace {

/// Reference sizes; lines reach out of the view, but hardly farther.
constexpr double kMostCoordinate = 100.0;
constexpr int kDecimals = 4;
constexpr double kStep = 0.001;
constexpr int kPercent = 100;

template <std::size_t size>
QStringList listOf(const std::array<const char*, size>& words)
{
    QStringList list;
    for (const char* word : words) {
        list.append(QLatin1String(word));
    }
    return list;
}

void display(QCheckBox* box, bool on)
{
    const QSignalBlocker blocker(box);
    box->setChecked(on);
}

void display(QSlider* slider, int value)
{
    const QSignalBlocker blocker(slider);
    slider->setValue(value);
}

void display(QComboBox* box, int index)
{
    const QSignalBlocker blocker(box);
    box->setCurrentIndex(index);
}

void display(QLabel* label, const QString& text)
{
    if (label->text() != text) {
        label->setText(text);
    }
}

}  // namespace

PerspectiveMatchPanel::PerspectiveMatchPanel(Stage& targetStage, PerspectiveMatchTool& targetTool,
                                             QWidget* parent)
    : Panel(targetStage, parent)
    , tool(targetTool)
{
    auto* form = new QFormLayout(this);
    addPhotograph(*form);
    active = addSwitch(*form, "matchActive", tr("Match mode"), QStringLiteral("match.setActive"));
    auto* buttons = new QHBoxLayout;
    layLines =
        addButton("matchLayLines", tr("Lay lines as seen"), QStringLiteral("match.layLines"));
    solve = addButton("matchSolve", tr("Turn camera"), QStringLiteral("match.solve"));
    buttons->addWidget(layLines);
    buttons->addWidget(solve);
    form->addRow(buttons);
    result = new QLabel(this);
    result->setObjectName(QStringLiteral("matchResult"));
    result->setWordWrap(true);
    form->addRow(result);
    linesShown =
        addSwitch(*form, "matchLinesShown", tr("Lines"), QStringLiteral("match.showLines"));
    locked =
        addSwitch(*form, "matchLocked", tr("Camera locked"), QStringLiteral("match.setLocked"));
    linesType = addChoice(*form, "matchLinesType", tr("Lines used"),
                          QStringLiteral("match.setLinesType"), listOf(kLinesTypeNames),
                          { tr("X, Y and Z"), tr("X and Y"), tr("X and Z"), tr("Y and Z") });
    fovMode =
        addChoice(*form, "matchFovMode", tr("Field of view"), QStringLiteral("match.setFovMode"),
                  listOf(kFovModeNames), { tr("From the lines"), tr("Fixed") });
    addMagnifier(*form);
    addLines(*form);
    refresh();
}

void PerspectiveMatchPanel::addPhotograph(QFormLayout& form)
{
    photograph = new QLabel(this);
    photograph->setObjectName(QStringLiteral("matchPhotograph"));
    form.addRow(tr("Photograph"), photograph);
    auto* open = new QPushButton(tr("Open…"), this);
    remove = new QPushButton(tr("Remove"), this);
    for (QPushButton* button : { open, remove }) {
        button->setFocusPolicy(Qt::TabFocus);
    }
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(open);
    buttons->addWidget(remove);
    form.addRow(buttons);
    connect(open, &QPushButton::clicked, this, &PerspectiveMatchPanel::askForPhotograph);
    connect(remove, &QPushButton::clicked, this,
            [this] { run(QStringLiteral("match.setPhotograph"), QString()); });
    veil = new QSlider(Qt::Horizontal, this);
    veil->setObjectName(QStringLiteral("matchVeil"));
    veil->setFocusPolicy(Qt::TabFocus);
    veil->setRange(0, kPercent);
    form.addRow(tr("Over the models"), veil);
    connectSlider(*veil, QStringLiteral("match.setVeil"),
                  [](int value) { return static_cast<double>(value) / kPercent; });
}

QCheckBox* PerspectiveMatchPanel::addSwitch(QFormLayout& form, const char* name,
                                            const QString& label, const QString& command)
{
    auto* box = new QCheckBox(this);
    box->setObjectName(QLatin1String(name));
    // Keys are for the view.
    box->setFocusPolicy(Qt::TabFocus);
    form.addRow(label, box);
    connect(box, &QCheckBox::toggled, this, [this, command](bool on) { run(command, on); });
    return box;
}

QComboBox* PerspectiveMatchPanel::addChoice(QFormLayout& form, const char* name,
                                            const QString& label, const QString& command,
                                            const QStringList& words, const QStringList& texts)
{
    auto* box = new QComboBox(this);
    box->setObjectName(QLatin1String(name));
    box->setFocusPolicy(Qt::TabFocus);
    box->addItems(texts);
    form.addRow(label, box);
    connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this, command, words](int index) { run(command, words.value(index)); });
    return box;
}

void PerspectiveMatchPanel::addMagnifier(QFormLayout& form)
{
    NumberBox::Style style;
    style.step = 1.0;
    style.least = static_cast<double>(nbdPerspectiveMatch::kSmallestMagnifyFactor);
    style.most = static_cast<double>(nbdPerspectiveMatch::kLargestMagnifyFactor);
    style.decimals = 1;
    magnifyFactor = new NumberBox(style, this);
    magnifyFactor->setObjectName(QStringLiteral("matchMagnifyFactor"));
    form.addRow(tr("Magnifier"), magnifyFactor);
    connect(magnifyFactor, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this](double factor) { run(QStringLiteral("match.setMagnifyFactor"), factor); });
}

void PerspectiveMatchPanel::addLines(QFormLayout& form)
{
    VectorEdit::Style style;
    style.step = kStep;
    style.least = -kMostCoordinate;
    style.most = kMostCoordinate;
    style.decimals = kDecimals;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const QString word = QLatin1String(PerspectiveMatchTool::lineName(static_cast<int>(i)));
        const QString name = word.toUpper();
        lines[i] = new VectorEdit(
            { tr("Line %1, start, across").arg(name), tr("Line %1, start, up").arg(name),
              tr("Line %1, end, across").arg(name), tr("Line %1, end, up").arg(name) },
            style, this);
        lines[i]->setObjectName(QStringLiteral("matchLine_") + word);
        form.addRow(name, lines[i]);
        connect(lines[i], &VectorEdit::edited, this, [this, word](const QJsonArray& ends) {
            run(QStringLiteral("match.setLine"),
                QJsonObject { { "line", word }, { "ends", ends } });
        });
    }
}

QPushButton* PerspectiveMatchPanel::addButton(const char* name, const QString& text,
                                              const QString& command)
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QPushButton::clicked, this, [this, command] { run(command); });
    return button;
}

void PerspectiveMatchPanel::askForPhotograph()
{
    const QString file =
        QFileDialog::getOpenFileName(this, tr("Open photograph"), {}, pictureFileFilter());
    if (!file.isEmpty()) {
        run(QStringLiteral("match.setPhotograph"), file);
    }
}

void PerspectiveMatchPanel::refresh()
{
    const nbdCameraNode camera = tool.camera();
    const nbdPerspectiveMatch match = camera.getPerspectiveMatch();
    const QString name = tool.photograph();
    display(photograph, name.isEmpty() ? tr("none") : name);
    remove->setEnabled(!name.isEmpty());
    display(veil, qRound(tool.veil() * kPercent));
    display(active, tool.isActive());
    display(linesShown, tool.areLinesShown());
    display(locked, camera.isLocked());
    display(linesType, match.getVanishingLinesType());
    display(fovMode, camera.getFovMode());
    magnifyFactor->display(static_cast<double>(match.getMagnifyFactor()));
    const bool canEdit = !camera.isLocked();
    for (QWidget* widget : { static_cast<QWidget*>(linesType), static_cast<QWidget*>(fovMode),
                             static_cast<QWidget*>(magnifyFactor), static_cast<QWidget*>(layLines),
                             static_cast<QWidget*>(solve) }) {
        widget->setEnabled(canEdit);
    }
    for (int line = 0; line < PerspectiveMatchTool::kLineCount; ++line) {
        const QLineF ends = match.getLine(static_cast<nbdPerspectiveMatch::Line>(line));
        VectorEdit* numbers = lines[static_cast<std::size_t>(line)];
        numbers->display({ ends.x1(), ends.y1(), ends.x2(), ends.y2() });
        numbers->setEnabled(canEdit);
    }
    const auto fovDeg = static_cast<double>(stage().pose().fovDeg);
    display(result,
            tr("%1 Field of view %2°.", "sentence, number")
                .arg(tool.resultText(), QString::number(fovDeg, 'f', 2)));
}

}  // namespace viewer
