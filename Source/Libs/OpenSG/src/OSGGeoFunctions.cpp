#include <OpenSG/OSGGeoFunctions.h>

#include <OpenSG/OSGTriangleIterator.h>

#include <map>

namespace osg {

namespace {

Vec3f unit(Vec3f vector)
{
    vector.normalize();
    return vector;
}

/// The face normals of a geometry, by position and by vertex. Small faces count like large ones.
struct FaceNormals {
    explicit FaceNormals(const Geometry &geometry)
    {
        for (TriangleIterator it = geometry.beginTriangles(); !it.isAtEnd(); ++it) {
            const Pnt3f origin = it.getPosition(0);
            const Vec3f normal =
                unit((it.getPosition(1) - origin).cross(it.getPosition(2) - origin));
            for (Int32 k = 0; k < 3; ++k) {
                atPosition[UInt32(it.getPositionIndex(k))].push_back(normal);
                const auto vertex = atVertex.emplace(it.getVertexIndex(k), Vec3f()).first;
                vertex->second += normal;
                positionOf[it.getVertexIndex(k)] = UInt32(it.getPositionIndex(k));
            }
        }
    }

    std::map<UInt32, std::vector<Vec3f>> atPosition;
    std::map<UInt32, Vec3f> atVertex;
    std::map<UInt32, UInt32> positionOf;
};

/// The mean of those of \a normals that are inclined to \a own by less than the angle.
Vec3f meanNear(const std::vector<Vec3f> &normals, const Vec3f &own, Real32 cosine)
{
    Vec3f sum;
    for (const Vec3f &normal : normals) {
        if (normal.dot(own) > cosine)
            sum += normal;
    }
    return sum.squareLength() > 0 ? unit(sum) : own;
}

void setNormals(const GeometryPtr &geometry, const std::vector<Vec3f> &normals)
{
    const GeoNormals3fPtr property = GeoNormals3f::create();
    {
        const CPEditor editor(property);
        property->getField().setValues(normals);
    }
    const CPEditor editor(geometry, Geometry::NormalsFieldMask);
    geometry->setNormals(property);
}

/// Gives each vertex the index \a at of a normal of its own: its place in the sequence of vertices.
void indexNormalsByVertex(const GeometryPtr &geometry)
{
    std::vector<UInt16> mapping = geometry->getIndexMapping().getValues();
    // One index stood for everything; it goes on doing so, except for normals.
    if (mapping.empty())
        mapping.push_back(0xFFFF);
    for (UInt16 &entry : mapping)
        entry = UInt16(entry & ~Geometry::MapNormal);
    const UInt32 oldWidth = UInt32(mapping.size());
    const GeoIndicesUI32Ptr indices = GeoIndicesUI32::create();
    for (UInt32 i = 0; i < geometry->getIndices()->size(); ++i) {
        indices->push_back(geometry->getIndices()->getValue(i));
        if ((i + 1) % oldWidth == 0)
            indices->push_back(i / oldWidth);
    }
    mapping.push_back(Geometry::MapNormal);
    const CPEditor editor(geometry, Geometry::IndicesFieldMask | Geometry::IndexMappingFieldMask);
    geometry->getIndexMapping().setValues(mapping);
    geometry->setIndices(indices);
}

/// Lets normals share the index of the positions again.
void indexNormalsByPosition(const GeometryPtr &geometry)
{
    MFUInt16 &mapping = geometry->getIndexMapping();
    const CPEditor editor(geometry, Geometry::IndexMappingFieldMask);
    for (UInt16 &entry : mapping.getValues()) {
        entry = UInt16(entry & ~Geometry::MapNormal);
        if (entry & Geometry::MapPosition)
            entry = UInt16(entry | Geometry::MapNormal);
    }
}

} // namespace

void calcVertexNormals(GeometryPtr geometry)
{
    if (!geometry || !geometry->getPositions())
        return;
    std::vector<Vec3f> normals(geometry->getPositions()->size());
    for (const auto &[position, faces] : FaceNormals(*geometry).atPosition) {
        Vec3f sum;
        for (const Vec3f &face : faces)
            sum += face;
        if (position < normals.size())
            normals[position] = unit(sum);
    }
    indexNormalsByPosition(geometry);
    setNormals(geometry, normals);
}

void calcVertexNormals(GeometryPtr geometry, Real32 creaseAngle)
{
    if (!geometry || !geometry->getPositions())
        return;
    const FaceNormals faces(*geometry);
    const UInt32 vertexCount = faces.atVertex.empty() ? 0 : faces.atVertex.rbegin()->first + 1;
    std::vector<Vec3f> normals(vertexCount);
    for (const auto &[vertex, own] : faces.atVertex) {
        const std::vector<Vec3f> &around = faces.atPosition.at(faces.positionOf.at(vertex));
        normals[vertex] = meanNear(around, unit(own), std::cos(creaseAngle));
    }
    if (geometry->getIndices())
        indexNormalsByVertex(geometry);
    setNormals(geometry, normals);
}

} // namespace osg
