// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGExt/Transform3D.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>

/// What a conversion to Transform3D did to a node.
struct nbNodeConversion
{
    osg::NodePtr node;
    osg::RefPtr<osg::NodeCorePtr> oldCore;  ///< null if the node had none
    osg::RefPtr<osg::NodeCorePtr> newCore;
    /// The new only child that took the children; null if they stayed.
    osg::RefPtr<osg::NodePtr> insertedChild;
};

/// Is told of edits that the helpers of this layer make, so that a layer above can take them back.
class NB_PLATFORM_API nbEditRecorder
{
public:
    /// A Transform3D is about to be edited.
    virtual void transformChanges(const osg::Transform3DPtr& core) = 0;

    /// A node has been converted.
    virtual void nodeConverted(const nbNodeConversion& conversion) = 0;

    /// The recorder; null at the start.
    static nbEditRecorder* get() { return current; }

    /// @param recorder  not owned; null for none
    static void set(nbEditRecorder* recorder) { current = recorder; }

protected:
    ~nbEditRecorder() = default;

private:
    static inline nbEditRecorder* current = nullptr;
};
