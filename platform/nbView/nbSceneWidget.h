// SPDX-License-Identifier: MIT
#pragma once

#include <nbInteraction/CameraInteractionContext.h>
#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>
#include <nbInteraction/SelectionTool.h>
#include <nbInteraction/ToolInteractionContext.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbUtils/nbPlatformExport.h>
#include <nbView/nbViewWidget.h>

#include <QtGui/QKeySequence>

/// A view in which a person navigates, selects by clicks (see nbSelection) and takes steps back and
/// does them again with the usual keys of undo and redo. Manipulators are added to its interaction
/// manager. It is the main view while the pointer is over it.
class NB_PLATFORM_API nbSceneWidget : public nbViewWidget
{
public:
    explicit nbSceneWidget(QWidget* parent = nullptr);
    ~nbSceneWidget() override;

    /// The manager that gets the input, with selection and camera in it.
    nbec::interaction::InteractionManager& interaction() { return manager; }

protected:
    /// The selection is another one; a redraw has been asked for.
    virtual void selectionChanged() { }

private:
    void addKey(QKeySequence::StandardKey key, bool (nbUndoService::*step)());

    nbec::interaction::InteractionManager manager;
    nbec::interaction::Picker picker;
    nbec::interaction::SelectionTool tool;
    nbec::interaction::ToolInteractionContext selection;
    nbec::interaction::CameraInteractionContext camera;
    int callback = 0;
};
