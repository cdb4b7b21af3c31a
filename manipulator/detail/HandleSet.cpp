// SPDX-License-Identifier: MIT
#include "manipulator/detail/HandleSet.h"

#include "manipulator/detail/EditBracket.h"
#include "manipulator/detail/HandleNodes.h"
#include "manipulator/detail/HandlePick.h"
#include "manipulator/detail/NodeVisibility.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

#include <utility>

namespace nbec::manipulator::detail {

namespace {

osg::NodePtr makeHolder(Holder holder, const std::array<float, 3>& place, Turn turn)
{
    const osg::Vec3f translation(place[0], place[1], place[2]);
    if (holder == Holder::Component) {
        return makePlacedNode(translation, quaternionOf(turn));
    }
    const osg::NodePtr node = makeTransform3DNode(eulerDegOf(turn));
    const osg::Transform3DPtr core = osg::Transform3DPtr::dcast(node->getCore());
    const EditBracket edit(core, osg::Transform3D::TranslationFieldMask);
    core->setTranslation(translation);
    return node;
}

}  // namespace

HandleRow makeHandleRow(const char* name, int activeMode, int group,
                        std::initializer_list<HandlePart> parts, const std::array<float, 3>& place,
                        Turn turn)
{
    HandleRow row = { name, activeMode, group, 0, Holder::Component, place, turn, 0, {} };
    for (const HandlePart& each : parts) {
        row.parts[row.partCount++] = each;
    }
    return row;
}

HandleSet::HandleSet(const HandleTable& handleTable, Materials handleMaterials)
    : table(&handleTable)
    , materials(std::move(handleMaterials))
    , root(makeTransform3DNode(osg::Vec3f()))
{
    for (std::size_t i = 0; i < table->groupCount; ++i) {
        groups.push_back(makeTransform3DNode(osg::Vec3f()));
    }
    for (const HandleRow& row : table->rows) {
        handles.push_back(buildHandle(row));
        addChild(row.group < 0 ? root.get() : groups[static_cast<std::size_t>(row.group)],
                 handles.back().top);
    }
    for (const osg::NodePtr& group : groups) {
        addChild(root.get(), group);
    }
}

HandleSet::Nodes HandleSet::buildHandle(const HandleRow& row)
{
    Nodes nodes;
    nodes.top = makeHolder(row.holder, row.place, row.turn);
    nbNodeUtils::setName(nodes.top, row.name);
    nbNodeUtils::setIsAuxiliaryNode(nodes.top, true);
    for (std::size_t i = 0; i < row.partCount; ++i) {
        const HandlePart& part = row.parts[i];
        nodes.parts[i] = makeShapeNode(part.shape);
        nodes.holders[i] = part.holder == Holder::None
            ? nodes.parts[i]
            : addChild(makeHolder(part.holder, part.place, part.turn), nodes.parts[i]);
        nbNodeUtils::setName(nodes.parts[i], row.name);
        nbNodeUtils::setName(nodes.holders[i], row.name);
        addChild(nodes.top, nodes.holders[i]);
    }
    return nodes;
}

osg::Transform3DPtr HandleSet::getRootTransform() const
{
    return osg::Transform3DPtr::dcast(root->getCore());
}

osg::Transform3DPtr HandleSet::getGroupTransform(std::size_t group) const
{
    return osg::Transform3DPtr::dcast(groups[group]->getCore());
}

int HandleSet::detect(const osg::NodePtr& node, const osg::NodePtr& below) const
{
    if (node == osg::NullFC || !nbNodeUtils::hasParent(node, below)) {
        return 0;
    }
    const HandleRow* const row = findHandleRow(table->rows, node);
    return row != nullptr ? row->activeMode : 0;
}

const HandleModeRow* HandleSet::findMode(int mode) const
{
    for (const HandleModeRow& row : table->modes) {
        if (row.mode == mode) {
            return &row;
        }
    }
    return nullptr;
}

// == Colours

void HandleSet::setDefaultMaterials(int mode)
{
    const HandleModeRow* const modeRow = findMode(mode);
    const bool isSpecial = modeRow != nullptr && modeRow->hasSpecialColors;
    for (std::size_t i = 0; i < handles.size(); ++i) {
        const HandleRow& row = table->rows[i];
        for (std::size_t part = 0; part < row.partCount; ++part) {
            const HandlePart& colors = row.parts[part];
            setGeometryMaterial(handles[i].parts[part],
                                materials[isSpecial ? colors.special : colors.idle].get());
        }
    }
}

void HandleSet::highlight(int activeMode)
{
    for (std::size_t i = 0; i < handles.size(); ++i) {
        const HandleRow& row = table->rows[i];
        if (activeMode == 0 ||
            (row.activeMode != activeMode && row.highlightedWith != activeMode)) {
            continue;
        }
        for (std::size_t part = 0; part < row.partCount; ++part) {
            setGeometryMaterial(handles[i].parts[part], materials[table->highlight].get());
        }
    }
}

// == Visibility

void HandleSet::showRoot(bool isVisible)
{
    showNode(root.get(), isVisible);
}

void HandleSet::showAll()
{
    for (Nodes& nodes : handles) {
        showNode(nodes.top, true);
        for (const osg::NodePtr& holder : nodes.holders) {
            showNode(holder, true);
        }
        nodes.isHiddenForDrag = false;
    }
    for (const osg::NodePtr& group : groups) {
        showNode(group, true);
    }
}

void HandleSet::hideAll()
{
    for (const Nodes& nodes : handles) {
        showNode(nodes.top, false);
    }
    for (const osg::NodePtr& group : groups) {
        showNode(group, false);
    }
}

void HandleSet::showMode(const HandleModeRow& mode)
{
    showAll();
    for (std::size_t i = 0; i < groups.size(); ++i) {
        if (mode.isGroupHidden[i]) {
            showNode(groups[i], false);
        }
    }
    for (std::size_t i = 0; i < handles.size(); ++i) {
        if (table->rows[i].activeMode == mode.hiddenHandle) {
            showNode(handles[i].top, false);
        }
    }
}

void HandleSet::showOnly(int activeMode)
{
    if (activeMode == 0) {
        showAll();
        return;
    }
    for (std::size_t i = 0; i < handles.size(); ++i) {
        Nodes& nodes = handles[i];
        nodes.isHiddenForDrag = table->rows[i].activeMode != activeMode && nodes.top->getActive();
        if (nodes.isHiddenForDrag) {
            showNode(nodes.top, false);
        }
    }
}

void HandleSet::showHidden()
{
    for (Nodes& nodes : handles) {
        if (nodes.isHiddenForDrag) {
            showNode(nodes.top, true);
            nodes.isHiddenForDrag = false;
        }
    }
}

}  // namespace nbec::manipulator::detail
