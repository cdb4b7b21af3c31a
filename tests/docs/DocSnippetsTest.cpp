// SPDX-License-Identifier: MIT
#include "DocSnippets.h"

#include <nbKernel/nbController.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleGeometry.h>

#include <gtest/gtest.h>

#include <ostream>

/// Names the snippet where GoogleTest tells the parameter of a test.
static void PrintTo(const DocSnippet& snippet, std::ostream* output)
{
    *output << snippet.name;
}

namespace {

class DocSnippets : public testing::TestWithParam<DocSnippet>
{
protected:
    DocSnippets()
        : node(osg::makeBox(1, 1, 1, 1, 1, 1))
        , material(osg::UberMaterial::create())
        , image(osg::Image::create())
    {
        view.resize(800, 600);
        const osg::UInt8 pixels[] = { 255, 255, 255, 255, 0, 0, 0, 255 };
        image->set(osg::Image::OSG_RGBA_PF, 2, 1, 1, 1, 1, 0.0, pixels);
        osg::GeometryPtr::dcast(node->getCore())->setMaterial(material.get());
        nbScenegraph::getRootNode()->addChild(node);
    }

    ~DocSnippets() override
    {
        nbUndoService::the()->clear();
        nbScenegraph::clear();
        nbController::clear();
    }

    nbOSGWidget view;
    nbec::interaction::InteractionManager manager;
    osg::NodePtr node;
    osg::RefPtr<osg::UberMaterialPtr> material;
    osg::RefPtr<osg::ImagePtr> image;
};

TEST_P(DocSnippets, LeaveNothingBehind)
{
    const auto helpers = nbScenegraph::getInternalRoot()->getNChildren();

    GetParam().run(view, manager, node, material.get(), image.get());

    EXPECT_EQ(nbScenegraph::getInternalRoot()->getNChildren(), helpers);
    EXPECT_TRUE(nbScenegraph::isPreselectionEnabled());
    // Only what nobody needs to receive was lost.
    for (const auto& [name, count] : nbController::getLostCalls()) {
        EXPECT_TRUE(name == "setMatRenderEnabled" || name == "updateMatRender") << name;
    }
}

INSTANTIATE_TEST_SUITE_P(Manual, DocSnippets, testing::ValuesIn(docSnippets()),
                         [](const auto& row) { return row.param.name; });

}  // namespace
