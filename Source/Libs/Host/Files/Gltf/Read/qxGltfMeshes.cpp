#include "Files/Gltf/Read/qxGltfMeshes.h"

#include "Files/Gltf/Common/qxGltfExtras.h"
#include "Files/Gltf/Read/qxGltfAccessors.h"
#include "Files/Gltf/Read/qxGltfElements.h"
#include "Files/Gltf/Read/qxGltfModel.h"

#include <OpenSG/OSGGeoFunctions.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <algorithm>
#include <cmath>

namespace {

typedef std::vector<float> Floats;

/// While normals are computed.
const qint64 _bytesPerCorner = 300;

int attributeOf(const tinygltf::Primitive &primitive, const char *name)
{
    const auto found = primitive.attributes.find(name);
    return found == primitive.attributes.end() ? -1 : found->second;
}

int componentsOf(const qxGltfModel &model, int accessor)
{
    return qxGltfAccessor::of(model.document.json, accessor).elements.components;
}

/// The values of an attribute for every vertex; empty when the primitive has no such attribute.
Floats attribute(const qxGltfModel &model, const tinygltf::Primitive &primitive, const char *name,
                 int components)
{
    const int accessor = attributeOf(primitive, name);
    if (accessor < 0)
        return Floats();
    if (componentsOf(model, accessor) != components)
        throw qxGltfError(qxFileText::tr("%1 has the wrong number of components").arg(name));
    const int positions = attributeOf(primitive, "POSITION");
    const std::vector<tinygltf::Accessor> &all = model.typed.accessors;
    if (all[std::size_t(accessor)].count != all[std::size_t(positions)].count)
        throw qxGltfError(qxFileText::tr("%1 is not there for every vertex").arg(name));
    return qxGltfFloats(model, accessor);
}

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
void setTexCoords(const osg::GeometryPtr &geometry, const Floats &values)
{
    geometry->setTexCoords(makeProperty<osg::GeoTexCoords2f, 2>(
        values, [](const float *v) { return osg::Vec2f(v[0], 1.0f - v[1]); }));
}

/// As qxRenderGeometry expects them; in 1.8 no array of texture coordinates has four values.
void setTangents(const osg::GeometryPtr &geometry, const Floats &values)
{
    const auto pairs = [&values](std::size_t first) {
        return makeProperty<osg::GeoTexCoords2f, 4>(values, [first](const float *v) {
            return osg::Vec2f(v[first], v[first + 1]);
        });
    };
    geometry->setTexCoords6(pairs(0));
    geometry->setTexCoords7(pairs(2));
}

void setColours(const osg::GeometryPtr &geometry, const qxGltfModel &model,
                const tinygltf::Primitive &primitive)
{
    const int accessor = attributeOf(primitive, "COLOR_0");
    if (accessor < 0)
        return;
    if (componentsOf(model, accessor) == 4) {
        geometry->setColors(makeProperty<osg::GeoColors4f, 4>(
            attribute(model, primitive, "COLOR_0", 4),
            [](const float *v) { return osg::Color4f(v[0], v[1], v[2], v[3]); }));
        return;
    }
    geometry->setColors(makeProperty<osg::GeoColors3f, 3>(
        attribute(model, primitive, "COLOR_0", 3),
        [](const float *v) { return osg::Color3f(v[0], v[1], v[2]); }));
}

void setIndices(const osg::GeometryPtr &geometry, const std::vector<std::uint32_t> &values,
                std::size_t vertices)
{
    for (const std::uint32_t index : values) {
        if (index >= vertices)
            throw qxGltfError(
                qxFileText::tr("index %1 is used, there are %2 vertices").arg(index).arg(vertices));
    }
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

bool hasTriangles(const tinygltf::Primitive &primitive)
{
    return primitive.mode >= TINYGLTF_MODE_TRIANGLES;
}

void fill(const osg::GeometryPtr &geometry, const qxGltfModel &model,
          const tinygltf::Primitive &primitive)
{
    const osg::CPEditor edit(geometry);
    const Floats positions = attribute(model, primitive, "POSITION", 3);
    const std::size_t vertices = positions.size() / 3;
    setPositions(geometry, positions);
    if (primitive.indices >= 0) {
        const std::vector<std::uint32_t> indices = qxGltfIndices(model, primitive.indices);
        setIndices(geometry, indices, vertices);
        setLayout(geometry, primitive.mode, indices.size());
    } else {
        setLayout(geometry, primitive.mode, vertices);
    }
    const Floats texCoords = attribute(model, primitive, "TEXCOORD_0", 2);
    if (!texCoords.empty() && isFinite(texCoords))
        setTexCoords(geometry, texCoords);
    const Floats tangents = attribute(model, primitive, "TANGENT", 4);
    if (!tangents.empty() && isFinite(tangents))
        setTangents(geometry, tangents);
    setColours(geometry, model, primitive);
    const Floats normals = attribute(model, primitive, "NORMAL", 3);
    if (!normals.empty() && isFinite(normals))
        setNormals(geometry, normals);
    else if (hasTriangles(primitive) && vertices > 0)
        osg::calcVertexNormals(geometry);
}

/// Takes from the budget what `fill` is going to need, and answers how much of it is needed only
/// meanwhile: values are there twice for a while, those that replace others a third time.
qint64 takeMemory(qxGltfModel &model, const tinygltf::Primitive &primitive)
{
    qint64 passing = 0;
    const auto take = [&](int accessor) {
        const qxGltfElements elements = qxGltfAccessor::of(model.document.json, accessor).elements;
        const qint64 size = elements.components * qint64(sizeof(float));
        model.budget.take(elements.count, 3 * size);
        passing += 2 * elements.count * size;
        return elements.count;
    };
    for (const char *name : {"NORMAL", "TANGENT", "TEXCOORD_0", "COLOR_0"}) {
        if (attributeOf(primitive, name) >= 0)
            take(attributeOf(primitive, name));
    }
    qint64 corners = take(attributeOf(primitive, "POSITION"));
    if (attributeOf(primitive, "NORMAL") < 0)
        model.budget.take(corners, sizeof(osg::Vec3f));
    if (primitive.indices >= 0)
        corners = take(primitive.indices);
    if (attributeOf(primitive, "NORMAL") < 0 && hasTriangles(primitive)) {
        model.budget.take(corners, _bytesPerCorner);
        passing += corners * _bytesPerCorner;
    }
    return passing;
}

qxGltfGeometryRef makeGeometry(qxGltfModel &model, const tinygltf::Primitive &primitive,
                               const std::vector<qxGltfMaterialRef> &materials)
{
    if (attributeOf(primitive, "POSITION") < 0)
        return qxGltfGeometryRef();
    const qint64 passing = takeMemory(model, primitive);
    const qxGltfGeometryRef geometry(osg::Geometry::create());
    fill(geometry.get(), model, primitive);
    model.budget.giveBack(passing);
    if (primitive.material >= 0) {
        const osg::CPEditor edit(geometry.get(), osg::Geometry::MaterialFieldMask);
        geometry->setMaterial(materials[std::size_t(primitive.material)].get());
    }
    return geometry;
}

long long trianglesOf(const qxGltfModel &model, const tinygltf::Primitive &primitive)
{
    const int positions = attributeOf(primitive, "POSITION");
    const int counted = primitive.indices >= 0 ? primitive.indices : positions;
    if (positions < 0 || !hasTriangles(primitive))
        return 0;
    const long long count = (long long)(model.typed.accessors[std::size_t(counted)].count);
    return primitive.mode == TINYGLTF_MODE_TRIANGLES ? count / 3 : std::max(0LL, count - 2);
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
    for (const tinygltf::Mesh &mesh : model.typed.meshes) {
        const qxJson &json = model.document.json["meshes"][meshes.size()];
        qxGltfMeshParts parts;
        for (const tinygltf::Primitive &primitive : mesh.primitives) {
            const QString called =
                qxGltfPrimitiveLabel(int(meshes.size()), json, int(parts.size()));
            try {
                parts.push_back(makeGeometry(model, primitive, materials));
            } catch (const qxGltfError &error) {
                throw qxGltfError(called + ": " + error.reason());
            }
            if (parts.back() != osg::NullFC)
                namePart(parts.back().get(), json, parts.size());
        }
        meshes.push_back(std::move(parts));
    }
    return meshes;
}

long long qxGltfTriangles(const qxGltfModel &model)
{
    long long triangles = 0;
    for (const tinygltf::Mesh &mesh : model.typed.meshes) {
        for (const tinygltf::Primitive &primitive : mesh.primitives)
            triangles += trianglesOf(model, primitive);
    }
    return triangles;
}
