// SPDX-License-Identifier: MIT
#pragma once

#include "tests/platform/support/LogLines.h"

#include <nbKernel/nbController.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbMaterialEditor/nbMaterialEditor.h>

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleGeometry.h>

#include <QUndoStack>

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// What tests of material editors share.
namespace editortest {

using Settings = osg::ColorComponentSettings;
using Attributes = std::vector<std::pair<const char*, boost::any>>;

constexpr float kTolerance = 1e-5f;
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
inline const std::string kDiffuse = osg::UberMaterial::kDiffuseComponent;

inline void expectNear(const osg::Vec3f& found, const osg::Vec3f& expected, const char* what)
{
    for (osg::UInt32 i = 0; i < 3; ++i) {
        EXPECT_NEAR(found[i], expected[i], kTolerance) << what << ", component " << i;
    }
}

struct Gui : public nbStateChunkBase
{
    std::vector<std::string> told;

    void componentChanged(const std::string& component) override { told.push_back(component); }
};

/// An editor "label" of a box with edges of 2 below a transform, with a planar projection.
class EditorTest : public testing::Test
{
protected:
    void SetUp() override
    {
        nbController::clear();
        undo->clear();
        const osg::Transform3DPtr core = osg::Transform3D::create();
        settings->setPlanarProjection(core);
        material->setComponentSettings(kDiffuse, settings.get());
        object = osg::makeBox(2.f, 2.f, 2.f, 1, 1, 1);
        osg::GeometryPtr::dcast(object->getCore())->setMaterial(material.get());
        root = osg::makeNodeFor(place);
        root->addChild(object);
        editor = std::make_unique<nbMaterialEditor>("label");
        editor->setMaterial(material.get(), object, kDiffuse, &gui);
    }

    void TearDown() override
    {
        editor.reset();
        undo->clear();
        nbController::clear();
    }

    static void send(const std::string& suffix, const Attributes& attributes)
    {
        nbMessage message;
        for (const auto& [name, value] : attributes) {
            message.set(name, value, true);
        }
        nbController::call(("label" + suffix).c_str(), message, 0);
    }

    void setImage(osg::Int32 width, osg::Int32 height)
    {
        const osg::ImagePtr image = osg::Image::create();
        image->set(osg::Image::OSG_RGB_PF, width, height);
        material->setImage(kDiffuse, image);
    }

    int steps() const { return undo->getStack()->count(); }

    nbUndoService* const undo = nbUndoService::the();
    osg::UberMaterialRefPtr material { osg::UberMaterial::create() };
    osg::ColorComponentSettingsRefPtr settings { Settings::create() };
    osg::Transform3DPtr place { osg::Transform3D::create() };
    osg::NodeRefPtr root;
    osg::NodePtr object;
    Gui gui;
    std::unique_ptr<nbMaterialEditor> editor;
    nbtest::LogLines logLines;
    std::vector<std::string>& log = logLines.lines;
};

}  // namespace editortest
