// SPDX-License-Identifier: MIT
// Images beyond the formats and mipmaps of one plain picture.
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGRefPtr.h>

#include <gtest/gtest.h>

#include <limits>
#include <numeric>

OSG_USING_NAMESPACE

namespace {

RefPtr<ImagePtr> ramp(UInt32 format, Int32 width, Int32 height, Int32 frames = 1, Int32 sides = 1)
{
    RefPtr<ImagePtr> image(Image::create());
    image->set(format, width, height, 1, 1, frames, 0.0, nullptr, Image::OSG_UINT8_IMAGEDATA, true,
               sides);
    std::iota(image->getData(), image->getData() + image->getSize(), UInt8(0));
    return image;
}

}  // namespace

TEST(Image, ImpossibleSizesAreRefusedAndLoseNothing)
{
    const RefPtr<ImagePtr> image = ramp(Image::OSG_L_PF, 2, 2);
    constexpr Int32 kHuge = std::numeric_limits<Int32>::max();

    EXPECT_FALSE(image->set(Image::OSG_L_PF, 0, 2));
    EXPECT_FALSE(image->set(Image::OSG_L_PF, 2, -1));
    EXPECT_FALSE(image->set(4711, 2, 2));
    EXPECT_FALSE(image->set(Image::OSG_L_PF, 2, 2, 1, 1, 1, 0.0, nullptr, 4711));
    EXPECT_FALSE(image->set(Image::OSG_RGBA_PF, kHuge, kHuge, kHuge));
    EXPECT_FALSE(image->set(NullFC));

    EXPECT_EQ(image->getWidth(), 2);
    EXPECT_EQ(image->getSize(), 4u);
    EXPECT_EQ(image->getData()[3], 3);
}

TEST(Image, FramesSidesAndMipmapsHaveTheirPlaces)
{
    const RefPtr<ImagePtr> image(Image::create());
    image->set(Image::OSG_RGB_PF, 4, 2, 1, 3, 2, 0.5, nullptr, Image::OSG_UINT8_IMAGEDATA, true, 6);

    // 8, 2 and 1 pixels in the levels of a side.
    EXPECT_EQ(image->getSize(true, false, false), 33u);
    EXPECT_EQ(image->getSize(true, false, true), 198u);
    EXPECT_EQ(image->getSize(), 396u);
    EXPECT_EQ(image->getData(1, 0, 0) - image->getData(), 24);
    EXPECT_EQ(image->getData(2, 1, 3) - image->getData(), 198 + 3 * 33 + 24 + 6);
    EXPECT_EQ(image->getData(3, 0, 0), nullptr);
    EXPECT_EQ(image->getData(0, 2, 0), nullptr);
    EXPECT_EQ(image->getData(0, 0, 6), nullptr);
}

TEST(Image, EveryFrameAndSideGetsMipmaps)
{
    const RefPtr<ImagePtr> image = ramp(Image::OSG_L_PF, 2, 2, 2, 2);

    EXPECT_TRUE(image->createMipmap(2));

    // Side by side four pixels from 0, 4, 8, 12: averages 1.5 more, rounded down.
    for (UInt32 frame = 0; frame < 2; ++frame) {
        for (UInt32 side = 0; side < 2; ++side) {
            const UInt32 first = 8 * frame + 4 * side;
            EXPECT_EQ(image->getData(0, frame, side)[0], first);
            EXPECT_EQ(image->getData(1, frame, side)[0], first + 1);
        }
    }
    EXPECT_TRUE(image->reformat(Image::OSG_LA_PF));
    EXPECT_EQ(image->getMipMapCount(), 2);
    EXPECT_EQ(image->getData(1, 1, 1)[1], 13);
}
