#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGeoFunctions.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGMaterialPool.h>
#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGSwitchMaterial.h>
#include <OpenSG/OSGTriangleIterator.h>

#include <gtest/gtest.h>

#include <thread>

using namespace osg;

/// A run of one primitive, with fewer vertices than it has, if so wished.
static GeometryPtr run(UInt8 primitive, UInt32 length, UInt32 vertices)
{
    const GeometryPtr geometry = Geometry::create();
    geometry->setTypes(GeoPTypesUI8::create());
    geometry->setLengths(GeoPLengthsUI32::create());
    geometry->setPositions(GeoPositions3f::create());
    geometry->getTypes()->push_back(primitive);
    geometry->getLengths()->push_back(length);
    geometry->getPositions()->resize(vertices);
    return geometry;
}

static void walk(const GeometryPtr &geometry)
{
    for (auto it = geometry->beginTriangles(); it != geometry->endTriangles(); ++it) {}
}

/// Gives a geometry a material that only its present one holds.
static void exchange()
{
    const GeometryPtr geometry = Geometry::create();
    const SwitchMaterialPtr around = SwitchMaterial::create();
    around->addMaterial(SimpleMaterial::create());
    geometry->setMaterial(around);
    geometry->setMaterial(around->getMaterial(0));
}

template <class Material>
static void editRing(UInt32 length)
{
    std::vector<typename Material::Ptr> ring;
    for (UInt32 i = 0; i < length; ++i)
        ring.push_back(Material::create());
    for (UInt32 i = 0; i < length; ++i)
        ring[i]->addMaterial(ring[(i + 1) % length]);
    endEditCP(ring.front());
}

const struct Misuse {
    const char *name;
    void (*commit)();
    const char *message;
    bool isStarted = true;
} misuses[] = {
    {"LacksCornersOfATriangle", [] { walk(run(GL_TRIANGLES, 4, 4)); }, "lacks corners"},
    {"LacksCornersOfAQuad", [] { walk(run(GL_QUADS, 6, 6)); }, "lacks corners"},
    {"HasNormalsWithoutCorners", [] { calcVertexNormals(run(GL_TRIANGLES, 5, 5)); }, "lacks"},
    {"GoesBeyondTheVertices", [] { walk(run(GL_TRIANGLES, 6, 5)); }, "beyond the vertices"},
    {"TakesWhatOnlyTheOldValueHolds", exchange, "went with the old one"},
    {"ShowsItself", [] { editRing<SwitchMaterial>(1); }, "shows itself"},
    {"ShowsItselfInAnother", [] { editRing<SwitchMaterial>(3); }, "shows itself"},
    {"DrawsItself", [] { editRing<MultiPassMaterial>(2); }, "shows itself"},
    {"IsTakenOutOfNoPlace", [] { Node::create()->subChild(UInt32(0)); }, "no child at this index"},
    {"IsPutBehindTheEnd", [] { Node::create()->insertChild(1, Node::create()); },
     "beyond the last"},
    {"IsTakenOutOfAPool", [] { MaterialPool::create()->sub(UInt32(0)); }, "no material at this"},
    {"HasTheNameOfAnotherType", [] { FieldContainerType("Group", "NodeCore"); },
     "two types with the name Group"},
    {"IsMadeBeforeTheStart", [] { Group::createEmpty(); }, "before osgInit", false},
#ifndef NDEBUG
    {"IsReadInAnotherThread",
     [] {
         const GroupPtr group = Group::create();
         std::thread([&group] { group->getTypeId(); }).join();
     },
     "osgInit"},
#endif
};

// Else addresses would be in the names of the tests.
void PrintTo(const Misuse &misuse, std::ostream *out)
{
    *out << misuse.message;
}

class MisuseTest : public testing::TestWithParam<Misuse> {};

TEST_P(MisuseTest, EndsTheProgramAndSaysWhy)
{
    const auto commit = [] {
        if (GetParam().isStarted)
            osgInit(0, nullptr);
        GetParam().commit();
    };
    EXPECT_DEATH(commit(), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(WhatEndsInRuin, MisuseTest, testing::ValuesIn(misuses),
                         [](const auto &row) { return std::string(row.param.name); });
