// SPDX-License-Identifier: MIT
#include <nbOpenSGUberMaterial/UberMaterial.h>

#include <OpenSG/OSGFieldContainerFactory.h>

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

TEST_F(UberMaterialTest, CountsWhatItHoldsAndGivesItBack)
{
    const osg::FieldContainerFactory* const factory = osg::FieldContainerFactory::the();
    const osg::ImagePtr image = makeImage(osg::Image::OSG_RGB_PF);
    const osg::ColorComponentSettingsPtr settings = osg::ColorComponentSettings::create();
    settings->setPlanarProjection(osg::Transform3D::create());
    const osg::UInt32 ids[] = { image.getFieldContainerId(), settings.getFieldContainerId(),
                                settings->getPlanarProjection().getFieldContainerId() };

    material->setImage("diffuse", image);
    material->setComponentSettings("diffuse", settings);
    material->setComponentSettings("transparency", settings);
    for (const osg::UInt32 id : ids) {
        EXPECT_TRUE(factory->getContainer(id) != osg::NullFC);
    }
    material->setComponentSettings("diffuse", osg::NullFC);
    EXPECT_TRUE(factory->getContainer(ids[1]) != osg::NullFC);
    material = osg::NullFC;
    for (const osg::UInt32 id : ids) {
        EXPECT_TRUE(factory->getContainer(id) == osg::NullFC);
    }
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
