// SPDX-License-Identifier: MIT
#include "viewer/gui/HelpPages.h"

#include "viewer/loading/ModelReader.h"
#include "viewer/texts/Text.h"

#include <nbInteraction/Picker.h>

#include <OpenSG/OSGConfig.h>

#include <QAction>
#include <QDialog>
#include <QMessageBox>
#include <QSysInfo>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <array>

namespace viewer {
namespace {

constexpr QSize kSize(520, 640);

struct PointerRow
{
    const char* way;
    const char* text;
};

constexpr std::array<PointerRow, 8> kPointer { {
    { QT_TRANSLATE_NOOP("viewer", "Right button"),
      QT_TRANSLATE_NOOP("viewer", "Orbit; a click: menu") },
    { QT_TRANSLATE_NOOP("viewer", "Middle button"), QT_TRANSLATE_NOOP("viewer", "Pan") },
    { QT_TRANSLATE_NOOP("viewer", "Wheel"),
      QT_TRANSLATE_NOOP("viewer", "Zoom towards the pointer") },
    { QT_TRANSLATE_NOOP("viewer", "Click"),
      QT_TRANSLATE_NOOP("viewer", "Select; Ctrl or Shift: further objects") },
    { QT_TRANSLATE_NOOP("viewer", "Drag from empty space"),
      QT_TRANSLATE_NOOP("viewer", "Select what lies in the rectangle") },
    { QT_TRANSLATE_NOOP("viewer", "Ctrl in a drag"), QT_TRANSLATE_NOOP("viewer", "Snap") },
    { QT_TRANSLATE_NOOP("viewer", "Shift in a drag"), QT_TRANSLATE_NOOP("viewer", "Slow down") },
    { QT_TRANSLATE_NOOP("viewer", "Esc"),
      QT_TRANSLATE_NOOP("viewer", "Take the drag back, leave a mode") },
} };

QString row(const QString& way, const QString& text)
{
    return QStringLiteral("<tr><td><b>%1</b>&nbsp;&nbsp;</td><td>%2</td></tr>")
        .arg(way.toHtmlEscaped(), text.toHtmlEscaped());
}

}  // namespace

const char* programVersion()
{
    return NB_VERSION;
}

void AboutBox::open(const QString& graphics, QWidget* parent)
{
    const QStringList lines {
        tr("nbManipulator %1").arg(QLatin1String(programVersion())),
        tr("Qt %1 (built with %2)").arg(QLatin1String(qVersion()), QLatin1String(QT_VERSION_STR)),
        tr("OpenGL: %1").arg(graphics.isEmpty() ? tr("not started") : graphics),
        tr("Scene graph: bundled, interface of version %1.%2")
            .arg(OSG_MAJOR_VERSION)
            .arg(OSG_MINOR_VERSION),
        tr("Picking: %1")
            .arg(QString::fromStdString(nbec::interaction::Picker::getSearchLibrary())),
        tr("Model files: %1").arg(ModelReader::libraryVersion()),
        tr("System: %1, %2").arg(QSysInfo::prettyProductName(), QSysInfo::currentCpuArchitecture()),
    };
    auto* box =
        new QMessageBox(QMessageBox::NoIcon, tr("About nbviewer"),
                        tr("Interactive manipulators for 3D scenes"), QMessageBox::Close, parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setObjectName("aboutBox");
    box->setInformativeText(lines.join('\n'));
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box->open();
}

void showShortcuts(QWidget& window)
{
    QString rows;
    for (const PointerRow& pointer : kPointer) {
        rows += row(Text::tr(pointer.way), Text::tr(pointer.text));
    }
    for (const QAction* action : window.findChildren<QAction*>()) {
        if (!action->shortcut().isEmpty() && !action->objectName().isEmpty()) {
            rows += row(QKeySequence::listToString(action->shortcuts(), QKeySequence::NativeText),
                        action->toolTip().section(" (", 0, -2));
        }
    }
    auto* page = new QDialog(&window);
    page->setAttribute(Qt::WA_DeleteOnClose);
    page->setObjectName("shortcutPage");
    page->setWindowTitle(Text::tr("Shortcuts"));
    page->resize(kSize);
    auto* column = new QVBoxLayout(page);
    auto* text = new QTextBrowser(page);
    text->setHtml(QStringLiteral("<table>%1</table>").arg(rows));
    column->addWidget(text);
    page->show();
}

}  // namespace viewer
