// SPDX-License-Identifier: MIT
#include "tests/support/ContainerCensus.h"

#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSHLChunk.h>

#include <gtest/gtest.h>

OSG_USING_NAMESPACE

TEST(Materials, UniformsClearedDirectlyAreFreed)
{
    const nbtest::ContainerCensus before;
    {
        const RefPtr<SHLChunkPtr> shader(SHLChunk::create());
        shader->setUniformParameter("a", Real32(1.f));
        shader->setUniformParameter("b", Real32(2.f));

        shader->getMFParameters()->clear();
        shader->setUniformParameter("c", Int32(3));

        EXPECT_EQ(nbtest::ContainerCensus().differenceTo(before),
                  "SHLChunk +1, ShaderParameterInt +1");
        Int32 value = 0;
        EXPECT_TRUE(shader->getUniformParameter("c", value));
        EXPECT_EQ(value, 3);
    }
    EXPECT_EQ(nbtest::ContainerCensus().differenceTo(before), "");
}
