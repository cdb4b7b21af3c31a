// SPDX-License-Identifier: MIT
#include <nbOpenSGUtils/nbImage.h>

#include <OpenSG/OSGRefPtr.h>

#include <gtest/gtest.h>

#include <vector>

#include <ChangeCount.h>

namespace {

using Image = osg::Image;
using Bytes = std::vector<osg::UInt8>;

osg::RefPtr<osg::ImagePtr> makeImage(osg::UInt32 format, const Bytes& pixels, int width)
{
    osg::RefPtr<osg::ImagePtr> image(Image::create());
    EXPECT_TRUE(image->set(format, width, 1, 1, 1, 1, 0.0, pixels.data()));
    return image;
}

Bytes bytesOf(const osg::ImagePtr& image)
{
    return { image->getData(), image->getData() + image->getSize() };
}

}  // namespace

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
        const auto image = makeImage(format, before, 2);
        const osg::UInt32 edits = osg::getChangeCount(image.get());

        EXPECT_TRUE(nbImage::invertAlpha(image.get()));

        EXPECT_EQ(bytesOf(image.get()), after) << format;
        EXPECT_GT(osg::getChangeCount(image.get()), edits) << "who shows the image must see it";
    }
}
