#include <OpenSG/OSGSimpleGeometry.h>

#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGSimpleMaterial.h>

namespace osg {

namespace {

/// The arrays of a geometry of triangles, while it is put together.
struct TriangleArrays {
    GeoPositions3fPtr positions = GeoPositions3f::create();
    GeoNormals3fPtr normals = GeoNormals3f::create();
    GeoTexCoords2fPtr texCoords = GeoTexCoords2f::create();
    GeoIndicesUI32Ptr indices = GeoIndicesUI32::create();

    /// A flat grid seen from the tip of `right x up`: from \a corner along both sides.
    void addGrid(const Pnt3f &corner, const Vec3f &right, const Vec3f &up, UInt32 columns,
                 UInt32 rows)
    {
        const UInt32 first = positions->size();
        Vec3f normal = right.cross(up);
        normal.normalize();
        for (UInt32 i = 0; i < (columns + 1) * (rows + 1); ++i) {
            const Real32 u = Real32(i % (columns + 1)) / Real32(columns);
            const Real32 v = Real32(i / (columns + 1)) / Real32(rows);
            positions->push_back(corner + right * u + up * v);
            normals->push_back(normal);
            texCoords->push_back(Vec2f(u, v));
        }
        for (UInt32 i = 0; i < columns * rows; ++i)
            addCell(first + i % columns + i / columns * (columns + 1), columns + 1);
    }

    /// The two triangles of a cell of a grid.
    void addCell(UInt32 corner, UInt32 rowLength)
    {
        const UInt32 above = corner + rowLength;
        for (const UInt32 index : {corner, corner + 1, above + 1, corner, above + 1, above})
            indices->push_back(index);
    }

    GeometryPtr toGeometry() const
    {
        const GeoPTypesUI8Ptr types = GeoPTypesUI8::create();
        const GeoPLengthsUI32Ptr lengths = GeoPLengthsUI32::create();
        types->push_back(GL_TRIANGLES);
        lengths->push_back(indices->size());
        const GeometryPtr geometry = Geometry::create();
        const CPEditor editor(geometry);
        geometry->setTypes(types);
        geometry->setLengths(lengths);
        geometry->setPositions(positions);
        geometry->setNormals(normals);
        geometry->setTexCoords(texCoords);
        geometry->setIndices(indices);
        geometry->setMaterial(getDefaultMaterial());
        return geometry;
    }
};

MaterialPtr makeSand(bool lit)
{
    const SimpleMaterialPtr material = SimpleMaterial::create();
    if (!material)
        return NullFC;
    const CPEditor editor(material);
    material->setDiffuse(lit ? Color3f(.7f, .7f, .5f) : Color3f(1, 1, .5f));
    material->setLit(lit);
    if (lit) {
        material->setAmbient(Color3f(.1f, .1f, .1f));
        material->setSpecular(Color3f(1, 1, 1));
        material->setShininess(20);
    }
    addRefCP(material);
    return material;
}

} // namespace

GeometryPtr makeBoxGeo(Real32 xsize, Real32 ysize, Real32 zsize, UInt16 hor, UInt16 vert,
                       UInt16 depth)
{
    if (hor == 0 || vert == 0 || depth == 0)
        return NullFC;
    const Vec3f x(xsize, 0, 0), y(0, ysize, 0), z(0, 0, zsize);
    const Pnt3f lo = Pnt3f() - (x + y + z) * 0.5f;
    TriangleArrays arrays;
    arrays.addGrid(lo + z, x, y, hor, vert);
    arrays.addGrid(lo + x, -x, y, hor, vert);
    arrays.addGrid(lo + x + z, -z, y, depth, vert);
    arrays.addGrid(lo, z, y, depth, vert);
    arrays.addGrid(lo + y + z, x, -z, hor, depth);
    arrays.addGrid(lo, x, z, hor, depth);
    return arrays.toGeometry();
}

NodePtr makeBox(Real32 xsize, Real32 ysize, Real32 zsize, UInt16 hor, UInt16 vert, UInt16 depth)
{
    return makeNodeFor(makeBoxGeo(xsize, ysize, zsize, hor, vert, depth));
}

MaterialPtr getDefaultMaterial()
{
    static MaterialPtr material;
    if (!material)
        material = makeSand(true);
    return material;
}

MaterialPtr getDefaultUnlitMaterial()
{
    static MaterialPtr material;
    if (!material)
        material = makeSand(false);
    return material;
}

} // namespace osg
