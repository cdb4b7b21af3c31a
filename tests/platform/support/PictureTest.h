// SPDX-License-Identifier: MIT
#pragma once

#include "tests/platform/support/Edited.h"
#include "tests/platform/support/RenderTest.h"

#include <nbOpenSGRenderAction/nbImageConvert.h>
#include <nbOpenSGUberMaterial/UberMaterial.h>

/// What tests of projected pictures share, on top of RenderTest.
namespace rendertest {

inline const QColor kWhite(255, 255, 255);
inline const QColor kYellow(255, 255, 0);
inline const QColor kGrey(100, 100, 100);

inline osg::NodePtr transformed(const osg::NodePtr& child, const osg::Vec3f& translation,
                                const osg::Vec3f& rotationDeg, const osg::Vec3f& scale)
{
    osg::Transform3DPtr core;
    const osg::NodePtr node = osg::makeCoredNode<osg::Transform3D>(&core);
    nbtest::edited(core)->setTranslation(translation);
    nbtest::edited(core)->setRotation(rotationDeg);
    nbtest::edited(core)->setScale(scale);
    node->addChild(child);
    return node;
}

/// A picture of four quarters, opaque and without an alpha channel.
inline QImage quarters(const QColor& topLeft, const QColor& topRight, const QColor& bottomLeft,
                       const QColor& bottomRight)
{
    constexpr int kHalf = 32;
    QImage picture(2 * kHalf, 2 * kHalf, QImage::Format_RGB888);
    for (int y = 0; y < 2 * kHalf; ++y) {
        for (int x = 0; x < 2 * kHalf; ++x) {
            const QColor& left = y < kHalf ? topLeft : bottomLeft;
            const QColor& right = y < kHalf ? topRight : bottomRight;
            picture.setPixelColor(x, y, x < kHalf ? left : right);
        }
    }
    return picture;
}

/// Blue and yellow above, red and green below.
inline QImage colorQuarters()
{
    return quarters(kBlue, kYellow, kRed, kGreen);
}

/// An unlit grey material with a planar projection of one component at its start values.
struct PictureMaterial
{
    using Settings = osg::ColorComponentSettings;

    explicit PictureMaterial(const std::string& name = osg::UberMaterial::kDiffuseComponent)
        : component(name)
    {
        material->setDiffuse(color(kGrey));
        material->setLit(false);
        settings->setPlanarProjection(projection.get());
        material->setComponentSettings(component, settings.get());
    }

    void setPicture(const QImage& picture)
    {
        material->setImage(component, nbImageConvert::toImage(picture));
    }

    void place(const osg::Vec3f& translation, const osg::Vec3f& scale,
               const osg::Vec3f& rotationDeg = osg::Vec3f(0.f, 0.f, 0.f))
    {
        nbtest::edited(projection)->setTranslation(translation);
        nbtest::edited(projection)->setScale(scale);
        nbtest::edited(projection)->setRotation(rotationDeg);
    }

    void setOrientation(float radians)
    {
        nbtest::edited(projection, osg::Transform3D::PartsFieldMask)
            ->setRotationOrientation(osg::Quaternion(osg::Vec3f(0.f, 0.f, 1.f), radians));
    }

    void setFlags(osg::UInt32 flags) { nbtest::edited(settings)->setPlanarProjectionFlags(flags); }

    void setMask(bool asMask, bool invert)
    {
        nbtest::edited(settings)->setAsMask(asMask);
        nbtest::edited(settings)->setInvert(invert);
    }

    std::string component;
    osg::UberMaterialRefPtr material { osg::UberMaterial::create() };
    osg::ColorComponentSettingsRefPtr settings { osg::ColorComponentSettings::create() };
    osg::RefPtr<osg::Transform3DPtr> projection { osg::Transform3D::create() };
};

}  // namespace rendertest
