// SPDX-License-Identifier: MIT
#include "viewer/gui/AboutBox.h"

#include "viewer/gui/ThemeIcon.h"
#include "viewer/loading/ModelReader.h"

#include <nbInteraction/Picker.h>

#include <OpenSG/OSGConfig.h>

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QSysInfo>
#include <QVBoxLayout>

namespace viewer {
namespace {

/// Of the common text.
constexpr double kTitleSize = 1.3;

QLabel* addLabel(QVBoxLayout& column, const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    column.addWidget(label);
    return label;
}

}  // namespace

const char* programVersion()
{
    return NB_VERSION;
}

QString AboutBox::versions(const QString& graphics)
{
    QStringList lines {
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
    return lines.join(QLatin1Char('\n'));
}

AboutBox::AboutBox(const QString& graphics, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint)
{
    setObjectName(QStringLiteral("aboutBox"));
    setWindowTitle(tr("About nbviewer"));
    auto* column = new QVBoxLayout(this);
    QLabel* title = addLabel(*column, tr("Interactive manipulators for 3D scenes"), this);
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * kTitleSize);
    large.setBold(true);
    title->setFont(large);
    const QString text = versions(graphics);
    addLabel(*column, text, this)->setObjectName(QStringLiteral("versions"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton* copy = buttons->addButton(tr("C&opy"), QDialogButtonBox::ActionRole);
    copy->setIcon(themeIcon(QStringLiteral("copy")));
    buttons->button(QDialogButtonBox::Close)->setIcon(themeIcon(QStringLiteral("cancel")));
    connect(copy, &QPushButton::clicked, this,
            [text] { QApplication::clipboard()->setText(text); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addWidget(buttons);
}

}  // namespace viewer
