// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <cstddef>
#include <map>
#include <string>

namespace osg {

/// The containers alive at one moment, by type, prototypes left out. An extension of the bundled
/// scene graph with which tests prove that nothing leaks:
///
///     const ContainerCensus before = ContainerCensus::take();
///     ...
///     EXPECT_EQ(ContainerCensus::take().differenceTo(before), "");
class ContainerCensus
{
public:
    static ContainerCensus take();

    UInt32 total() const;

    /// Of exactly this type.
    UInt32 count(const std::string& typeName) const;

    /// What is more or less than in an earlier census: "Group +1, Node -2"; empty if nothing is.
    std::string differenceTo(const ContainerCensus& earlier) const;

private:
    std::map<std::string, UInt32> countByType;
};

}  // namespace osg
