// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernelServices/nbUndoRecord.h>
#include <nbOpenSGUtils/nbEditRecorder.h>

/// A node that got a Transform3D core. Holds the cores and the child that came in between, not the
/// node.
class ConversionRecord : public nbUndoRecord
{
public:
    explicit ConversionRecord(const nbNodeConversion& done);

    /// The picture is the same, so that a conversion alone is no step.
    bool isStepAlone() const override { return false; }

    bool close() override { return true; }

    void undo() override;
    void redo() override;

private:
    osg::UInt32 nodeId;
    osg::RefPtr<osg::NodeCorePtr> oldCore;
    osg::RefPtr<osg::NodeCorePtr> newCore;
    osg::RefPtr<osg::NodePtr> insertedChild;
    osg::RefPtr<osg::NodeCorePtr> childCore;
};
