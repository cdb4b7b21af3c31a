// SPDX-License-Identifier: MIT
#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGFieldContainerType.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodeCore.h>

namespace osg {

namespace {

// Without initialiser at run time: types are constructed before other static objects of this file.
UInt32 lastTypeId = 0;

}  // namespace

FieldContainerType::FieldContainerType(const Char8* className, FieldContainerType* parentType,
                                       PrototypeCreateF creator)
    : name(className)
    , parent(parentType)
    , createPrototype(creator)
    , id(++lastTypeId)
{
    FieldContainerFactory::the()->addPendingType(*this);
}

FieldContainerType::~FieldContainerType()
{
    FieldContainerFactory::the()->removeType(*this);
}

bool FieldContainerType::isNode() const
{
    return isDerivedFrom(Node::getClassType());
}

bool FieldContainerType::isNodeCore() const
{
    return isDerivedFrom(NodeCore::getClassType());
}

bool FieldContainerType::isAttachment() const
{
    return isDerivedFrom(Attachment::getClassType());
}

FieldContainerPtr FieldContainerType::createContainer() const
{
    return createPrototype != nullptr ? createPrototype() : FieldContainerPtr();
}

}  // namespace osg
