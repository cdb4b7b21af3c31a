// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGExt/Transform3D.h>
#include <nbUtils/nbPlatformExport.h>

#include <QtCore/QString>

#include <memory>

class QUndoStack;
class nbUndoRecord;
class nbTransformTable;

/// Records edits and takes them back, as steps on a QUndoStack (of Qt's widgets module, which works
/// without an application object).
///
/// What nbScopedUndo and nbScopedMultiCommand enclose is one step, nested scopes join the outermost
/// one. Everything from beginGroup to endGroup becomes one step; the interaction manager does so
/// with each drag, a host may with whatever else belongs together. Where the step ends as it began
/// it leaves none. A step is named after the group's title or else the first title of the scopes in
/// it.
///
/// Transforms are recorded by their core: the state before its first edit in the step, and the
/// state at the end, which is read once when the step closes, so that the many edits of a drag cost
/// no copies. Undo restores the fields bit for bit. What was destroyed in the meantime is passed
/// over. Conversions of nodes by nbNodeUtils outside of every scope join the next step.
///
/// Those who are told of a change while a state is being restored may edit, open scopes and destroy
/// things: their edits are not recorded, a group cannot be opened then, and clear waits.
///
/// Belongs to the user-interface thread. Never throws.
class NB_PLATFORM_API nbUndoService
{
public:
    /// The service of the process; made on first use, from when on conversions are recorded.
    static nbUndoService* the();

    // == The stack

    /// For views of the stack and actions: the host's stack or else the service's own. What calls
    /// undo or redo of the stack itself is disabled by the host while a group is open.
    QUndoStack* getStack();

    /// Has the steps go to a stack of the host's, among commands of its own; those made so far stay
    /// where they are.
    /// @param stack  not owned, may die at any time; null for the service's own
    /// @return false, and nothing changes, while a group or scope is open or steps are taken back
    bool setStack(QUndoStack* stack);

    /// Takes the last step back. False if there is none, or while a group or scope is open.
    bool undo();

    /// Does the step again that was taken back last. False as undo.
    bool redo();

    /// Forgets all steps and what is being recorded, as for a new scene. A stack of the host's
    /// keeps its steps, which pass over what has been destroyed.
    void clear();

    /// Numbers for a host that wants to know whether it must refresh: counts every undo, redo and
    /// cancelGroup that changed something.
    osg::UInt64 getRestoreCount() const;

    // == Groups

    /// Opens a group. One that is still open (a lost stop) is ended first.
    /// @param title  name of the step, empty: the first title inside
    void beginGroup(const QString& title = QString());

    /// Closes the group: one step, or none if all values are what they were at its beginning. If a
    /// scope is still open the group closes with it. Without a group nothing.
    void endGroup();

    /// Closes the group and takes back everything in it, without a step and without redo.
    void cancelGroup();

    bool isGroupOpen() const;

    /// Counts every opening and closing of a group, for who keeps values from its beginning on.
    osg::UInt64 getGroupChangeCount() const;

    // == Recording, for those who edit

    /// Whether a group, or a scope that records, is open.
    bool isRecording() const;

    /// Number of the step that is open, no two steps having the same; 0 outside of every group and
    /// scope and while steps are being taken back.
    osg::UInt64 getOpenStep() const;

    /// Adds a record to the open step. Without one, or while steps are being taken back, it is
    /// dropped: the edit cannot be undone.
    void record(std::unique_ptr<nbUndoRecord> entry);

    /// For those who record the whole state of a container before its first edit in a step.
    /// @param containerId  of the container
    /// @return whether something records, and it is asked for the first time in the open step
    bool isNewInStep(osg::UInt32 containerId);

    /// To be called before an edit of a transform core. The first call in a step keeps the state.
    void noteTransform(const osg::Transform3DPtr& core);

    /// For many edits: the transforms of the open step, each of which is to be noted there before
    /// an edit. The first time in a step keeps the state; the next ones find it again, fastest when
    /// the cores of each scope come in the same order.
    /// @return valid until the scope or group closes; null if nothing records
    nbTransformTable* getOpenTransforms();

    nbUndoService(const nbUndoService&) = delete;
    nbUndoService& operator=(const nbUndoService&) = delete;

private:
    friend class nbScopedUndo;
    struct Internals;

    nbUndoService();
    ~nbUndoService();

    void openScope(bool isRecorded);
    void offerTitle(const QString& title);
    void offerTitle(const char* title);
    void closeScope(bool wasRecorded);

    std::unique_ptr<Internals> internals;
};
