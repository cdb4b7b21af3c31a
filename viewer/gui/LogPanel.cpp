// SPDX-License-Identifier: MIT
#include "viewer/gui/LogPanel.h"

#include "viewer/gui/ThemeIcon.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QScrollBar>
#include <QShortcut>
#include <QTime>
#include <QToolButton>
#include <QTreeWidget>

#include <utility>

namespace viewer {
namespace {

using Level = nbLog::Level;

constexpr int kLevelRole = Qt::UserRole;

enum Column : int
{
    TimeColumn,
    LevelColumn,
    TextColumn
};

struct LevelRow
{
    Level level;
    const char* icon;
    const char* text;
    const char* filter;
};

constexpr LevelRow kLevels[] = {
    { Level::Debug, "logDebug", QT_TRANSLATE_NOOP("viewer::LogPanel", "Detail"),
      QT_TRANSLATE_NOOP("viewer::LogPanel", "Everything") },
    { Level::Info, "logInfo", QT_TRANSLATE_NOOP("viewer::LogPanel", "Note"),
      QT_TRANSLATE_NOOP("viewer::LogPanel", "From notes on") },
    { Level::Warning, "logWarning", QT_TRANSLATE_NOOP("viewer::LogPanel", "Warning"),
      QT_TRANSLATE_NOOP("viewer::LogPanel", "Warnings and errors") },
    { Level::Error, "logError", QT_TRANSLATE_NOOP("viewer::LogPanel", "Error"),
      QT_TRANSLATE_NOOP("viewer::LogPanel", "Errors only") },
};

}  // namespace

LogPanel::LogPanel(QWidget* parent)
    : QWidget(parent)
    , list(new QTreeWidget(this))
    , least(new QComboBox(this))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    auto* row = new QHBoxLayout;
    column->addLayout(row);
    for (const LevelRow& level : kLevels) {
        least->addItem(tr(level.filter), static_cast<int>(level.level));
    }
    least->setObjectName(QStringLiteral("logLevel"));
    least->setAccessibleName(tr("Messages shown"));
    least->setToolTip(tr("Messages shown"));
    connect(least, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &LogPanel::applyFilter);
    row->addWidget(least);
    row->addStretch();
    copyButton = addButton(*row, "copy", tr("Copy the messages selected, or all"));
    clearButton = addButton(*row, "clear", tr("Clear the messages"));
    connect(copyButton, &QToolButton::clicked, this, &LogPanel::copy);
    connect(clearButton, &QToolButton::clicked, this, &LogPanel::clear);

    list->setObjectName(QStringLiteral("logList"));
    list->setAccessibleName(tr("Messages"));
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->setHeaderLabels({ tr("Time"), tr("Level"), tr("Message") });
    const int margin = list->fontMetrics().height();
    list->setColumnWidth(TimeColumn,
                         list->fontMetrics().horizontalAdvance("00:00:00") + 2 * margin);
    int widest = 0;
    for (const LevelRow& level : kLevels) {
        widest = qMax(widest, list->fontMetrics().horizontalAdvance(tr(level.text)));
    }
    list->setColumnWidth(LevelColumn, widest + 3 * margin);
    scrollTimer.setSingleShot(true);
    connect(&scrollTimer, &QTimer::timeout, this, [this] {
        if (std::exchange(scrollsToEnd, false)) {
            list->scrollToBottom();
        }
    });
    column->addWidget(list);
    auto* shortcut = new QShortcut(QKeySequence::Copy, list);
    shortcut->setContext(Qt::WidgetShortcut);
    connect(shortcut, &QShortcut::activated, this, &LogPanel::copy);
    updateButtons();

    former = nbLog::setSink([this](Level level, const std::string& text) {
        append(level, QString::fromStdString(text));
        if (former) {
            former(level, text);
        } else {
            // From within a sink it goes where it would go without one.
            nbLog::write(level, text);
        }
    });
}

LogPanel::~LogPanel()
{
    nbLog::setSink(former);
}

QToolButton* LogPanel::addButton(QHBoxLayout& row, const char* name, const QString& tip)
{
    auto* button = new QToolButton(this);
    button->setObjectName(QLatin1String("log.") + QLatin1String(name));
    button->setIcon(themeIcon(QLatin1String(name)));
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setAutoRaise(true);
    row.addWidget(button);
    return button;
}

void LogPanel::append(Level level, const QString& text)
{
    append({ level, QTime::currentTime().toString(QStringLiteral("HH:mm:ss")), text });
}

void LogPanel::append(const Entry& entry)
{
    const LevelRow& row = kLevels[static_cast<std::size_t>(entry.level)];
    auto* item = new QTreeWidgetItem({ entry.time, tr(row.text), entry.text });
    item->setIcon(LevelColumn, themeIcon(QLatin1String(row.icon)));
    item->setData(LevelColumn, kLevelRole, static_cast<int>(entry.level));
    item->setToolTip(TextColumn, entry.text);
    const QScrollBar* bar = list->verticalScrollBar();
    // Whoever reads further up is left there.
    scrollsToEnd = scrollsToEnd || bar->value() == bar->maximum();
    list->addTopLevelItem(item);
    if (!isWanted(item)) {
        item->setHidden(true);
    }
    while (list->topLevelItemCount() > kMostEntries) {
        delete list->takeTopLevelItem(0);
    }
    updateButtons();
    // Once for all messages that come at a time.
    if (!scrollTimer.isActive()) {
        scrollTimer.start(0);
    }
}

QVector<LogPanel::Entry> LogPanel::entries() const
{
    QVector<Entry> all;
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* item = list->topLevelItem(i);
        all.append({ static_cast<Level>(item->data(LevelColumn, kLevelRole).toInt()),
                     item->text(TimeColumn), item->text(TextColumn) });
    }
    return all;
}

QString LogPanel::text() const
{
    const bool areAllWanted = list->selectedItems().isEmpty();
    QStringList lines;
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* item = list->topLevelItem(i);
        if (!item->isHidden() && (areAllWanted || item->isSelected())) {
            lines.append(QStringList { item->text(TimeColumn), item->text(LevelColumn),
                                       item->text(TextColumn) }
                             .join(QLatin1Char('\t')));
        }
    }
    return lines.join(QLatin1Char('\n'));
}

void LogPanel::copy() const
{
    QApplication::clipboard()->setText(text());
}

void LogPanel::clear()
{
    list->clear();
    updateButtons();
}

void LogPanel::applyFilter()
{
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = list->topLevelItem(i);
        item->setHidden(!isWanted(item));
    }
}

bool LogPanel::isWanted(const QTreeWidgetItem* item) const
{
    return item->data(LevelColumn, kLevelRole).toInt() >= least->currentData().toInt();
}

void LogPanel::updateButtons()
{
    const bool hasEntries = list->topLevelItemCount() > 0;
    copyButton->setEnabled(hasEntries);
    clearButton->setEnabled(hasEntries);
}

}  // namespace viewer
