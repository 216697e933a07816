#include "Contract.h"

#include <OpenSG/OSGGeoFunctions.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGTriangleIterator.h>

#include <cmath>
#include <vector>

using namespace osg;

/// The unit square: its corners in this order, as one primitive.
static GeometryRefPtr square(UInt8 primitive, const std::vector<UInt32> &order, bool indexed)
{
    const Pnt3f corners[] = {Pnt3f(0, 0, 0), Pnt3f(1, 0, 0), Pnt3f(1, 1, 0), Pnt3f(0, 1, 0)};
    const auto geometry = held<Geometry>();
    geometry->setPositions(GeoPositions3f::create());
    geometry->setTypes(GeoPTypesUI8::create());
    geometry->setLengths(GeoPLengthsUI32::create());
    geometry->getTypes()->addValue(primitive);
    geometry->getLengths()->addValue(UInt32(order.size()));
    if (indexed)
        geometry->setIndices(GeoIndicesUI32::create());
    for (UInt32 corner : order)
        if (indexed)
            geometry->getIndices()->addValue(corner);
    for (UInt32 corner : indexed ? std::vector<UInt32>{0, 1, 2, 3} : order)
        geometry->getPositions()->push_back(corners[corner]);
    return geometry;
}

/// The number of triangles and the area, which points to where the surface faces.
static std::pair<int, Vec3f> surfaceOf(const GeometryPtr &geometry)
{
    std::pair<int, Vec3f> surface;
    for (TriangleIterator it = geometry->beginTriangles(); it != geometry->endTriangles(); ++it) {
        const Vec3f along = it.getPosition(1) - it.getPosition(0);
        const Vec3f across = it.getPosition(2) - it.getPosition(0);
        surface.second += along.cross(across) * 0.5f;
        ++surface.first;
    }
    return surface;
}

TEST(Geometries, TriangulateEveryPrimitive)
{
    const std::pair<UInt8, std::vector<UInt32>> primitives[] = {
        {GL_TRIANGLES, {0, 1, 2, 0, 2, 3}}, {GL_TRIANGLE_STRIP, {0, 1, 3, 2}},
        {GL_TRIANGLE_FAN, {0, 1, 2, 3}},    {GL_QUADS, {0, 1, 2, 3}},
        {GL_QUAD_STRIP, {0, 1, 3, 2}},      {GL_POLYGON, {0, 1, 2, 3}},
    };
    for (const auto &[primitive, order] : primitives) {
        for (bool indexed : {false, true}) {
            const auto [triangles, area] = surfaceOf(square(primitive, order, indexed));
            EXPECT_EQ(triangles, 2) << int(primitive) << indexed;
            EXPECT_EQ(area, Vec3f(0, 0, 1)) << int(primitive) << indexed;
        }
    }
    // What is left of a quad is a triangle; nothing is left of a triangle without three corners.
    EXPECT_EQ(surfaceOf(square(GL_QUADS, {0, 1, 2, 3, 0, 1, 2}, true)).first, 3);
    EXPECT_EQ(surfaceOf(square(GL_QUAD_STRIP, {0, 1, 3, 2, 1}, true)).first, 3);
    EXPECT_EQ(surfaceOf(square(GL_TRIANGLES, {0, 1}, true)).first, 0);
    EXPECT_EQ(surfaceOf(square(GL_LINES, {0, 1, 2, 3}, false)).first, 0);
    EXPECT_EQ(surfaceOf(held<Geometry>()).first, 0);
}

TEST(Properties, AreUsedWithoutKnowingTheirFormat)
{
    const auto owner = held<GeoIndicesUI16>();
    const GeoIndicesPtr indices = owner.get();
    EXPECT_EQ(indices->getData(), nullptr);
    indices->addValue(3);
    indices->push_back(70);
    EXPECT_TRUE(owner->insertValue(1, 0));
    indices->setValue(5, 1);
    EXPECT_EQ(owner->getField().getValues(), (std::vector<UInt16>{1, 5, 70}));
    EXPECT_EQ(indices->getFormat(), UInt32(GL_UNSIGNED_SHORT));
    EXPECT_EQ(reinterpret_cast<const UInt16 *>(indices->getData())[1], 5);
    EXPECT_EQ(GeoIndicesUI32Ptr::dcast(indices), NullFC);
}

TEST(Properties, LoseTheAlphaOfColoursThroughTheCommonInterface)
{
    const auto owner = held<GeoColors4f>();
    const GeoColorsPtr colours = owner.get();
    owner->getFieldPtr()->push_back(Color4f(0.1f, 0.2f, 0.3f, 0.4f));
    EXPECT_EQ(colours->getValue(0), Color3f(0.1f, 0.2f, 0.3f));
    EXPECT_EQ(colours->getDimension(), 4u);
    EXPECT_EQ(colours->getFormatSize(), sizeof(Real32));
    EXPECT_EQ(colours->getStride(), 0u);
    colours->resize(3);
    EXPECT_EQ(colours->size(), 3u);
    colours->clear();
    EXPECT_EQ(colours->getSize(), 0u);
}

TEST(Geometries, ShareTheirMaterialAloneWithAClone)
{
    const GeometryRefPtr geometry = square(GL_QUADS, {0, 1, 2, 3}, true);
    EXPECT_TRUE(geometry->getMaterial() == NullFC && geometry->getNormals() == NullFC);
    const MaterialDrawablePtr drawable = geometry.get();
    drawable->setMaterial(SimpleMaterial::create());
    const GeometryRefPtr clone(geometry->clone());
    geometry->getPositions()->setValue(Pnt3f(9, 9, 9), 0);
    EXPECT_EQ(clone->getMaterial(), geometry->getMaterial());
    EXPECT_EQ(clone->getMaterial().getRefCount(), 2);
    EXPECT_NE(clone->getIndices(), geometry->getIndices());
    EXPECT_EQ(surfaceOf(clone).second, Vec3f(0, 0, 1));
}

TEST(Geometries, CalculateSmoothNormalsPerVertex)
{
    const GeometryRefPtr geometry = square(GL_TRIANGLES, {0, 1, 2, 0, 2, 3}, true);
    geometry->getPositions()->setValue(Pnt3f(0, 1, 1), 3); // Folds it along the diagonal.
    calcVertexNormals(geometry);
    ASSERT_NE(geometry->getNormals(), NullFC);
    TriangleIterator first = geometry->beginTriangles(), second = first;
    ++second;
    const Vec3f atFold = first.getNormal(0);
    EXPECT_EQ(second.getNormal(0), atFold);
    EXPECT_EQ(first.getNormal(1), Vec3f(0, 0, 1));
    EXPECT_TRUE(second.getNormal(2).equals(Vec3f(1, -1, 1) * 0.57735f, 1e-4f));
    // The mean of both sides, however large each is.
    EXPECT_TRUE(atFold.equals(Vec3f(0.32506f, -0.32506f, 0.88808f), 1e-4f));
}
