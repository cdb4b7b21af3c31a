// SPDX-License-Identifier: MIT
#include "viewer/gui/SettingsPanel.h"

#include "viewer/gui/Settings.h"
#include "viewer/gui/VectorEdit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>

namespace viewer {

SettingsPanel::SettingsPanel(Stage& stage, const Settings& settings)
    : Panel(stage)
{
    auto* form = new QFormLayout(this);
    for (const Setting& setting : settings.all()) {
        const QString command = QStringLiteral("settings.") + QLatin1String(setting.name);
        const QString label = Settings::tr(setting.label);
        if (!setting.words.empty()) {
            Choices choices;
            for (const auto& [word, text] : setting.words) {
                choices.emplace_back(word, Settings::tr(text.toUtf8()));
            }
            form->addRow(label, addChoice(command, choices));
        } else if (setting.most > 0.0) {
            form->addRow(
                label,
                addNumbers(command, { label }, { setting.step, setting.least, setting.most }));
        } else {
            form->addRow(addSwitch(command, label));
        }
    }
    refresh();
}

void SettingsPanel::open(Stage& stage, const Settings& settings, QWidget& window)
{
    auto* dialog = new QDialog(&window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName("settings");
    dialog->setWindowTitle(tr("Settings"));
    auto* column = new QVBoxLayout(dialog);
    auto* scroll = new QScrollArea(dialog);
    scroll->setWidget(new SettingsPanel(stage, settings));
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    column->addWidget(scroll);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, dialog);
    // Enter is for the field that one types in.
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    column->addWidget(buttons);
    constexpr QSize kAround(60, 70);
    constexpr double kMostOfScreen = 0.9;
    const QSize most = window.screen()->availableSize() * kMostOfScreen;
    dialog->resize((scroll->widget()->sizeHint() + kAround).boundedTo(most));
    dialog->show();
}

}  // namespace viewer
