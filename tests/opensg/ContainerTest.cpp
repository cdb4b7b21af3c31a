// SPDX-License-Identifier: MIT
#include "tests/support/ContainerCensus.h"

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGTransform.h>

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <vector>

using namespace osg;

namespace {

FieldContainerPtr resolve(UInt32 id)
{
    return FieldContainerFactory::the()->getContainer(id);
}

}  // namespace

// == Ids

TEST(IdTable, ResolvesExactlyTheLivingThroughRandomLifeAndDeath)
{
    std::mt19937 random(7);
    std::map<UInt32, NodePtr> alive;
    std::vector<UInt32> dead;
    UInt32 lastId = 0;

    for (int step = 0; step < 20000; ++step) {
        const bool growing = step < 6000 || (step > 12000 && step < 15000);
        if (random() % 10 < (growing ? 7u : 3u) || alive.empty()) {
            const NodePtr node = Node::create();
            ASSERT_GT(node.getFieldContainerId(), lastId);
            lastId = node.getFieldContainerId();
            alive[lastId] = node;
        } else {
            const auto victim =
                std::next(alive.begin(), random() % std::min<std::size_t>(alive.size(), 50));
            dead.push_back(victim->first);
            subRefCP(victim->second);
            alive.erase(victim);
        }
    }

    for (const auto& entry : alive) {
        ASSERT_EQ(resolve(entry.first), entry.second) << entry.first;
    }
    for (const UInt32 id : dead) {
        ASSERT_EQ(resolve(id), NullFC) << id;
    }
    for (auto& entry : alive) {
        subRefCP(entry.second);
    }
    EXPECT_EQ(resolve(lastId), NullFC);
}

// == Pointers and counts

TEST(RefPtr, ReplacingTheLastHolderOfAParentByItsChildKeepsTheChild)
{
    NodeRefPtr held(makeCoredNode<Group>());
    held->addChild(makeCoredNode<Group>());
    const UInt32 parentId = held->getFieldContainerId();

    held = held->getChild(0);

    EXPECT_EQ(resolve(parentId), NullFC);
    EXPECT_EQ(held.get().getRefCount(), 1);
    EXPECT_EQ(held->getParent(), NullFC);
}

TEST(FieldContainer, OfADeepTreeAllIsGoneWhenTheRootIs)
{
    const nbtest::ContainerCensus before;
    NodePtr root = makeCoredNode<Transform>();
    NodePtr deepest = root;
    constexpr int kDepth = 50000;
    for (int i = 0; i < kDepth; ++i) {
        const NodePtr parent = makeCoredNode<Transform>();
        parent->addChild(root);
        root = parent;
    }
    EXPECT_EQ(deepest->getToWorld(), Matrix::identity());
    root->updateVolume();
    EXPECT_TRUE(deepest->getVolume().isValid());
    NodePtr copy = deepCloneTree(root);
    EXPECT_EQ(nbtest::ContainerCensus().differenceTo(before), "Node +100002, Transform +100002");

    subRefCP(root);
    subRefCP(copy);

    EXPECT_EQ(nbtest::ContainerCensus().differenceTo(before), "");
}
