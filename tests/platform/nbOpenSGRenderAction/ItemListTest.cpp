// SPDX-License-Identifier: MIT
#include "tests/platform/support/RenderTest.h"

#include <nbOpenSGRenderAction/ItemList.h>

#include <OpenSG/OSGSwitch.h>

#include <gtest/gtest.h>

using nbrender::ItemList;

namespace {

osg::NodePtr keyed(int key)
{
    return rendertest::square(1.f, rendertest::unlit(rendertest::kRed, key));
}

osg::NodePtr chosen(osg::Int32 choice, const std::vector<osg::NodePtr>& children)
{
    const osg::SwitchPtr core = osg::Switch::create();
    core->setChoice(choice);
    const osg::NodePtr node = rendertest::group(children);
    node->setCore(core);
    return node;
}

std::vector<osg::Int32> keysInOrder(ItemList& list)
{
    std::vector<osg::Int32> keys;
    for (const osg::UInt32 index : list.getOrder(osg::Matrix())) {
        keys.push_back(list.getItems()[index].key);
    }
    return keys;
}

}  // namespace

TEST(nbItemList, HiddenPartsAreLeftOut)
{
    const osg::NodePtr hidden = keyed(1);
    hidden->setActive(false);
    const osg::NodePtr masked = keyed(7);
    masked->setTravMask(4);
    const osg::NodeRefPtr root(
        rendertest::group({ hidden, masked, chosen(1, { keyed(2), keyed(3) }),
                            chosen(osg::Switch::NONE, { keyed(4) }),
                            chosen(osg::Switch::ALL, { keyed(5), keyed(6) }) }));

    ItemList list;
    list.update(root);

    EXPECT_EQ(keysInOrder(list), (std::vector<osg::Int32> { 3, 5, 6, 7 }))
        << "a mask of the host's own hides no more than it does from the picker";
    list.update(osg::NullFC);
    EXPECT_TRUE(list.getItems().empty());
}
