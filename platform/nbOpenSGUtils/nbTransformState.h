// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGExt/Transform3D.h>
#include <nbUtils/nbPlatformExport.h>

#include <string>

/// The parts of a Transform3D as values.
struct NB_PLATFORM_API nbTransformState
{
    osg::Vec3f translation;
    osg::Vec3f rotatePivot;
    osg::Vec3f scalePivot;
    osg::Vec3f eulerRotation;
    osg::Vec3f scale;
    osg::Quaternion rotationQuaternion;
    osg::Quaternion rotationOrientation;
    osg::Int32 rotationMode = 0;
    std::string eulerRotationOrder;
    osg::Vec3f shear;  ///< for reading; it stays with its core and is not compared

    static nbTransformState of(const osg::Transform3D& core);

    /// Writes all parts but the shear back, as one edit.
    void applyTo(const osg::Transform3DPtr& core) const;

    /// Whether all parts are the same bit for bit, zeros of both signs counting as one.
    bool isSame(const nbTransformState& other) const;
};
