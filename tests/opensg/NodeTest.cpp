// SPDX-License-Identifier: MIT
#include "tests/support/ContainerCensus.h"

#include <OpenSG/OSGChangeCount.h>
#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGPerspectiveCamera.h>
#include <OpenSG/OSGSimpleGeometry.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGTransform.h>

#include <gtest/gtest.h>

#include <random>
#include <vector>

using namespace osg;

namespace {

/// What getToWorld has to equal, worked out without any memory.
Matrix productFromRoot(const NodePtr& node)
{
    Matrix result;
    for (NodePtr at = node; at != NullFC; at = at->getParent()) {
        const TransformPtr transform = TransformPtr::dcast(at->getCore());
        if (transform != NullFC) {
            result.multLeft(transform->getMatrix());
        }
    }
    return result;
}

Matrix randomMatrix(std::mt19937& random)
{
    std::uniform_real_distribution<Real32> number(-1.f, 1.f);
    Matrix m;
    m.setTransform(Vec3f(number(random), number(random), number(random)),
                   Quaternion(Vec3f(number(random), 1.f, number(random)), number(random)));
    return m;
}

bool isBelow(const NodePtr& node, const NodePtr& ancestor)
{
    NodePtr at = node;
    while (at != NullFC && at != ancestor) {
        at = at->getParent();
    }
    return at != NullFC;
}

}  // namespace

// == Change counters

TEST(ChangeCount, CountsEndedEditsOnly)
{
    const GroupRefPtr group(Group::create());
    const UInt32 start = getChangeCount(group);

    beginEditCP(group);
    EXPECT_EQ(getChangeCount(group), start);
    endEditCP(group);
    EXPECT_EQ(getChangeCount(group), start + 1);
    changedCP(group);
    EXPECT_EQ(getChangeCount(group), start + 2);
    EXPECT_EQ(getChangeCount(NullFC), 0u);
    EXPECT_EQ(getTreeChangeCount(NullFC), 0u);
}

TEST(ChangeCount, OfATreeMovesForMaterialsButNeitherForCamerasNorForReading)
{
    MaterialGroupPtr materialGroup;
    const NodeRefPtr root(makeCoredNode<MaterialGroup>(&materialGroup));
    const NodePtr leaf = makeCoredNode<Transform>();
    root->addChild(leaf);
    materialGroup->setMaterial(SimpleMaterial::create());
    const RefPtr<CameraPtr> camera(PerspectiveCamera::create());

    const UInt64 before = getTreeChangeCount(root);
    endEditCP(camera.get());
    root->updateVolume();
    leaf->getToWorld();
    EXPECT_EQ(getTreeChangeCount(root), before);
    endEditCP(materialGroup->getMaterial());
    EXPECT_NE(getTreeChangeCount(root), before);
}

TEST(Nodes, CountsAndWorldMatricesHoldThroughRandomEditsMovesAndSharedCores)
{
    std::mt19937 random(5);
    std::vector<NodeRefPtr> nodes { NodeRefPtr(makeCoredNode<Transform>()) };
    for (int i = 1; i < 100; ++i) {
        const std::size_t parent = random() % 4 == 0 ? random() % nodes.size() : nodes.size() - 1;
        nodes.emplace_back(i % 5 == 0       ? makeNodeFor(nodes[random() % nodes.size()]->getCore())
                               : i % 3 == 0 ? makeCoredNode<Group>()
                                            : makeCoredNode<Transform>());
        nodes[parent]->addChild(nodes.back());
    }
    std::vector<UInt64> seen(nodes.size(), 0);
    std::vector<bool> isEdited(nodes.size(), true);
    const auto noteEdit = [&](const NodePtr& at) {
        for (std::size_t i = 0; i < nodes.size(); ++i) {
            isEdited[i] = isEdited[i] || isBelow(at, nodes[i]);
        }
    };
    for (int step = 0; step < 20000; ++step) {
        const std::size_t index = random() % nodes.size();
        const NodePtr node = nodes[index];
        const NodePtr target = nodes[random() % nodes.size()];
        const TransformPtr transform = TransformPtr::dcast(node->getCore());
        switch (random() % 8) {
        case 0:
            for (const NodePtr& user : node->getCore()->getParents()) {
                noteEdit(user);
            }
            endEditCP(node->getCore());
            break;
        case 1:
            noteEdit(node);
            endEditCP(node);
            break;
        case 2:
            if (index != 0 && !isBelow(target, node)) {
                noteEdit(node);
                target->addChild(node);
                noteEdit(node);
            }
            break;
        case 3:
            if (transform != NullFC) {
                transform->setMatrix(randomMatrix(random));
            }
            break;
        case 4:
            if (transform != NullFC) {
                transform->getMatrix()[3][0] += 1.f;
            }
            break;
        case 5: {
            const NodeCorePtr core = random() % 2 == 0 ? Transform::create() : target->getCore();
            if (core != node->getCore()) {
                noteEdit(node);
            }
            node->setCore(core);
            break;
        }
        default:
            ASSERT_TRUE(node->getToWorld().equals(productFromRoot(node), 1e-4f)) << step;
            ASSERT_EQ(getSubtreeChangeCount(node) != seen[index], isEdited[index]) << step;
            seen[index] = getSubtreeChangeCount(node);
            isEdited[index] = false;
        }
    }
}

// == Children

TEST(NodeVolume, FollowsEditsBelowNodesThatWereInactiveMeanwhile)
{
    const NodeRefPtr root(makeCoredNode<Group>());
    const NodePtr hidden = makeCoredNode<Group>();
    const NodePtr mover = makeCoredNode<Transform>();
    root->addChild(hidden);
    hidden->addChild(mover);
    mover->addChild(makeBox(2, 2, 2, 1, 1, 1));
    const auto move = [&mover](Real32 x) {
        const TransformPtr core = TransformPtr::dcast(mover->getCore());
        beginEditCP(core, Transform::MatrixFieldMask);
        core->getMatrix().setTranslate(x, 0.f, 0.f);
        endEditCP(core, Transform::MatrixFieldMask);
    };
    const auto activate = [&hidden](bool on) {
        beginEditCP(hidden, Node::TravMaskFieldMask);
        hidden->setActive(on);
        endEditCP(hidden, Node::TravMaskFieldMask);
    };
    const auto right = [&root] { return root->getVolume(true).getMax().x(); };

    move(3.f);
    EXPECT_FLOAT_EQ(right(), 4.f);
    activate(false);
    EXPECT_TRUE(root->getVolume(true).isEmpty());
    move(5.f);
    move(6.f);
    EXPECT_TRUE(root->getVolume(true).isEmpty());
    activate(true);
    EXPECT_FLOAT_EQ(right(), 7.f);
    move(8.f);
    move(9.f);
    EXPECT_FLOAT_EQ(right(), 10.f);
    const NodePtr wide = makeBox(30, 1, 1, 1, 1, 1);
    root->addChild(wide);
    endEditCP(root, Node::ChildrenFieldMask);
    EXPECT_FLOAT_EQ(right(), 15.f);
    root->subChild(wide);
    root->subChild(hidden);
    root->updateVolume();
    EXPECT_TRUE(root->getVolume().isEmpty());
}

TEST(NodeChildren, CoreHeldByNobodyElseLeavesWithTheNodeAndClonesLeakNothing)
{
    const nbtest::ContainerCensus before;
    {
        const NodeRefPtr root(makeCoredNode<Group>());
        root->addChild(makeCoredNode<ComponentTransform>());
        const NodeRefPtr sharing(cloneTree(root));
        const NodeRefPtr copying(deepCloneTree(root));
        const NodeRefPtr shallow(NodePtr::dcast(root->shallowCopy()));
        EXPECT_EQ(root->getCore()->getParents().getSize(), 3u);
        EXPECT_EQ(shallow->getNChildren(), 0u);
        EXPECT_NE(copying->getChild(0)->getCore(), root->getChild(0)->getCore());
    }
    EXPECT_EQ(nbtest::ContainerCensus().differenceTo(before), "");
}
