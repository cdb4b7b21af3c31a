// SPDX-License-Identifier: MIT
#include "tests/platform/support/LogLines.h"

#include <nbNotification/CameraNotifier.h>
#include <nbNotification/NotificationManager.h>

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

using nbec::notification::CameraNotifier;
using nbec::notification::NotificationManager;
using nbec::notification::TextNotification;
using nbec::notification::VisibleText;

namespace {

class NotificationManagerTest : public testing::Test
{
protected:
    NotificationManagerTest() { manager->clear(); }

    ~NotificationManagerTest() override { manager->clear(); }

    std::shared_ptr<CameraNotifier> addNotifier(const std::string& name)
    {
        auto notifier = std::make_shared<CameraNotifier>(root);
        notifier->setTextPosition(osg::Vec2f(0.f, 26.f));
        notifier->setTextArea(osg::Vec2f(30.f, 30.f), osg::Vec2f(-1.f, -1.f));
        manager->registerNotifier(name, notifier);
        return notifier;
    }

    NotificationManager* const manager = NotificationManager::getInstance();
    osg::NodeRefPtr root { osg::Node::create() };
};

}  // namespace

TEST_F(NotificationManagerTest, TextsAreVisibleWithThePlaceAndColoursOfTheirNotifier)
{
    const auto notifier = addNotifier("transformInfo");
    notifier->setTextColor(osg::Color3f(1.f, 0.5f, 0.25f));
    TextNotification* const text =
        manager->createTextNotification("transformInfo", QStringLiteral("Scale (1)"));

    const std::vector<VisibleText> visible = manager->getVisibleTexts(800, 600);

    ASSERT_EQ(1u, visible.size());
    EXPECT_EQ("Scale (1)", visible[0].text);
    EXPECT_EQ(0.5f, visible[0].settings.textColor[1]);
    EXPECT_EQ(QRectF(QPointF(30, 56), QPointF(800, 600)), visible[0].area);
    manager->setText(text, QStringLiteral("Scale (2)"));
    EXPECT_EQ("Scale (2)", manager->getVisibleTexts(800, 600)[0].text);
    manager->removeTextNotification(text);
    EXPECT_TRUE(manager->getVisibleTexts(800, 600).empty());
}

TEST_F(NotificationManagerTest, WhatCannotBeSeenIsLeftOut)
{
    manager->createTextNotification("later", QStringLiteral("a"));
    EXPECT_TRUE(manager->getVisibleTexts(800, 600).empty());
    const auto notifier = addNotifier("later");
    EXPECT_EQ(1u, manager->getVisibleTexts(800, 600).size());
    EXPECT_TRUE(manager->getVisibleTexts(20, 20).empty());
    EXPECT_TRUE(manager->getVisibleTexts(0, 0).empty());

    manager->createTextNotification("later", QString());
    EXPECT_EQ(1u, manager->getVisibleTexts(800, 600).size());
    notifier->getNode()->setActive(false);
    EXPECT_TRUE(manager->getVisibleTexts(800, 600).empty());
}

TEST_F(NotificationManagerTest, ListenersHearOfChangesAndMayThrow)
{
    const nbtest::LogLines log;
    int heard = 0;
    manager->setChangeListener([&heard] {
        ++heard;
        throw std::runtime_error("listener");
    });

    TextNotification* const text = manager->createTextNotification("a", QStringLiteral("1"));
    manager->setText(text, QStringLiteral("1"));
    EXPECT_EQ(1, heard);
    manager->setText(text, QStringLiteral("2"));
    manager->removeTextNotification(text);
    manager->removeTextNotification(text);
    manager->setText(text, QStringLiteral("3"));
    manager->setText(nullptr, QStringLiteral("3"));

    EXPECT_EQ(3, heard);
}
