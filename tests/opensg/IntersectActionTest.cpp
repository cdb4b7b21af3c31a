// SPDX-License-Identifier: MIT
#include <OpenSG/OSGIntersectAction.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSimpleGeometry.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGTransform.h>
#include <OpenSG/OSGTriangleIterator.h>

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <vector>

using namespace osg;

namespace {

struct NaiveHit
{
    Real32 t = Inf;
    NodePtr object;
    Int32 triangle = -1;
};

/// All triangles, moved into the world one by one.
void naive(const NodePtr& node, const Line& ray, NaiveHit& hit)
{
    const GeometryPtr geometry = GeometryPtr::dcast(node->getCore());
    if (geometry != NullFC) {
        const Matrix world = node->getToWorld();
        for (TriangleIterator it = geometry->beginTriangles(); !it.isAtEnd(); ++it) {
            Pnt3f corners[3];
            for (Int32 k = 0; k < 3; ++k) {
                world.multMatrixPnt(it.getPosition(k), corners[k]);
            }
            Real32 t = 0.f;
            if (ray.intersect(corners[0], corners[1], corners[2], t) && t >= 0.f && t < hit.t) {
                hit = { t, node, it.getIndex() };
            }
        }
    }
    for (UInt32 i = 0; i < node->getNChildren(); ++i) {
        naive(node->getChild(i), ray, hit);
    }
}

/// Spheres and boxes under nested transforms with turns, mirrorings and uneven scales.
NodePtr randomTree(std::mt19937& random, int depth)
{
    std::uniform_real_distribution<Real32> value(-1.f, 1.f);
    TransformPtr transform;
    const NodePtr node = makeCoredNode<Transform>(&transform);
    Matrix m;
    m.setTransform(Vec3f(value(random), value(random), value(random)) * 4.f,
                   Quaternion(Vec3f(value(random), value(random), 1.f), 3.f * value(random)),
                   Vec3f(1.f + 0.5f * value(random), 0.8f, value(random) < 0.f ? -1.f : 1.f));
    transform->setMatrix(m);
    node->addChild(makeSphere(1, 0.7f));
    node->addChild(makeBox(2.f, 0.2f, 0.5f, 1, 1, 1));
    for (int i = 0; depth > 0 && i < 2; ++i) {
        node->addChild(randomTree(random, depth - 1));
    }
    return node;
}

/// The origins of all nodes, in the world.
void collectOrigins(const NodePtr& node, std::vector<Pnt3f>& origins)
{
    origins.emplace_back(node->getToWorld()[3]);
    for (UInt32 i = 0; i < node->getNChildren(); ++i) {
        collectOrigins(node->getChild(i), origins);
    }
}

}  // namespace

TEST(IntersectAction, FindsWhatALookAtEveryTriangleFinds)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<Real32> value(-8.f, 8.f);
    const RefPtr<NodePtr> root(randomTree(random, 3));
    std::vector<Pnt3f> origins;
    collectOrigins(root, origins);
    const std::unique_ptr<IntersectAction> action(IntersectAction::create());
    int hits = 0;

    for (int i = 0; i < 300; ++i) {
        const Line ray(Pnt3f(value(random), value(random), value(random)),
                       origins[static_cast<std::size_t>(i) % origins.size()] +
                           Vec3f(value(random), value(random), value(random)) * 0.1f);
        NaiveHit expected;
        naive(root, ray, expected);
        action->setLine(ray);
        action->apply(root);

        ASSERT_EQ(action->didHit(), expected.triangle >= 0) << i;
        if (expected.triangle >= 0) {
            ++hits;
            EXPECT_NEAR(action->getHitT(), expected.t, 1e-3f) << i;
            EXPECT_EQ(action->getHitObject(), expected.object) << i;
            EXPECT_NEAR(action->getHitNormal().length(), 1.f, 1e-4f);
        }
    }
    EXPECT_GT(hits, 100);
}

TEST(IntersectAction, SwitchShowsOnlyItsChoice)
{
    SwitchPtr choice;
    const RefPtr<NodePtr> root(makeCoredNode<Switch>(&choice));
    root->addChild(makeBox(1.f, 1.f, 4.f, 1, 1, 1));
    root->addChild(makeBox(1.f, 1.f, 2.f, 1, 1, 1));
    const Line ray(Pnt3f(0.1f, 0.2f, 10.f), Vec3f(0.f, 0.f, -1.f));
    const std::unique_ptr<IntersectAction> action(IntersectAction::create(ray));

    const struct
    {
        Int32 choice;
        Real32 t;
    } cases[] = {
        { Switch::NONE, -1.f }, { 0, 8.f }, { 1, 9.f }, { 2, -1.f }, { Switch::ALL, 8.f }
    };

    for (const auto& row : cases) {
        choice->setChoice(row.choice);
        action->apply(root);
        EXPECT_FLOAT_EQ(action->getHitT(), row.t) << row.choice;
    }
}

TEST(IntersectAction, FlatSubtreesAndZeroDirectionsAreMissed)
{
    TransformPtr transform;
    const RefPtr<NodePtr> root(makeCoredNode<Transform>(&transform));
    root->addChild(makeBox(1.f, 1.f, 1.f, 1, 1, 1));
    const std::unique_ptr<IntersectAction> action(
        IntersectAction::create(Line(Pnt3f(0.1f, 0.2f, 10.f), Vec3f())));
    action->apply(root);
    EXPECT_FALSE(action->didHit());

    Matrix flat;
    flat.setScale(0.f, 1.f, 1.f);
    beginEditCP(transform, Transform::MatrixFieldMask);
    transform->setMatrix(flat);
    endEditCP(transform, Transform::MatrixFieldMask);
    action->setLine(Line(Pnt3f(0.f, 0.2f, 10.f), Vec3f(0.f, 0.f, -1.f)));
    action->apply(root);
    EXPECT_FALSE(action->didHit());
}
