// SPDX-License-Identifier: MIT
// The visualisation of a planar projection.
#include "manipulator/nbPlanarProjectionVisualization.h"
#include "tests/fuzz/Play.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGUtils/nbEdit.h>

namespace nbec::manipulator::test {

namespace {

class ProjectionActor : public Actor
{
public:
    explicit ProjectionActor(Stage& joined)
        : stage(joined)
        , shown(std::make_unique<nbPlanarProjectionVisualization>())
    { }

    ~ProjectionActor() override { hang(false); }

    void act(Bytes& bytes) override
    {
        switch (bytes.next() % 10) {
        case 0:
            hang(false);
            shown = std::make_unique<nbPlanarProjectionVisualization>();
            return;
        case 1:
            return hang(bytes.flag());
        case 2: {
            const nbPlanarProjectionVisualization copied(*shown);
            *shown = copied;
            return;
        }
        case 3:
            return shown->attachToNode(stage.node(bytes));
        case 4:
        case 5:
            return showProjection(bytes);
        case 6: {
            shown->setRotate(bytes.number());
            const osg::Vec2f sides = bytes.number2();
            return shown->setScale(sides.x(), sides.y());
        }
        case 7:
            shown->setVisible(bytes.flag());
            shown->setZScaleVisible(bytes.flag());
            return shown->setPlaneTransparency(bytes.number());
        default:
            const osg::ImagePtr image = stage.image(bytes);
            const unsigned flags = bytes.next();
            return shown->setTexture(image, flags % 2 != 0, flags % 4 >= 2);
        }
    }

    std::string check() override
    {
        return shown->getVisualizationNode()->getParent() == shown->getRootNode()
            ? ""
            : "the visualisation does not hang below its root";
    }

private:
    void hang(bool on)
    {
        const osg::NodePtr above = nbScenegraph::getInternalRoot();
        const osg::NodePtr root = shown->getRootNode();
        if (on == (root->getParent() != osg::NullFC)) {
            return;
        }
        const nbEdit edit(above, osg::Node::ChildrenFieldMask);
        on ? above->addChild(root) : above->subChild(root);
    }

    void showProjection(Bytes& bytes)
    {
        const osg::UberMaterialPtr material = stage.material(bytes);
        shown->updateProjectionTransform(
            material == osg::NullFC ? osg::ColorComponentSettingsPtr()
                                    : material->getComponentSettings(stage.component(bytes)));
    }

    Stage& stage;
    std::unique_ptr<nbPlanarProjectionVisualization> shown;
};

}  // namespace

std::unique_ptr<Actor> makeProjectionActor(Stage& stage)
{
    return std::make_unique<ProjectionActor>(stage);
}

}  // namespace nbec::manipulator::test
