// SPDX-License-Identifier: MIT
// Images beyond the formats and mipmaps of one plain picture.
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGRefPtr.h>

#include <gtest/gtest.h>

#include <limits>

OSG_USING_NAMESPACE

TEST(Image, ImpossibleSizesAreRefusedAndLoseNothing)
{
    const RefPtr<ImagePtr> image(Image::create());
    const UInt8 pixels[] = { 0, 1, 2, 3 };
    image->set(Image::OSG_L_PF, 2, 2, 1, 1, 1, 0.0, pixels);
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
