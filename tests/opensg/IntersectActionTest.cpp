// SPDX-License-Identifier: MIT
#include <OpenSG/OSGIntersectAction.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSimpleGeometry.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGTransform.h>

#include <gtest/gtest.h>

#include <memory>

using namespace osg;

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
