// SPDX-License-Identifier: MIT
#include <nbOpenSGRenderAction/ItemList.h>
#include <nbOpenSGUtils/nbEdit.h>

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleGeometry.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGSwitch.h>

#include <gtest/gtest.h>

#include <vector>

using nbrender::ItemList;

namespace {

osg::SimpleMaterialPtr material(osg::Int32 key, float transparency = 0.f)
{
    const osg::SimpleMaterialPtr result = osg::SimpleMaterial::create();
    const nbEdit edit(result, osg::FieldBits::AllFields);
    result->setSortKey(key);
    result->setTransparency(transparency);
    result->setDiffuse(osg::Color3f(1.f, 0.f, 0.f));
    return result;
}

osg::NodePtr box(const osg::MaterialPtr& look)
{
    const osg::NodePtr node = osg::makeBox(1.f, 1.f, 1.f, 1, 1, 1);
    const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(node->getCore());
    const nbEdit edit(geometry, osg::Geometry::MaterialFieldMask);
    geometry->setMaterial(look);
    return node;
}

template <class Core>
osg::NodePtr over(const std::vector<osg::NodePtr>& children)
{
    const osg::NodePtr node = osg::makeCoredNode<Core>();
    const nbEdit edit(node, osg::Node::ChildrenFieldMask);
    for (const osg::NodePtr& child : children) {
        node->addChild(child);
    }
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
    const osg::NodePtr hidden = box(material(1));
    hidden->setActive(false);
    const osg::NodePtr masked = box(material(7));
    masked->setTravMask(4);
    const osg::NodePtr choice = over<osg::Switch>({ box(material(2)), box(material(3)) });
    osg::SwitchPtr::dcast(choice->getCore())->setChoice(1);
    const osg::NodePtr none = over<osg::Switch>({ box(material(4)) });
    const osg::NodePtr all = over<osg::Switch>({ box(material(5)), box(material(6)) });
    osg::SwitchPtr::dcast(all->getCore())->setChoice(osg::Switch::ALL);
    const osg::NodeRefPtr root(over<osg::Group>({ hidden, masked, choice, none, all }));
    ItemList list;
    list.update(root);

    EXPECT_EQ(keysInOrder(list), (std::vector<osg::Int32> { 3, 5, 6, 7 }))
        << "a mask of the host's own hides no more than it does from the picker";
    list.update(osg::NullFC);
    EXPECT_TRUE(list.getItems().empty());
}
