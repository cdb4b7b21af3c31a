// SPDX-License-Identifier: MIT
#include "tests/support/ContainerCensus.h"

#include <nbOpenSGUberMaterial/UberMaterial.h>

#include <gtest/gtest.h>

namespace {

class UberMaterialTest : public testing::Test
{
protected:
    static osg::ImagePtr makeImage(osg::UInt32 format)
    {
        const osg::ImagePtr image = osg::Image::create();
        image->set(format, 1, 1);
        return image;
    }

    osg::UberMaterialRefPtr material { osg::UberMaterial::create() };
};

}  // namespace

TEST_F(UberMaterialTest, HoldsWhatItWasGivenAndGivesItBack)
{
    const nbtest::ContainerCensus before;
    const osg::ColorComponentSettingsPtr settings = osg::ColorComponentSettings::create();
    settings->setPlanarProjection(osg::Transform3D::create());
    material->setImage("diffuse", makeImage(osg::Image::OSG_RGB_PF));
    material->setComponentSettings("diffuse", settings);
    material->setComponentSettings("transparency", settings);
    const nbtest::ContainerCensus filled;

    material->setComponentSettings("diffuse", osg::NullFC);
    EXPECT_EQ(nbtest::ContainerCensus().differenceTo(filled), "") << "held by the other component";
    material = osg::NullFC;
    EXPECT_EQ(nbtest::ContainerCensus().differenceTo(before), "UberMaterial -1");
}

TEST_F(UberMaterialTest, IsTransparentWithAPictureThatCanMakeItSo)
{
    const osg::ColorComponentSettingsRefPtr settings(osg::ColorComponentSettings::create());
    material->setComponentSettings("transparency", settings.get());
    EXPECT_FALSE(material->isTransparent());
    material->setImage("transparency", makeImage(osg::Image::OSG_RGB_PF));
    EXPECT_FALSE(material->isTransparent());
    settings->setAsMask(true);
    EXPECT_TRUE(material->isTransparent());
    settings->setAsMask(false);
    material->setImage("transparency", makeImage(osg::Image::OSG_RGBA_PF));
    EXPECT_TRUE(material->isTransparent());
    material->setImage("transparency", osg::Image::create());
    EXPECT_FALSE(material->isTransparent());
}
