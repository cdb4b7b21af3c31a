// SPDX-License-Identifier: MIT
#include "tests/platform/support/LogLines.h"

#include <nbOpenSGSelection/nbSelection.h>

#include <OpenSG/OSGNodePtr.h>

#include <gmock/gmock.h>

#include <stdexcept>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class nbSelectionTest : public testing::Test
{
protected:
    nbSelectionTest()
        : number(nbSelection::addChangedCallback([this] { ++changes; }))
    { }

    ~nbSelectionTest() override
    {
        nbSelection::removeChangedCallback(number);
        nbSelection::clear();
    }

    static osg::NodeRefPtr makeNode() { return osg::NodeRefPtr(osg::Node::create()); }

    int changes = 0;
    int number = 0;
    osg::NodeRefPtr a = makeNode();
    osg::NodeRefPtr b = makeNode();
};

TEST_F(nbSelectionTest, DestroyedNodeReadsAsGoneAndIsNotKeptAlive)
{
    nbSelection::set({ a.get(), b.get() });
    a = osg::NullFC;

    EXPECT_THAT(nbSelection::getNodes(), ElementsAre(b.get()));
    b = osg::NullFC;
    EXPECT_TRUE(nbSelection::isEmpty());
    EXPECT_THAT(nbSelection::getNodes(), IsEmpty());
}

TEST_F(nbSelectionTest, CallbacksMayChangeSelectionAndCallbacksAndThrow)
{
    const nbtest::LogLines log;
    int removed = 0;
    int throwing = 0;
    int calls = 0;
    throwing = nbSelection::addChangedCallback([&] {
        nbSelection::removeChangedCallback(throwing);
        nbSelection::removeChangedCallback(removed);
        nbSelection::add(b.get());
        throw std::runtime_error("no luck");
    });
    removed = nbSelection::addChangedCallback([&] { ++calls; });

    nbSelection::set(a.get());

    EXPECT_THAT(nbSelection::getNodes(), ElementsAre(a.get(), b.get()));
    EXPECT_EQ(0, calls);
    EXPECT_EQ(2, changes);
    EXPECT_THAT(log.lines, ElementsAre("nbSelection: a changed callback threw: no luck"));
    EXPECT_EQ(0, nbSelection::addChangedCallback(nullptr));
}

}  // namespace
