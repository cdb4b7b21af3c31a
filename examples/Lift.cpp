// SPDX-License-Identifier: MIT
#include "Lift.h"

#include <nbKernelServices/nbScopedUndo.h>
#include <nbKernelServices/nbUndoRecord.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGUtils/nbEdit.h>

#include <memory>

/// What undo knows of a change: the height before and, when the step is closed, after it.
class Lift::Record : public nbUndoRecord
{
public:
    explicit Record(Lift& edited)
        : lift(edited)
        , before(edited.height)
    { }

    bool close() override { return (after = lift.height) != before; }

    void undo() override { lift.show(before); }

    void redo() override { lift.show(after); }

private:
    Lift& lift;
    float before;
    float after = 0.0F;
};

void Lift::setHeight(float newHeight)
{
    const nbScopedUndo undo(QStringLiteral("Lift"));  // joins the group of a drag
    nbUndoService::the()->record(std::make_unique<Record>(*this));
    show(newHeight);
}

void Lift::show(float newHeight)
{
    const auto transform = osg::Transform3DPtr::dcast(node->getCore());
    const nbEdit edit(transform, osg::Transform3D::TranslationFieldMask);
    transform->setTranslation(transform->getTranslation() +
                              osg::Vec3f(0.0F, newHeight - height, 0.0F));
    height = newHeight;
}
