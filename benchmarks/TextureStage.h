// SPDX-License-Identifier: MIT
#pragma once

#include "benchmarks/GizmoMeasures.h"

#include <nbKernel/nbController.h>
#include <nbMaterialEditor/nbMaterialEditor.h>
#include <nbOpenSGUberMaterial/UberMaterial.h>
#include <nbOpenSGUtils/nbEdit.h>

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleGeometry.h>

#include <string>

namespace nbec::manipulator::bench {

/// A box with a projected picture and a texture gizmo with all its handles, seen from (2, 3, 7) in
/// 1280 x 800 pixels.
/// @tparam Gizmo  one that has the operations of texture gizmos
template <class Gizmo>
class TextureStage : public GizmoStage<Gizmo>
{
public:
    /// @param changed  suffix of the gizmo's message; "nobody" in front of it does nothing
    /// @param type     projection of the picture
    /// @param bind     gives the gizmo the box
    template <class Bind>
    TextureStage(const std::string& changed, osg::ColorComponentSettings::TextureProjection type,
                 Bind&& bind)
    {
        this->look(osg::Pnt3f(2, 3, 7));
        const osg::NodePtr box = osg::makeBox(4, 4, 1, 1, 1, 1);
        settings = osg::ColorComponentSettings::create();
        settings->setPlanarProjection(osg::Transform3D::create());
        settings->setTextureProjectionType(type);
        material->setComponentSettings(osg::UberMaterial::kDiffuseComponent, settings);
        osg::GeometryPtr::dcast(box->getCore())->setMaterial(material.get());
        nbScenegraph::getRootNode()->addChild(box);
        editor.setMaterial(material.get(), box, osg::UberMaterial::kDiffuseComponent);
        nbController::addReceiver("nobody" + changed, [](nbMessage&) {});
        this->gizmo.setMaterialComponent(material.get(), osg::UberMaterial::kDiffuseComponent,
                                         nullptr);
        bind(this->gizmo, box);
        this->begin();
    }

    ~TextureStage()
    {
        this->finish();
        nbController::clear();
    }

    /// Pixel of a point of the gizmo's unit frame. @return device pixels, y from the top
    osg::Pnt2f pixelOf(const osg::Pnt3f& unit)
    {
        return this->pixelIn(this->gizmo.getVisualisation()->getChild(0), unit);
    }

    osg::ColorComponentSettingsPtr settings;  ///< held by the material

private:
    osg::UberMaterialRefPtr material { osg::UberMaterial::create() };
    nbMaterialEditor editor { "editor" };
};

/// Steps of a drag: to the receiver "nobody", which does nothing, or to "editor", through the
/// material and back into the gizmo.
template <class Stage>
void textureDrag(benchmark::State& state, const char* receiver, const osg::Pnt3f& unit)
{
    Stage stage;
    stage.gizmo.setMessageReceiver(receiver);
    dragSteps(state, stage, stage.pixelOf(unit));
}

}  // namespace nbec::manipulator::bench
