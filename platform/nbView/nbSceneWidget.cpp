// SPDX-License-Identifier: MIT
#include <nbOpenSGSelection/nbSelection.h>
#include <nbView/nbSceneWidget.h>

#include <QtWidgets/QShortcut>

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
        view().update();
        selectionChanged();
    });
    addKey(QKeySequence::Undo, &nbUndoService::undo);
    addKey(QKeySequence::Redo, &nbUndoService::redo);
}

nbSceneWidget::~nbSceneWidget()
{
    nbSelection::removeChangedCallback(callback);
}

void nbSceneWidget::viewResized(const QSize& size, float pixelRatio)
{
    picker.setPixelRatio(pixelRatio);
    tool.setPixelRatio(pixelRatio);
    nbViewWidget::viewResized(size, pixelRatio);
}

void nbSceneWidget::addKey(QKeySequence::StandardKey key, bool (nbUndoService::*step)())
{
    connect(new QShortcut(key, this), &QShortcut::activated, this, [this, step] {
        (nbUndoService::the()->*step)();
        view().update();
    });
}
