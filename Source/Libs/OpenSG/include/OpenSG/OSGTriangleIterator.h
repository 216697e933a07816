#pragma once

#include <OpenSG/OSGGeometry.h>

namespace osg {

/// Walks over the triangles of a geometry, whatever its primitives are. The geometry must stay as
/// it is meanwhile. A last triangle or quad that lacks corners, and a primitive that goes beyond
/// the vertices, end the program: OpenSG 1.8 reads what lies behind them.
class TriangleIterator {
public:
    /// At the first triangle.
    explicit TriangleIterator(const Geometry &geometry);
    explicit TriangleIterator(const GeometryPtr &geometry) : TriangleIterator(*geometry) {}

    /// Whether all triangles are done; the corners must not be asked for then.
    bool isAtEnd() const { return m_primitive >= m_primitiveCount; }
    void setToEnd() { m_primitive = m_primitiveCount; }
    void operator++();
    /// Number of triangles before this one.
    Int32 getIndex() const { return m_triangle; }

    /// Whether both stand at the same triangle of the same geometry.
    bool operator==(const TriangleIterator &other) const;
    bool operator!=(const TriangleIterator &other) const { return !(*this == other); }

    /// \name Corners, k from 0 to 2
    /// Indices are -1 without that property, and values then all 0 (white for colours).
    /// @{
    Int32 getPositionIndex(Int32 k) const { return propertyIndex(k, Geometry::MapPosition); }
    Int32 getNormalIndex(Int32 k) const { return propertyIndex(k, Geometry::MapNormal); }
    Int32 getColorIndex(Int32 k) const { return propertyIndex(k, Geometry::MapColor); }
    Int32 getTexCoordsIndex(Int32 k) const { return propertyIndex(k, Geometry::MapTexCoords); }
    Pnt3f getPosition(Int32 k) const;
    Vec3f getNormal(Int32 k) const;
    Color3f getColor(Int32 k) const;
    Vec2f getTexCoords(Int32 k) const;
    /// Place of the corner in the geometry's sequence of vertices.
    UInt32 getVertexIndex(Int32 k) const { return m_corners[k]; }
    /// @}

private:
    void enterPrimitive();
    void setCorners();
    Int32 propertyIndex(Int32 k, UInt16 property) const;

    const Geometry *m_geometry;
    UInt32 m_primitiveCount = 0;
    UInt32 m_vertexCount = 0;
    UInt32 m_indicesPerVertex = 1;

    UInt32 m_primitive = 0;
    UInt32 m_type = 0;
    UInt32 m_firstVertex = 0;
    UInt32 m_length = 0;
    UInt32 m_step = 0;
    UInt32 m_stepCount = 0;
    Int32 m_triangle = 0;
    UInt32 m_corners[3] = {0, 0, 0};
};

} // namespace osg
