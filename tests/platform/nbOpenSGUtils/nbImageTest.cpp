// SPDX-License-Identifier: MIT
#include <nbOpenSGUtils/nbImage.h>

#include <OpenSG/OSGRefPtr.h>

#include <gtest/gtest.h>

#include <vector>

#include <ChangeCount.h>

using osg::Image;
using Bytes = std::vector<osg::UInt8>;

TEST(nbImage, InvertsAlphaOfAllFormatsThatHaveItAndLeavesColors)
{
    const std::tuple<osg::UInt32, Bytes, Bytes> rows[] = {
        { Image::OSG_A_PF, { 0, 200 }, { 255, 55 } },
        { Image::OSG_I_PF, { 0, 200 }, { 255, 55 } },
        { Image::OSG_LA_PF, { 1, 2, 3, 4 }, { 1, 253, 3, 251 } },
        { Image::OSG_RGBA_PF, { 1, 2, 3, 4, 5, 6, 7, 255 }, { 1, 2, 3, 251, 5, 6, 7, 0 } },
        { Image::OSG_BGRA_PF, { 1, 2, 3, 4, 5, 6, 7, 8 }, { 1, 2, 3, 251, 5, 6, 7, 247 } },
    };
    for (const auto& [format, before, after] : rows) {
        const osg::RefPtr<osg::ImagePtr> image(Image::create());
        ASSERT_TRUE(image->set(format, 2, 1, 1, 1, 1, 0.0, before.data()));
        const osg::UInt32 edits = osg::getChangeCount(image.get());

        EXPECT_TRUE(nbImage::invertAlpha(image.get()));

        EXPECT_EQ(Bytes(image->getData(), image->getData() + image->getSize()), after) << format;
        EXPECT_GT(osg::getChangeCount(image.get()), edits) << "who shows the image must see it";
    }
}
