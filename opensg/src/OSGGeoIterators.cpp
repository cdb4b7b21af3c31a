// SPDX-License-Identifier: MIT
#include <OpenSG/OSGLineIterator.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGPrimitiveIterator.h>
#include <OpenSG/OSGTriangleIterator.h>

namespace osg {

namespace {

UInt32 beyond(UInt32 length, UInt32 taken)
{
    return length > taken ? length - taken : 0;
}

UInt32 set(UInt32 (&vertices)[4], UInt32 a, UInt32 b)
{
    vertices[0] = a;
    vertices[1] = b;
    return 2;
}

UInt32 set(UInt32 (&vertices)[4], UInt32 a, UInt32 b, UInt32 c)
{
    set(vertices, a, b);
    vertices[2] = c;
    return 3;
}

GeometryPtr geometryOf(const NodePtr& node)
{
    return node != NullFC ? GeometryPtr::dcast(node->getCore()) : GeometryPtr();
}

}  // namespace

PrimitiveIterator::PrimitiveIterator(const GeometryPtr& geometry)
    : geo(geometry)
    , view(geometry)
{ }

PrimitiveIterator::PrimitiveIterator(const NodePtr& node)
    : PrimitiveIterator(geometryOf(node))
{ }

void PrimitiveIterator::setToBegin()
{
    primitive = 0;
    firstVertex = 0;
    load();
}

void PrimitiveIterator::seek(Int32 wanted)
{
    setToBegin();
    while (!atEnd && static_cast<Int32>(primitive) < wanted) {
        ++*this;
    }
}

PrimitiveIterator& PrimitiveIterator::operator++()
{
    ++primitive;
    firstVertex += length;
    load();
    return *this;
}

void PrimitiveIterator::load()
{
    atEnd = primitive >= view.getPrimitiveCount();
    type = atEnd ? 0 : view.getType(primitive);
    length = atEnd ? 0 : view.getLength(primitive);
}

UInt32 TriangleSplitter::count(UInt32 type, UInt32 length)
{
    switch (type) {
    case GL_TRIANGLES:
        return length / 3;
    case GL_TRIANGLE_STRIP:
    case GL_TRIANGLE_FAN:
    case GL_POLYGON:
        return beyond(length, 2);
    case GL_QUADS:
        return length / 4 * 2;
    case GL_QUAD_STRIP:
        return beyond(length / 2 * 2, 2);
    default:
        return 0;
    }
}

UInt32 TriangleSplitter::corners(UInt32 type, UInt32 part, UInt32 /*length*/, UInt32 (&vertices)[4])
{
    switch (type) {
    case GL_TRIANGLES:
        return set(vertices, 3 * part, 3 * part + 1, 3 * part + 2);
    case GL_TRIANGLE_STRIP:
    case GL_QUAD_STRIP:
        return part % 2 == 0 ? set(vertices, part, part + 1, part + 2)
                             : set(vertices, part + 1, part, part + 2);
    case GL_QUADS: {
        const UInt32 first = part / 2 * 4;
        return set(vertices, first, first + 1 + part % 2, first + 2 + part % 2);
    }
    default:
        return set(vertices, 0, part + 1, part + 2);
    }
}

UInt32 LineSplitter::count(UInt32 type, UInt32 length)
{
    switch (type) {
    case GL_LINES:
        return length / 2;
    case GL_LINE_STRIP:
        return beyond(length, 1);
    case GL_LINE_LOOP:
        return length > 1 ? length : 0;
    default:
        return 0;
    }
}

UInt32 LineSplitter::corners(UInt32 type, UInt32 part, UInt32 length, UInt32 (&vertices)[4])
{
    if (type == GL_LINES) {
        return set(vertices, 2 * part, 2 * part + 1);
    }
    return set(vertices, part, (part + 1) % length);
}

}  // namespace osg
