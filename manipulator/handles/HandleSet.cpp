// SPDX-License-Identifier: MIT
#include "manipulator/handles/HandleSet.h"

#include "manipulator/drag/DragGeometry.h"
#include "manipulator/handles/HandleMaterials.h"
#include "manipulator/handles/HandleNodes.h"
#include "manipulator/handles/HandlePalette.h"

#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGTransform.h>

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

namespace nbec::manipulator {

namespace {

/// Logical pixels; lines are 2 wide.
constexpr float kEdgeWidth = 5.0F;

osg::Vec3f vectorOf(const std::array<float, 3>& values)
{
    return osg::Vec3f(values[0], values[1], values[2]);
}

osg::NodePtr makeHolder(HandleHolder holder, const std::array<float, 3>& place, Turn turn,
                        const std::array<float, 3>& scale = { 1.0F, 1.0F, 1.0F })
{
    if (holder == HandleHolder::Matrix) {
        return osg::makeNodeFor(osg::Transform::create());
    }
    if (holder == HandleHolder::Component) {
        const osg::NodePtr node = makePlacedNode(vectorOf(place), quaternionOf(turn));
        const auto core = osg::ComponentTransformPtr::dcast(node->getCore());
        const nbEdit edit(core, osg::ComponentTransform::ScaleFieldMask);
        core->setScale(vectorOf(scale));
        return node;
    }
    const osg::NodePtr node = makeTransform3DNode(eulerDegOf(turn));
    const auto core = osg::Transform3DPtr::dcast(node->getCore());
    const nbEdit edit(core, osg::Transform3D::TranslationFieldMask);
    core->setTranslation(vectorOf(place));
    return node;
}

void nameNode(const osg::NodePtr& node, const HandleRow& row)
{
    if (row.name != nullptr) {
        nbNodeUtils::setName(node, row.name);
    }
}

}  // namespace

HandleSet::HandleSet(HandleTable handleTable, Materials handleMaterials)
    : table(std::make_shared<HandleTable>(std::move(handleTable)))
    , materials(std::move(handleMaterials))
    , root(makeHolder(table->root, {}, Turn::None))
{
    for (const osg::SimpleMaterialRefPtr& material : materials) {
        classicColours.push_back(material != osg::NullFC ? material->getDiffuse() : osg::Color3f());
        const osg::LineChunkPtr line =
            material != osg::NullFC ? lineChunkOf(material.get()) : osg::LineChunkPtr();
        classicWidths.push_back(line != osg::NullFC ? line->getWidth() : 0.0F);
    }
    takePalette();
    for (std::size_t i = 0; i < table->groups.size(); ++i) {
        groups.push_back(makeTransform3DNode(osg::Vec3f()));
    }
    build(osg::NodePtr());
    for (const osg::NodePtr& group : groups) {
        addChild(root.get(), group);
    }
}

void HandleSet::build(const osg::NodePtr& copies)
{
    for (std::size_t i = handles.size(); i < table->rows.size(); ++i) {
        const HandleRow& row = table->rows[i];
        const bool isGrouped = row.family >= 0 && !groups.empty();
        handles.push_back(buildHandle(row));
        addChild(isGrouped ? groups[static_cast<std::size_t>(row.family)] : root.get(),
                 handles.back().top);
        colour(i, false, 0);
        if (copies != osg::NullFC) {
            addChild(copies, osg::cloneTree(handles.back().top));
        }
    }
}

void HandleSet::extend(HandleTable longer, const osg::NodePtr& copies)
{
    table = std::make_shared<HandleTable>(std::move(longer));
    build(copies);
}

HandleSet::Nodes HandleSet::buildHandle(const HandleRow& row)
{
    Nodes nodes;
    if (row.holder != HandleHolder::None) {
        nodes.top = makeHolder(row.holder, row.place, row.turn);
    }
    for (const HandlePart& part : row.parts) {
        const osg::NodePtr shape = makeShapeNode(part.shape);
        nodes.parts.push_back(shape);
        if (nodes.top == osg::NullFC) {
            nodes.top = shape;
            continue;
        }
        osg::NodePtr holder = shape;
        if (part.holder != HandleHolder::None) {
            holder = addChild(makeHolder(part.holder, part.place, part.turn, part.scale), shape);
            nameNode(holder, row);
        }
        addChild(nodes.top, holder);
        nameNode(shape, row);
    }
    if (row.name != nullptr) {
        nameNode(nodes.top, row);
        nbNodeUtils::setIsAuxiliaryNode(nodes.top, true);
    }
    return nodes;
}

const HandleRow* HandleSet::findRow(int handle) const
{
    const auto found =
        std::find_if(table->rows.begin(), table->rows.end(), [handle](const HandleRow& row) {
            return handle != 0 && row.handle == handle;
        });
    return found != table->rows.end() ? &*found : nullptr;
}

osg::Pnt3f HandleSet::centre() const
{
    return osg::Pnt3f(column(root->getToWorld(), 3));
}

const HandleRow* HandleSet::findAlike(int handle, std::size_t axis, int mode) const
{
    using Kind = DragParameters::Kind;
    const HandleRow* const own = findRow(handle);
    if (own == nullptr) {
        return nullptr;
    }
    const Kind kind = own->action.kind == Kind::Turns ? Kind::Angle : own->action.kind;
    const auto found =
        std::find_if(table->rows.begin(), table->rows.end(), [&](const HandleRow& row) {
            return row.handle != 0 && row.action.kind == kind && row.family == own->family &&
                row.action.axes == axisBit(axis) && !row.action.isOfView &&
                isInModes(mode, row.visibleIn);
        });
    return found != table->rows.end() ? &*found : nullptr;
}

const HandleRow* HandleSet::findRow(const osg::NodePtr& node) const
{
    const char* const name = node != osg::NullFC ? osg::getName(node) : nullptr;
    if (name == nullptr) {
        return nullptr;
    }
    for (const HandleRow& row : table->rows) {
        if (row.name != nullptr && std::string_view(name) == row.name) {
            return &row;
        }
    }
    return nullptr;
}

int HandleSet::find(const osg::NodePtr& node) const
{
    const HandleRow* const row = findRow(node);
    return row != nullptr ? row->handle : 0;
}

osg::Vec3f HandleSet::axisOf(const HandleRow& row, std::size_t axis) const
{
    osg::Vec3f along;
    along[static_cast<osg::UInt32>(axis)] = 1.0F;
    quaternionOf(row.turn).inverse().multVec(along, along);
    handles[static_cast<std::size_t>(&row - table->rows.data())].top->getToWorld().multMatrixVec(
        along);
    along.normalize();
    return along;
}

float HandleSet::openness(const HandleRow& row, const osg::Vec3f& sight) const
{
    if (const unsigned across = row.action.planeNormal(); across != kNoAxis) {
        osg::Vec3f normal = axisOf(row, (across + 1) % 3).cross(axisOf(row, (across + 2) % 3));
        normal.normalize();
        return std::abs(normal.dot(sight));
    }
    if (row.action.axis() == kNoAxis) {
        return 1.0F;
    }
    const osg::Vec3f along = axisOf(row, row.action.axis());
    return row.action.kind == DragParameters::Kind::Angle ? std::abs(along.dot(sight))
                                                          : along.cross(sight).length();
}

// == Colours

void HandleSet::colour(std::size_t row, bool isHigh, int mode)
{
    Nodes& nodes = handles[row];
    const bool isFaded = !isHigh && nodes.opacity > 0.0F && nodes.opacity < 1.0F;
    for (std::size_t i = 0; i < nodes.parts.size(); ++i) {
        const HandleColors& colors = table->rows[row].parts[i].colors;
        const std::size_t idle = isInModes(mode, table->specialIn) ? colors.special : colors.idle;
        setGeometryMaterial(nodes.parts[i],
                            isFaded ? fadedMaterial(nodes, i, idle)
                                    : materials[isHigh ? colors.highlight : idle].get());
        nodes.trim.colourFront(materials[isHigh ? colors.highlight : idle].get());
    }
}

/// A part's own material: that of its colour, more transparent by the handle's opacity.
osg::SimpleMaterialPtr HandleSet::fadedMaterial(Nodes& of, std::size_t part, std::size_t color)
{
    const osg::SimpleMaterialPtr idle = materials[color].get();
    of.faded.resize(of.parts.size());
    osg::SimpleMaterialRefPtr& faded = of.faded[part];
    if (faded == osg::NullFC) {
        faded = makeHandleMaterial(idle->getDiffuse(), idle->getSortKey(), nullptr);
        const nbEdit edit(faded.get(), osg::ChunkMaterial::ChunksFieldMask);
        for (const osg::StateChunkPtr& chunk : *idle->getMFChunks()) {
            faded->addChunk(chunk);
        }
    }
    const nbEdit edit(faded.get(), osg::FieldBits::AllFields);
    faded->setDiffuse(idle->getDiffuse());
    faded->setTransparency(1.0F - (1.0F - idle->getTransparency()) * of.opacity);
    return faded.get();
}

bool HandleSet::setOpacity(std::size_t row, float opacity, int mode)
{
    if (handles[row].opacity == opacity) {
        return false;
    }
    handles[row].opacity = opacity;
    colour(row, isLitBy(row, lit), mode);
    return true;
}

bool HandleSet::isFaded() const
{
    return std::any_of(handles.begin(), handles.end(),
                       [](const Nodes& nodes) { return nodes.opacity < 1.0F; });
}

/// Whether a row is lit up with a handle.
bool HandleSet::isLitBy(std::size_t row, int handle) const
{
    const HandleRow& of = table->rows[row];
    return handle != 0 && (of.handle == handle || of.litWith == handle);
}

bool HandleSet::isLitThinner() const
{
    for (std::size_t i = 0; i < handles.size(); ++i) {
        for (const HandlePart& part : table->rows[i].parts) {
            if (isLitBy(i, lit) &&
                classicWidths[part.colors.highlight] < classicWidths[part.colors.idle]) {
                return true;
            }
        }
    }
    return false;
}

bool HandleSet::takePalette()
{
    if (paletteCount == handlePaletteCount()) {
        return false;
    }
    const HandlePalette& palette = getHandlePalette();
    paletteCount = handlePaletteCount();
    for (std::size_t i = 0; i < materials.size(); ++i) {
        if (materials[i] == osg::NullFC) {
            continue;
        }
        const nbEdit edit(materials[i].get(), osg::FieldBits::AllFields);
        materials[i]->setDiffuse(inHandlePalette(classicColours[i]));
        if (const osg::LineChunkPtr line = lineChunkOf(materials[i].get()); line != osg::NullFC) {
            const nbEdit lineEdit(line, osg::LineChunk::WidthFieldMask);
            line->setWidth(classicWidths[i] * palette.lineWidth);
        }
    }
    if (palette.hasEdges) {
        dark = makeEdgeMaterial(kEdgeWidth * palette.lineWidth);
    }
    for (Nodes& nodes : handles) {
        nodes.trim.showEdges(palette.hasEdges, nodes.parts, dark.get());
        // Seen with the placement that follows.
        nodes.opacity = nodes.opacity > 0.0F ? 1.0F : 0.0F;
    }
    return true;
}

bool HandleSet::hasFront(std::size_t row) const
{
    const HandleRow& of = table->rows[row];
    const HandleShape shape = of.parts.front().shape;
    return of.action.kind == DragParameters::Kind::Angle && !of.action.isOfView &&
        (shape == HandleShape::Ring || shape == HandleShape::SolidBigRing);
}

void HandleSet::face(const osg::Vec3f& sight, const osg::Quaternion& facing, int mode)
{
    const bool hasLetters = getHandlePalette().hasLetters;
    isFacing = hasLetters;
    std::string seen;
    for (std::size_t i = 0; i < handles.size(); ++i) {
        const HandleRow& row = table->rows[i];
        const HandlePart& first = row.parts.front();
        Nodes& nodes = handles[i];
        const bool hasLetter = hasLetters && row.letter != 0 && isInModes(mode, row.visibleIn) &&
            !nodes.isHidden && seen.find(row.letter) == std::string::npos;
        seen += hasLetter ? row.letter : '\0';
        nodes.trim.showLetter(hasLetter, nodes.top, row.letter, row.tip,
                              materials[first.colors.idle].get(), facing);
        const bool isInFront = hasFront(i) && nodes.opacity < 1.0F;
        isFacing = isFacing || isInFront;
        nodes.trim.showFront(isInFront, nodes.parts.front(),
                             first.shape == HandleShape::SolidBigRing, sight);
        colour(i, isLitBy(i, lit), mode);
    }
}

void HandleSet::setDefaultMaterials(int mode)
{
    const bool isAll = table->restored.empty() || mode < 0;
    const unsigned families = isAll ? ~0U : table->restored[static_cast<std::size_t>(mode)];
    for (std::size_t i = 0; i < handles.size(); ++i) {
        const int family = table->rows[i].family;
        if (family < 0 || isInModes(family, families)) {
            colour(i, false, mode);
        }
    }
    lit = 0;
}

void HandleSet::light(int handle, int mode)
{
    if (handle == lit) {
        return;
    }
    for (std::size_t i = 0; i < handles.size(); ++i) {
        const bool isNew = isLitBy(i, handle);
        if (isNew || isLitBy(i, lit)) {
            colour(i, isNew, mode);
        }
    }
    lit = handle;
}

// == Visibility

bool HandleSet::isShown(std::size_t row, int mode, const HandleRow* held) const
{
    const HandleRow& each = table->rows[row];
    if (handles[row].opacity == 0.0F || handles[row].isExcluded || handles[row].isHidden ||
        !isInModes(mode, each.visibleIn)) {
        return false;
    }
    return held == nullptr || each.handle == held->handle || each.staysInDrags ||
        held->leaves == HandleLeaves::Everything ||
        (held->leaves == HandleLeaves::Family && each.family == held->family);
}

void HandleSet::show(int mode, int held)
{
    const HandleRow* const heldRow = findRow(held);
    for (std::size_t i = 0; i < handles.size(); ++i) {
        showNode(handles[i].top, isShown(i, mode, heldRow));
        for (std::size_t part = 0; part < handles[i].parts.size(); ++part) {
            if (table->rows[i].parts[part].isOfDrag) {
                showNode(handles[i].parts[part],
                         heldRow != nullptr && table->rows[i].handle == heldRow->handle);
            }
        }
    }
    for (std::size_t i = 0; i < groups.size(); ++i) {
        showNode(groups[i], isInModes(mode, table->groups[i]));
    }
}

void HandleSet::showAll(bool isVisible)
{
    for (const Nodes& nodes : handles) {
        showNode(nodes.top, isVisible);
    }
    for (const osg::NodePtr& group : groups) {
        showNode(group, isVisible);
    }
}

bool HandleSet::setHidden(const std::string& name, bool isHidden)
{
    bool isKnown = false;
    for (std::size_t i = 0; i < handles.size(); ++i) {
        if (table->rows[i].name != nullptr && name == table->rows[i].name) {
            handles[i].isHidden = isHidden;
            isKnown = true;
        }
    }
    return isKnown;
}

void HandleSet::setExcluded(int handle, bool isExcluded)
{
    for (std::size_t i = 0; i < handles.size(); ++i) {
        if (table->rows[i].handle == handle) {
            handles[i].isExcluded = isExcluded;
        }
    }
}

}  // namespace nbec::manipulator
