#include "Files/Gltf/Read/qxGltfMeshes.h"

#include "Files/Gltf/Common/qxGltfExtras.h"
#include "Files/Gltf/Read/qxGltfDeformation.h"
#include "Files/Gltf/Read/qxGltfExtensions.h"
#include "Files/Gltf/Read/qxGltfModel.h"
#include "Files/Gltf/Read/qxGltfPrimitive.h"

#include <OpenSG/OSGGeoFunctions.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <algorithm>
#include <cmath>

namespace {

typedef std::vector<float> Floats;

/// While normals are computed.
const qint64 _bytesPerCorner = 300;

bool isFinite(const Floats &values)
{
    return std::all_of(values.begin(), values.end(), [](float v) { return std::isfinite(v); });
}

/// Makes a property of the geometry from every `Width` values in turn.
template <class Property, std::size_t Width, class Make>
auto makeProperty(const Floats &values, const Make &make)
{
    const auto property = Property::create();
    const osg::CPEditor edit(property);
    auto &field = property->getField();
    field.reserve(values.size() / Width);
    for (std::size_t i = 0; i + Width <= values.size(); i += Width)
        field.push_back(make(&values[i]));
    return property;
}

void setPositions(const osg::GeometryPtr &geometry, const Floats &values)
{
    if (!isFinite(values))
        throw qxGltfError(
            qxFileText::tr("%1 holds something that is no finite number").arg("POSITION"));
    geometry->setPositions(makeProperty<osg::GeoPositions3f, 3>(
        values, [](const float *v) { return osg::Pnt3f(v[0], v[1], v[2]); }));
}

void setNormals(const osg::GeometryPtr &geometry, const Floats &values)
{
    geometry->setNormals(makeProperty<osg::GeoNormals3f, 3>(
        values, [](const float *v) { return osg::Vec3f(v[0], v[1], v[2]); }));
}

/// Pictures begin with their bottom row here, with their top row in the file.
osg::GeoTexCoordsPtr makeTexCoords(const Floats &values)
{
    return makeProperty<osg::GeoTexCoords2f, 2>(
        values, [](const float *v) { return osg::Vec2f(v[0], 1.0f - v[1]); });
}

/// As qxRenderGeometry expects them; in 1.8 no array of texture coordinates has four values.
void setTangents(const osg::GeometryPtr &geometry, const Floats &values)
{
    const auto pairs = [&values](std::size_t first) {
        return makeProperty<osg::GeoTexCoords2f, 4>(
            values, [first](const float *v) { return osg::Vec2f(v[first], v[first + 1]); });
    };
    geometry->setTexCoords6(pairs(0));
    geometry->setTexCoords7(pairs(2));
}

/// The sets of texture coordinates that are read, and where they go.
struct TexCoordSet {
    const char *attribute;
    void (osg::Geometry::*set)(const osg::GeoTexCoordsPtr &);
};

const TexCoordSet _texCoordSets[] = {
    {"TEXCOORD_0", &osg::Geometry::setTexCoords},  {"TEXCOORD_1", &osg::Geometry::setTexCoords1},
    {"TEXCOORD_2", &osg::Geometry::setTexCoords2}, {"TEXCOORD_3", &osg::Geometry::setTexCoords3},
    {"TEXCOORD_4", &osg::Geometry::setTexCoords4}, {"TEXCOORD_5", &osg::Geometry::setTexCoords5}};

void setTexCoords(const osg::GeometryPtr &geometry, const qxGltfPrimitive &primitive)
{
    for (const TexCoordSet &set : _texCoordSets) {
        const Floats values = primitive.values(set.attribute, 2);
        if (!values.empty() && isFinite(values))
            ((*geometry).*set.set)(makeTexCoords(values));
    }
}

void setColours(const osg::GeometryPtr &geometry, const qxGltfPrimitive &primitive)
{
    if (!primitive.has("COLOR_0"))
        return;
    if (primitive.components("COLOR_0") == 4) {
        geometry->setColors(
            makeProperty<osg::GeoColors4f, 4>(primitive.values("COLOR_0", 4), [](const float *v) {
                return osg::Color4f(v[0], v[1], v[2], v[3]);
            }));
        return;
    }
    geometry->setColors(
        makeProperty<osg::GeoColors3f, 3>(primitive.values("COLOR_0", 3), [](const float *v) {
            return osg::Color3f(v[0], v[1], v[2]);
        }));
}

void setIndices(const osg::GeometryPtr &geometry, const std::vector<std::uint32_t> &values)
{
    const osg::GeoIndicesUI32Ptr indices = osg::GeoIndicesUI32::create();
    const osg::CPEditor edit(indices);
    indices->getField().reserve(values.size());
    for (const std::uint32_t index : values)
        indices->getField().push_back(index);
    geometry->setIndices(indices);
}

/// Without corners at the end that make up no triangle: OpenSG would take what lies behind them for
/// the missing ones.
std::size_t usableLength(int mode, std::size_t length)
{
    return mode == TINYGLTF_MODE_TRIANGLES ? length - length % 3 : length;
}

/// Declares the whole geometry to be one run of the primitive's mode; the numbers of the modes are
/// those of GL.
void setLayout(const osg::GeometryPtr &geometry, int mode, std::size_t length)
{
    const osg::GeoPTypesUI8Ptr types = osg::GeoPTypesUI8::create();
    const osg::GeoPLengthsUI32Ptr lengths = osg::GeoPLengthsUI32::create();
    const osg::CPEditor editTypes(types);
    const osg::CPEditor editLengths(lengths);
    types->getField().push_back(osg::UInt8(mode));
    lengths->getField().push_back(osg::UInt32(usableLength(mode, length)));
    geometry->setTypes(types);
    geometry->setLengths(lengths);
}

void fill(const osg::GeometryPtr &geometry, const qxGltfPrimitive &primitive)
{
    const osg::CPEditor edit(geometry);
    const Floats positions = primitive.values("POSITION", 3);
    setPositions(geometry, positions);
    if (primitive.hasIndices()) {
        const std::vector<std::uint32_t> indices = primitive.indices();
        setIndices(geometry, indices);
        setLayout(geometry, primitive.mode(), indices.size());
    } else {
        setLayout(geometry, primitive.mode(), positions.size() / 3);
    }
    setTexCoords(geometry, primitive);
    const Floats tangents = primitive.values("TANGENT", 4);
    if (!tangents.empty() && isFinite(tangents))
        setTangents(geometry, tangents);
    setColours(geometry, primitive);
    const Floats normals = primitive.values("NORMAL", 3);
    if (!normals.empty() && isFinite(normals))
        setNormals(geometry, normals);
    else if (primitive.hasTriangles() && !positions.empty())
        osg::calcVertexNormals(geometry);
}

/// Takes from the budget what `fill` is going to need, and answers how much of it is needed only
/// meanwhile: values are there twice for a while, those that replace others a third time.
qint64 takeMemory(qxMemoryBudget &budget, const qxGltfPrimitive &primitive)
{
    qint64 passing = 0;
    const auto take = [&](qint64 count, int components) {
        const qint64 size = components * qint64(sizeof(float));
        budget.take(count, 3 * size);
        passing += 2 * count * size;
    };
    for (const char *name : {"POSITION", "NORMAL", "TANGENT", "COLOR_0"})
        take(primitive.vertices(), primitive.components(name));
    for (const TexCoordSet &set : _texCoordSets)
        take(primitive.vertices(), primitive.components(set.attribute));
    take(primitive.hasIndices() ? primitive.indexCount() : 0, 1);
    if (primitive.has("NORMAL"))
        return passing;
    budget.take(primitive.vertices(), sizeof(osg::Vec3f));
    if (primitive.hasTriangles()) {
        const qint64 corners =
            primitive.hasIndices() ? primitive.indexCount() : primitive.vertices();
        budget.take(corners, _bytesPerCorner);
        passing += corners * _bytesPerCorner;
    }
    return passing;
}

qxGltfGeometryRef makeGeometry(qxGltfModel &model, qxGltfPrimitive::Place place,
                               qxGltfDracoMeshes &meshes)
{
    const qxGltfPrimitive primitive(model, place, meshes);
    if (!primitive.has("POSITION"))
        return qxGltfGeometryRef();
    const qint64 passing = takeMemory(model.budget, primitive);
    const qxGltfGeometryRef geometry(osg::Geometry::create());
    fill(geometry.get(), primitive);
    model.budget.giveBack(passing);
    qxGltfSetDeformation(geometry.get(), primitive, model.budget);
    return geometry;
}

/// The same; what cannot be read for want of an extension is left out with a warning.
qxGltfGeometryRef makePart(qxGltfModel &model, qxGltfPrimitive::Place place,
                           qxGltfDracoMeshes &meshes)
{
    try {
        return makeGeometry(model, place, meshes);
    } catch (const qxGltfError &error) {
        const qxJson &mesh = model.document.json["meshes"][std::size_t(place.mesh)];
        const QString called = qxGltfPrimitiveLabel(place.mesh, mesh, place.primitive);
        if (qxGltfNotUnderstood(model.document.json, "extensionsRequired").isEmpty())
            throw qxGltfError(called + ": " + error.reason());
        model.warnings << qxFileText::tr("%1 is left out: %2").arg(called, error.reason());
        return qxGltfGeometryRef();
    }
}

long long trianglesOf(const qxJson &primitive, const qxJson &document)
{
    const int positions = qxGltfIndex(qxGltfMember(primitive, "attributes"), "POSITION");
    const int indices = qxGltfIndex(primitive, "indices");
    const int mode = qxGltfMember(primitive, "mode").is_null() ? TINYGLTF_MODE_TRIANGLES
                                                               : qxGltfIndex(primitive, "mode");
    if (positions < 0 || mode < TINYGLTF_MODE_TRIANGLES)
        return 0;
    const std::size_t counted = std::size_t(indices >= 0 ? indices : positions);
    const long long count = qxGltfSection(document, "accessors")[counted]["count"].get<long long>();
    return mode == TINYGLTF_MODE_TRIANGLES ? count / 3 : std::max(0LL, count - 2);
}

void setMaterial(const osg::GeometryPtr &geometry, const qxGltfMaterialRef &material)
{
    const osg::CPEditor edit(geometry, osg::Geometry::MaterialFieldMask);
    geometry->setMaterial(material.get());
}

/// Names the geometry after its mesh, unless the primitive says otherwise.
void namePart(const osg::GeometryPtr &geometry, const qxJson &mesh, std::size_t number)
{
    const qxJson &name = qxGltfMember(mesh, "name");
    const qxJson &extras = qxGltfMember(mesh["primitives"][number - 1], "extras");
    const qxJson &own = qxGltfMember(extras, qxGltfKeys::partName);
    const std::string shown = name.is_string() ? name.get<std::string>() : std::string();
    const std::string byMesh = qxGltfPartName(name.is_string() ? shown.c_str() : nullptr, number);
    if (own.is_string() || name.is_string() || number > 1)
        osg::setName(geometry, own.is_string() ? own.get<std::string>() : byMesh);
}

} // namespace

std::string qxGltfPartName(const char *mesh, std::size_t number)
{
    if (number == 1)
        return mesh ? mesh : "";
    const std::string name = mesh ? mesh : osg::Geometry::getClassType().getCName();
    return name + ' ' + std::to_string(number);
}

std::vector<qxGltfMeshParts> qxGltfMeshes(qxGltfModel &model,
                                          const std::vector<qxGltfMaterialRef> &materials)
{
    std::vector<qxGltfMeshParts> meshes;
    qxGltfDracoMeshes compressed(model);
    for (const tinygltf::Mesh &mesh : model.typed.meshes) {
        const qxJson &json = model.document.json["meshes"][meshes.size()];
        qxGltfMeshParts parts;
        for (const tinygltf::Primitive &primitive : mesh.primitives) {
            parts.push_back(makePart(model, {int(meshes.size()), int(parts.size())}, compressed));
            if (parts.back() == osg::NullFC)
                continue;
            if (primitive.material >= 0)
                setMaterial(parts.back().get(), materials[std::size_t(primitive.material)]);
            namePart(parts.back().get(), json, parts.size());
        }
        meshes.push_back(std::move(parts));
    }
    return meshes;
}

long long qxGltfTriangles(const qxJson &document)
{
    long long triangles = 0;
    for (const qxJson &mesh : qxGltfSection(document, "meshes")) {
        for (const qxJson &primitive : qxGltfSection(mesh, "primitives"))
            triangles += trianglesOf(primitive, document);
    }
    return triangles;
}
