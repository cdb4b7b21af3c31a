// SPDX-License-Identifier: MIT
#include <nbOpenSGSelection/nbSelection.h>
#include <nbView/nbSceneWidget.h>

#include <QShortcut>

nbSceneWidget::nbSceneWidget(QWidget* parent)
    : nbViewWidget(parent)
    , selection(nbec::interaction::Selection)
{
    selection.setPicker(&picker);
    selection.setTool(&tool);
    camera.setPicker(&picker);
    manager.addContext(&selection);
    manager.addContext(&camera);
    setInteractionManager(manager);
    callback = nbSelection::addChangedCallback([this] {
        nbOSGWidget::updateAll();
        selectionChanged();
    });
    addKey(QKeySequence::Undo, &nbUndoService::undo);
    addKey(QKeySequence::Redo, &nbUndoService::redo);
}

nbSceneWidget::~nbSceneWidget()
{
    nbSelection::removeChangedCallback(callback);
}

void nbSceneWidget::addKey(QKeySequence::StandardKey key, bool (nbUndoService::*step)())
{
    const auto* const shortcut = new QShortcut(key, this);
    const auto take = [step] {
        (nbUndoService::the()->*step)();
        nbOSGWidget::updateAll();
    };
    connect(shortcut, &QShortcut::activated, this, take);
    connect(shortcut, &QShortcut::activatedAmbiguously, this, take);  // of two in a window
}
