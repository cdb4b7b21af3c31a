// SPDX-License-Identifier: MIT
// What programs written for the interface take for granted without a thought: what a header brings
// along, and what converts into what. Each header of this file stands alone; no header of field
// types or of OpenGL is included.
#include <OpenSG/OSGCamera.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGPerspectiveCamera.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGTransform.h>

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

OSG_USING_NAMESPACE

namespace {

template <class Expected, class Actual>
constexpr bool answers(const Actual&)
{
    return std::is_same_v<Expected, Actual>;
}

/// Destroys what it was given when the test is over.
template <class Pointer>
RefPtr<Pointer> hold(const Pointer& container)
{
    return RefPtr<Pointer>(container);
}

}  // namespace

TEST(Interface, TypesOfFieldsComeWithTheClasses)
{
    const auto node = hold(Node::create());
    const auto camera = hold(CameraPtr(PerspectiveCamera::create()));
    const auto material = hold(SimpleMaterial::create());
    const auto positions = hold(GeoPositions3f::create());
    const auto geometry = hold(Geometry::create());
    const auto transform = hold(Transform::create());

    EXPECT_TRUE(answers<SFUInt32*>(node->getSFTravMask()));
    EXPECT_TRUE(answers<SFReal32*>(camera->getSFNear()));
    EXPECT_TRUE(answers<SFColor3f*>(material->getSFDiffuse()));
    EXPECT_TRUE(answers<SFBool*>(material->getSFLit()));
    EXPECT_TRUE(answers<SFMatrix*>(transform->getSFMatrix()));
    EXPECT_TRUE(answers<MFPnt3f*>(positions->getFieldPtr()));
    EXPECT_TRUE(answers<MFUInt16*>(geometry->getMFIndexMapping()));

    MFBool flags;
    flags.push_back(true);
    flags.push_back(false);
    EXPECT_EQ(flags.find(false) - flags.begin(), 1);
    EXPECT_FALSE(flags[1] == GL_TRUE);
}

TEST(Interface, GettersOfPointerFieldsGiveWhatCanBeWritten)
{
    const auto geometry = hold(Geometry::create());
    const auto material = hold(MaterialPtr(SimpleMaterial::create()));
    const auto camera = hold(CameraPtr(PerspectiveCamera::create()));
    const auto beacon = hold(Node::create());

    MaterialPtr& held = geometry->getMaterial();
    geometry->setMaterial(material);
    EXPECT_EQ(held, material);
    camera->getBeacon() = beacon;
    EXPECT_EQ(camera->getBeacon(), beacon);
    EXPECT_EQ(beacon.get().getRefCount(), 1);
}

TEST(Interface, UsersOfCoresAndAttachmentsAreFoundByIndex)
{
    const auto core = hold(Group::create());
    const auto first = hold(makeNodeFor(core));
    const auto second = hold(makeNodeFor(core));
    const auto name = hold(Name::create());
    first->addAttachment(name);

    EXPECT_EQ(core->getParents(0), first);
    EXPECT_EQ(core->getParents(1), second);
    EXPECT_EQ(name->getParents(0), first);
    EXPECT_EQ(std::as_const(*core.getCPtr()).getMFParents()->getSize(), 2u);
}

TEST(Interface, SetRefdTakesNullDerivedAndCountedPointers)
{
    NodeCorePtr core;
    const GroupPtr group = Group::create();
    setRefdCP(core, group);
    EXPECT_EQ(core, group);
    EXPECT_EQ(group.getRefCount(), 1);
    const RefPtr<GroupPtr> counted(group);
    setRefdCP(core, counted);
    EXPECT_EQ(group.getRefCount(), 2);
    setRefdCP(core, NullFC);
    EXPECT_EQ(core, NullFC);
    EXPECT_EQ(group.getRefCount(), 1);
}

TEST(Interface, PointsAreNegatedToPoints)
{
    const auto negated = -Pnt3f(1.f, -2.f, 0.5f);
    EXPECT_TRUE(answers<Pnt3f>(negated));
    EXPECT_EQ(negated, Pnt3f(-1.f, 2.f, -0.5f));
}
