#include <OpenSG/OSGTriangleIterator.h>

#include "OSGWarning.h"

namespace osg {

TriangleIterator::TriangleIterator(const Geometry &geometry) : m_geometry(&geometry)
{
    const bool isComplete = geometry.getTypes() && geometry.getLengths() && geometry.getPositions();
    if (!isComplete)
        return;
    m_primitiveCount = std::min(geometry.getTypes()->size(), geometry.getLengths()->size());
    m_indicesPerVertex = std::max<UInt32>(1, geometry.getIndexMapping().getSize());
    m_vertexCount = geometry.getIndices() ? geometry.getIndices()->size() / m_indicesPerVertex
                                          : geometry.getPositions()->size();
    enterPrimitive();
}

bool TriangleIterator::operator==(const TriangleIterator &other) const
{
    if (m_geometry != other.m_geometry)
        return false;
    return m_primitive == other.m_primitive && (isAtEnd() || m_step == other.m_step);
}

/// The triangles of a primitive. At its end two corners of a quad and the next one are a triangle.
static UInt32 triangleCount(UInt32 type, UInt32 vertices)
{
    if (vertices < 3)
        return 0;
    const UInt32 ofQuad = vertices % 4;
    if ((type == GL_TRIANGLES && vertices % 3 != 0)
        || (type == GL_QUADS && (ofQuad == 1 || ofQuad == 2)))
        fail("TriangleIterator: the last triangle or quad of a primitive lacks corners");
    switch (type) {
    case GL_TRIANGLES:
        return vertices / 3;
    case GL_TRIANGLE_STRIP:
    case GL_TRIANGLE_FAN:
    case GL_POLYGON:
    case GL_QUAD_STRIP:
        return vertices - 2;
    case GL_QUADS:
        return vertices / 4 * 2 + ofQuad / 3;
    default:
        return 0;
    }
}

void TriangleIterator::enterPrimitive()
{
    // Goes on to the next primitive that has a triangle.
    for (m_step = 0; !isAtEnd(); ++m_primitive, m_firstVertex += m_length) {
        m_type = m_geometry->getTypes()->getValue(m_primitive);
        m_length = m_geometry->getLengths()->getValue(m_primitive);
        if (m_length > m_vertexCount - m_firstVertex)
            fail("TriangleIterator: a primitive goes beyond the vertices");
        m_stepCount = triangleCount(m_type, m_length);
        if (m_stepCount > 0) {
            setCorners();
            return;
        }
    }
}

void TriangleIterator::operator++()
{
    ++m_triangle;
    if (++m_step < m_stepCount) {
        setCorners();
        return;
    }
    m_firstVertex += m_length;
    ++m_primitive;
    enterPrimitive();
}

void TriangleIterator::setCorners()
{
    const UInt32 step = m_step, quad = step / 2;
    const auto set = [this](UInt32 a, UInt32 b, UInt32 c) {
        m_corners[0] = m_firstVertex + a;
        m_corners[1] = m_firstVertex + b;
        m_corners[2] = m_firstVertex + c;
    };
    switch (m_type) {
    case GL_TRIANGLES:
        return set(step * 3, step * 3 + 1, step * 3 + 2);
    case GL_TRIANGLE_STRIP: // every second one turns the other way round
        return step % 2 ? set(step + 1, step, step + 2) : set(step, step + 1, step + 2);
    case GL_QUADS:
        return step % 2 ? set(quad * 4, quad * 4 + 2, quad * 4 + 3)
                        : set(quad * 4, quad * 4 + 1, quad * 4 + 2);
    case GL_QUAD_STRIP:
        return step % 2 ? set(quad * 2 + 2, quad * 2 + 1, quad * 2 + 3)
                        : set(quad * 2, quad * 2 + 1, quad * 2 + 2);
    default: // fans and polygons
        return set(0, step + 1, step + 2);
    }
}

Int32 TriangleIterator::propertyIndex(Int32 k, UInt16 property) const
{
    const GeoIndicesPtr &indices = m_geometry->getIndices();
    if (!indices)
        return Int32(m_corners[k]);
    // One index for all, or the one that the mapping names.
    Int32 offset = 0;
    if (!m_geometry->getIndexMapping().empty())
        offset = m_geometry->calcMappingIndex(property);
    if (offset < 0)
        return -1;
    return Int32(indices->getValue(m_corners[k] * m_indicesPerVertex + UInt32(offset)));
}

/// The element of \a property, the default value when there is none.
template <class PropertyPtr, class Value>
static Value valueAt(const PropertyPtr &property, Int32 index, const Value &otherwise)
{
    if (!property || index < 0 || UInt32(index) >= property->size())
        return otherwise;
    return property->getValue(UInt32(index));
}

Pnt3f TriangleIterator::getPosition(Int32 k) const
{
    return valueAt(m_geometry->getPositions(), getPositionIndex(k), Pnt3f());
}

Vec3f TriangleIterator::getNormal(Int32 k) const
{
    return valueAt(m_geometry->getNormals(), getNormalIndex(k), Vec3f());
}

Color3f TriangleIterator::getColor(Int32 k) const
{
    return valueAt(m_geometry->getColors(), getColorIndex(k), Color3f(1, 1, 1));
}

Vec2f TriangleIterator::getTexCoords(Int32 k) const
{
    return valueAt(m_geometry->getTexCoords(), getTexCoordsIndex(k), Vec2f());
}

} // namespace osg
