// SPDX-License-Identifier: MIT
#include "tests/support/ContainerCensus.h"

#include <nbOpenSGUberMaterial/UberMaterial.h>

#include <gtest/gtest.h>

TEST(UberMaterial, HoldsWhatItWasGivenAndGivesItBack)
{
    osg::UberMaterialRefPtr material(osg::UberMaterial::create());
    const nbtest::ContainerCensus before;
    const osg::ColorComponentSettingsPtr settings = osg::ColorComponentSettings::create();
    settings->setPlanarProjection(osg::Transform3D::create());
    material->setImage("diffuse", osg::Image::create());
    material->setComponentSettings("diffuse", settings);
    material->setComponentSettings("transparency", settings);
    const nbtest::ContainerCensus filled;

    material->setComponentSettings("diffuse", osg::NullFC);
    EXPECT_EQ(nbtest::ContainerCensus().differenceTo(filled), "") << "held by the other component";
    material = osg::NullFC;
    EXPECT_EQ(nbtest::ContainerCensus().differenceTo(before), "UberMaterial -1");
}
