// SPDX-License-Identifier: MIT
#include "viewer/gui/PerspectiveMatchPanel.h"

#include "viewer/loading/PictureFile.h"
#include "viewer/match/PerspectiveMatchCommands.h"
#include "viewer/stage/Stage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QGridLayout>
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

/// Whether a box shows a number, as far as its digits go.
bool isShown(const QDoubleSpinBox* box, double value)
{
    return box->textFromValue(value) == box->textFromValue(box->value());
}

/// A number that is being typed is left alone unless another one is to be shown.
void display(QDoubleSpinBox* box, double value)
{
    if (!isShown(box, value)) {
        const QSignalBlocker blocker(box);
        box->setValue(value);
    }
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
    auto* grid = new QGridLayout;
    addLines(*grid);
    form->addRow(grid);
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
    magnifyFactor = new QDoubleSpinBox(this);
    magnifyFactor->setObjectName(QStringLiteral("matchMagnifyFactor"));
    magnifyFactor->setLocale(QLocale::c());
    magnifyFactor->setDecimals(1);
    magnifyFactor->setKeyboardTracking(false);
    magnifyFactor->setRange(static_cast<double>(nbdPerspectiveMatch::kSmallestMagnifyFactor),
                            static_cast<double>(nbdPerspectiveMatch::kLargestMagnifyFactor));
    form.addRow(tr("Magnifier"), magnifyFactor);
    connect(magnifyFactor, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this](double factor) { run(QStringLiteral("match.setMagnifyFactor"), factor); });
}

void PerspectiveMatchPanel::addLines(QGridLayout& grid)
{
    const QString names[kNumbersPerLine] = { tr("Line %1, start, across"), tr("Line %1, start, up"),
                                             tr("Line %1, end, across"), tr("Line %1, end, up") };
    for (int line = 0; line < PerspectiveMatchTool::kLineCount; ++line) {
        const QString word = QLatin1String(PerspectiveMatchTool::lineName(line));
        grid.addWidget(new QLabel(word.toUpper(), this), line, 0);
        for (int i = 0; i < kNumbersPerLine; ++i) {
            auto* box = new QDoubleSpinBox(this);
            box->setObjectName(QStringLiteral("matchLine_%1_%2").arg(word).arg(i));
            box->setAccessibleName(names[i].arg(word.toUpper()));
            box->setToolTip(box->accessibleName());
            box->setLocale(QLocale::c());
            box->setDecimals(kDecimals);
            box->setSingleStep(kStep);
            box->setRange(-kMostCoordinate, kMostCoordinate);
            box->setButtonSymbols(QAbstractSpinBox::NoButtons);
            box->setKeyboardTracking(false);
            box->setMinimumWidth(box->fontMetrics().horizontalAdvance(QStringLiteral("-0.00000")));
            grid.addWidget(box, line, i + 1);
            connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                    [this, line] { sendLine(line); });
            lineBoxes[static_cast<std::size_t>(line)][static_cast<std::size_t>(i)] = box;
        }
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

void PerspectiveMatchPanel::sendLine(int line)
{
    // Numbers that were not touched keep their digits beyond those shown.
    const QLineF before =
        tool.camera().getPerspectiveMatch().getLine(static_cast<nbdPerspectiveMatch::Line>(line));
    const double known[kNumbersPerLine] = { before.x1(), before.y1(), before.x2(), before.y2() };
    QJsonArray ends;
    for (std::size_t i = 0; i < kNumbersPerLine; ++i) {
        const QDoubleSpinBox* box = lineBoxes[static_cast<std::size_t>(line)][i];
        ends.append(isShown(box, known[i]) ? known[i] : box->value());
    }
    run(QStringLiteral("match.setLine"),
        QJsonObject {
            { QStringLiteral("line"), QLatin1String(PerspectiveMatchTool::lineName(line)) },
            { QStringLiteral("ends"), ends } });
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
    display(magnifyFactor, static_cast<double>(match.getMagnifyFactor()));
    const bool canEdit = !camera.isLocked();
    for (QWidget* widget : { static_cast<QWidget*>(linesType), static_cast<QWidget*>(fovMode),
                             static_cast<QWidget*>(magnifyFactor), static_cast<QWidget*>(layLines),
                             static_cast<QWidget*>(solve) }) {
        widget->setEnabled(canEdit);
    }
    for (int line = 0; line < PerspectiveMatchTool::kLineCount; ++line) {
        const QLineF ends = match.getLine(static_cast<nbdPerspectiveMatch::Line>(line));
        const double numbers[kNumbersPerLine] = { ends.x1(), ends.y1(), ends.x2(), ends.y2() };
        for (std::size_t i = 0; i < kNumbersPerLine; ++i) {
            QDoubleSpinBox* box = lineBoxes[static_cast<std::size_t>(line)][i];
            display(box, numbers[i]);
            box->setEnabled(canEdit);
        }
    }
    const auto fovDeg = static_cast<double>(stage().pose().fovDeg);
    display(result,
            tr("%1 Field of view %2°.", "sentence, number")
                .arg(tool.resultText(), QString::number(fovDeg, 'f', 2)));
}

}  // namespace viewer
