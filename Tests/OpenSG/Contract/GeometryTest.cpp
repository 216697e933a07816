#include "Contract.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGTriangleIterator.h>

#include <vector>

using namespace osg;

namespace {

/// The unit square: its corners in this order, as one primitive.
GeometryRefPtr square(UInt8 primitive, const std::vector<UInt32> &order, bool indexed)
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
std::pair<int, Vec3f> surfaceOf(const GeometryPtr &geometry)
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

} // namespace

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
    EXPECT_EQ(surfaceOf(square(GL_LINES, {0, 1, 2, 3}, false)).first, 0);
    EXPECT_EQ(surfaceOf(held<Geometry>()).first, 0);
}

TEST(Properties, AreReadAndWrittenWithoutKnowingTheirFormat)
{
    const auto owner = held<GeoIndicesUI16>();
    const GeoIndicesPtr indices = owner.get();
    EXPECT_EQ(indices->getData(), nullptr);
    indices->addValue(3);
    indices->push_back(70);
    indices->insertValue(1, 0);
    indices->setValue(5, 1);
    EXPECT_EQ(owner->getField().getValues(), (std::vector<UInt16>{1, 5, 70}));
    EXPECT_EQ(indices->getFormat(), UInt32(GL_UNSIGNED_SHORT));
    EXPECT_EQ(reinterpret_cast<const UInt16 *>(indices->getData())[1], 5);
    EXPECT_EQ(GeoIndicesUI32Ptr::dcast(indices), NullFC);
}
