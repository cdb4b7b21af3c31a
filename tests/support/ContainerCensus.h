// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGGroup.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace nbtest {

/// The containers alive at one moment, by type, with which tests prove that nothing leaks:
///
///     const ContainerCensus before;
///     ...
///     EXPECT_EQ(ContainerCensus().differenceTo(before), "");
class ContainerCensus
{
public:
    ContainerCensus()
    {
        const osg::GroupPtr newest = osg::Group::create();
        while (latest + 1 < newest.getFieldContainerId()) {
            living.push_back(++latest);
        }
        latest = newest.getFieldContainerId();
        osg::addRefCP(newest);
        osg::subRefCP(newest);
        const auto isGone = [](osg::UInt32 id) { return find(id) == osg::NullFC; };
        living.erase(std::remove_if(living.begin(), living.end(), isGone), living.end());
        for (const osg::UInt32 id : living) {
            ++countByType[find(id)->getType().getCName()];
        }
    }

    /// What is more or less than in an earlier census: "Group +1, Node -2"; empty if nothing is.
    std::string differenceTo(const ContainerCensus& earlier) const
    {
        std::map<std::string, long> difference = countByType;
        for (const auto& [type, number] : earlier.countByType) {
            difference[type] -= number;
        }
        std::string text;
        for (const auto& [type, number] : difference) {
            if (number != 0) {
                text += (text.empty() ? "" : ", ") + type + (number > 0 ? " +" : " ") +
                    std::to_string(number);
            }
        }
        return text;
    }

private:
    static osg::FieldContainerPtr find(osg::UInt32 id)
    {
        return osg::FieldContainerFactory::the()->getContainer(id);
    }

    // Ids count up and are never used again, so that only the new ones are looked through.
    static inline osg::UInt32 latest = 0;
    static inline std::vector<osg::UInt32> living;
    std::map<std::string, long> countByType;
};

}  // namespace nbtest
