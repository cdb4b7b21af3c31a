// SPDX-License-Identifier: MIT
#include "viewer/gui/AboutBox.h"

#include "viewer/loading/ModelReader.h"

#include <nbInteraction/Picker.h>

#include <OpenSG/OSGConfig.h>

#include <QMessageBox>
#include <QSysInfo>

namespace viewer {

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
    box->setObjectName(QStringLiteral("aboutBox"));
    box->setInformativeText(lines.join(QLatin1Char('\n')));
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box->open();
}

}  // namespace viewer
