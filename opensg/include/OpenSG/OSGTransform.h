// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSFMathTypes.h>
#include <OpenSG/OSGTransformFields.h>

namespace osg {

#define OSG_TRANSFORM_FIELDS(VALUE, OWNED, LINK) VALUE(Matrix, matrix, osg::Matrix, osg::Matrix())

/// Moves what is below by a 4x4 matrix: column vectors, parent from local.
class Transform : public Group
{
    OSG_CONTAINER(Transform, Group, OSG_TRANSFORM_FIELDS);

public:
    const Matrix* getLocalMatrix() const override { return &sfMatrix.getValue(); }

    void adjustVolume(Volume& volume) override;

    /// An edit of the matrix invalidates the volumes of the nodes and of their ancestors.
    void changed(BitVector whichField, UInt32 origin) override;
};

typedef CoredNodePtr<Transform> TransformNodePtr;

}  // namespace osg
