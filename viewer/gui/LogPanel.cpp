// SPDX-License-Identifier: MIT
#include "viewer/gui/LogPanel.h"

#include <QTime>

namespace viewer {
namespace {

using Level = nbLog::Level;

constexpr const char* kLevels[] = {
    QT_TRANSLATE_NOOP("viewer::LogPanel", "Detail"),
    QT_TRANSLATE_NOOP("viewer::LogPanel", "Note"),
    QT_TRANSLATE_NOOP("viewer::LogPanel", "Warning"),
    QT_TRANSLATE_NOOP("viewer::LogPanel", "Error"),
};

}  // namespace

LogPanel::LogPanel(QWidget* parent)
    : QPlainTextEdit(parent)
{
    setObjectName("logList");
    setAccessibleName(tr("Messages"));
    setReadOnly(true);
    setTabChangesFocus(true);
    setMaximumBlockCount(kMostEntries);
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

void LogPanel::append(Level level, const QString& text)
{
    appendPlainText(QStringList { QTime::currentTime().toString("HH:mm:ss"),
                                  tr(kLevels[static_cast<std::size_t>(level)]), text }
                        .join('\t'));
}

}  // namespace viewer
