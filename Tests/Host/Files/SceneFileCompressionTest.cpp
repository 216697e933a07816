#include "Files/SceneFileFixture.h"
#include "Files/qxMemoryBudget.h"

#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGTriangleIterator.h>

#include <QDir>

#include <draco/compression/expert_encode.h>
#include <meshoptimizer.h>

#include <cmath>
#include <random>
#include <set>
#include <sstream>

/// A curved sheet with all that vertices can have, plain and compressed in every way.
class SceneFileCompressionTest : public SceneFileFixture {
protected:
    static const int side = 7;
    static constexpr int vertices = side * side;

    SceneFileCompressionTest()
    {
        for (int i = 0; i < vertices; ++i) {
            const float x = float(i % side) / (side - 1);
            const float y = float(i / side) / (side - 1);
            const float slope = 0.5f * x;
            const float length = std::sqrt(1 + slope * slope);
            positions.insert(positions.end(), {x, y, 0.25f * x * x});
            normals.insert(normals.end(), {-slope / length, 0, 1 / length});
            places.insert(places.end(), {x, y});
            colours.insert(colours.end(), {quint8(i), quint8(2 * i), quint8(255 - i), 255});
        }
        for (int i = 0; i < vertices - side; ++i) {
            if (i % side == side - 1)
                continue;
            const auto at = [i](int more) { return quint16(i + more); };
            for (const int more : {0, 1, side, side, 1, side + 1})
                indices.push_back(at(more));
        }
    }

    template <class Value>
    static QByteArray bytesOfAll(const std::vector<Value> &values)
    {
        return {reinterpret_cast<const char *>(values.data()), int(values.size() * sizeof(Value))};
    }
    /// Puts bytes into the first buffer and answers where.
    int append(qxJson &json, const QByteArray &bytes)
    {
        const int begin = data.size();
        data += bytes + QByteArray((4 - bytes.size() % 4) % 4, '\0');
        json["bufferViews"].push_back(
            {{"buffer", 0}, {"byteOffset", begin}, {"byteLength", bytes.size()}});
        return int(json["bufferViews"].size()) - 1;
    }
    /// Names an accessor of the sheet's attribute, with or without data.
    void addAttribute(qxJson &json, const char *name, const char *type, int component, int view)
    {
        qxJson accessor = {{"componentType", component}, {"count", vertices}, {"type", type}};
        if (component != 5126)
            accessor["normalized"] = true;
        if (view >= 0)
            accessor["bufferView"] = view;
        json["meshes"][0]["primitives"][0]["attributes"][name] = json["accessors"].size();
        json["accessors"].push_back(accessor);
    }
    void addIndices(qxJson &json, int view)
    {
        qxJson accessor = {{"componentType", 5123}, {"count", indices.size()}, {"type", "SCALAR"}};
        if (view >= 0)
            accessor["bufferView"] = view;
        json["meshes"][0]["primitives"][0]["indices"] = json["accessors"].size();
        json["accessors"].push_back(accessor);
    }
    qxJson emptySheet()
    {
        data.clear();
        qxJson json = sample("square");
        json["accessors"] = qxJson::array();
        json["bufferViews"] = qxJson::array();
        return json;
    }
    /// Ends a scene: what was appended becomes its buffer.
    qxJson &finish(qxJson &json) const
    {
        json["buffers"][0] = {{"byteLength", data.size()},
                              {"uri", "data:;base64," + data.toBase64().toStdString()}};
        return json;
    }
    void addAll(qxJson &json, bool hasData)
    {
        const auto view = [&](const QByteArray &bytes) {
            return hasData ? append(json, bytes) : -1;
        };
        addAttribute(json, "POSITION", "VEC3", 5126, view(bytesOfAll(positions)));
        addAttribute(json, "NORMAL", "VEC3", 5126, view(bytesOfAll(normals)));
        addAttribute(json, "TEXCOORD_0", "VEC2", 5126, view(bytesOfAll(places)));
        addAttribute(json, "TEXCOORD_1", "VEC2", 5126, view(bytesOfAll(places)));
        addAttribute(json, "COLOR_0", "VEC4", 5121, view(bytesOfAll(colours)));
        addIndices(json, view(bytesOfAll(indices)));
    }
    qxJson plain()
    {
        qxJson json = emptySheet();
        addAll(json, true);
        return finish(json);
    }

    /// Compresses every buffer view of the plain sheet. Its own data stay in a second buffer.
    qxJson meshopt(const char *indexMode = "TRIANGLES")
    {
        qxJson json = plain();
        const QByteArray from = data;
        data.clear();
        const int strides[] = {12, 12, 8, 8, 4, 2};
        for (std::size_t i = 0; i < 6; ++i) {
            qxJson &view = json["bufferViews"][i];
            const QByteArray part =
                from.mid(view["byteOffset"].get<int>(), view["byteLength"].get<int>());
            const char *const mode = i < 5 ? "ATTRIBUTES" : indexMode;
            const QByteArray small = encoded(part, mode, strides[i]);
            view["buffer"] = 1;
            view["extensions"]["EXT_meshopt_compression"] = {{"buffer", 0},
                                                             {"byteOffset", data.size()},
                                                             {"byteLength", small.size()},
                                                             {"byteStride", strides[i]},
                                                             {"count", part.size() / strides[i]},
                                                             {"mode", mode}};
            data += small;
        }
        json["buffers"][1] = {{"byteLength", from.size()},
                              {"extensions", {{"EXT_meshopt_compression", {{"fallback", true}}}}}};
        json["extensionsRequired"] = {"EXT_meshopt_compression"};
        return finish(json);
    }
    static QByteArray encoded(const QByteArray &part, const QByteArray &mode, int stride)
    {
        const std::size_t count = std::size_t(part.size() / stride);
        QByteArray to(10 * part.size() + 1000, '\0');
        auto *const out = reinterpret_cast<unsigned char *>(to.data());
        const auto *const numbers = reinterpret_cast<const quint16 *>(part.constData());
        const std::size_t room = std::size_t(to.size());
        if (mode == "ATTRIBUTES")
            to.resize(int(meshopt_encodeVertexBuffer(out, room, part.constData(), count,
                                                     std::size_t(stride))));
        else if (mode == "TRIANGLES")
            to.resize(int(meshopt_encodeIndexBuffer(out, room, numbers, count)));
        else
            to.resize(int(meshopt_encodeIndexSequence(out, room, numbers, count)));
        return to;
    }

    /// The sheet as one compressed mesh; the ids of its attributes are 10 and following.
    QByteArray dracoBytes(int method)
    {
        draco::Mesh mesh;
        mesh.set_num_points(vertices);
        const auto add = [&mesh](const void *values, draco::DataType type, int components) {
            draco::GeometryAttribute attribute;
            const int size = components * draco::DataTypeLength(type);
            attribute.Init(components == 3 && mesh.num_attributes() == 0
                               ? draco::GeometryAttribute::POSITION
                               : draco::GeometryAttribute::GENERIC,
                           nullptr, quint8(components), type, false, size, 0);
            const int id = mesh.AddAttribute(attribute, true, vertices);
            for (int i = 0; i < vertices; ++i)
                mesh.attribute(id)->SetAttributeValue(draco::AttributeValueIndex(unsigned(i)),
                                                      static_cast<const char *>(values) + i * size);
            mesh.attribute(id)->set_unique_id(unsigned(10 + id));
        };
        add(positions.data(), draco::DT_FLOAT32, 3);
        add(normals.data(), draco::DT_FLOAT32, 3);
        add(places.data(), draco::DT_FLOAT32, 2);
        add(places.data(), draco::DT_FLOAT32, 2);
        add(colours.data(), draco::DT_UINT8, 4);
        for (std::size_t i = 0; i < indices.size(); i += 3)
            mesh.AddFace({draco::PointIndex(indices[i]), draco::PointIndex(indices[i + 1]),
                          draco::PointIndex(indices[i + 2])});
        draco::ExpertEncoder encoder(mesh);
        encoder.SetEncodingMethod(method);
        draco::EncoderBuffer buffer;
        EXPECT_TRUE(encoder.EncodeToBuffer(&buffer).ok());
        return {buffer.data(), int(buffer.size())};
    }
    qxJson draco(int method = draco::MESH_EDGEBREAKER_ENCODING, bool hasData = false)
    {
        qxJson json = emptySheet();
        addAll(json, hasData);
        qxJson &primitive = json["meshes"][0]["primitives"][0];
        primitive["extensions"]["KHR_draco_mesh_compression"] = {
            {"bufferView", append(json, dracoBytes(method))},
            {"attributes",
             {{"POSITION", 10},
              {"NORMAL", 11},
              {"TEXCOORD_0", 12},
              {"TEXCOORD_1", 13},
              {"COLOR_0", 14}}}};
        if (!hasData)
            json["extensionsRequired"] = {"KHR_draco_mesh_compression"};
        return finish(json);
    }

    /// All corners of the triangles with what they have, in any order.
    static std::multiset<std::string> corners(const osg::GeometryPtr &geometry)
    {
        std::multiset<std::string> all;
        const osg::GeoColors4fPtr tints = osg::GeoColors4fPtr::dcast(geometry->getColors());
        for (auto i = geometry->beginTriangles(); i != geometry->endTriangles(); ++i) {
            for (int k = 0; k < 3; ++k) {
                const osg::UInt32 at = osg::UInt32(i.getPositionIndex(k));
                const osg::Vec2f place = geometry->getTexCoords()->getValue(at);
                const osg::Vec2f other = geometry->getTexCoords1()->getValue(at);
                std::ostringstream text;
                const auto put = [&text](float value) {
                    text << ' ' << std::round(value * 200) / 200 + 0.0f;
                };
                for (int c = 0; c < 3; ++c) {
                    put(i.getPosition(k)[c]);
                    put(i.getNormal(k)[c]);
                    put(tints->getField()[at].getValuesRGBA()[c]);
                }
                for (const float value : {place[0], place[1], other[0], other[1]})
                    put(value);
                all.insert(text.str());
            }
        }
        return all;
    }

    std::vector<float> positions;
    std::vector<float> normals;
    std::vector<float> places;
    std::vector<quint8> colours;
    std::vector<quint16> indices;
    QByteArray data; ///< of the scene that is being made
};

TEST_F(SceneFileCompressionTest, CompressedMeshesAreThePlainOnesAndStayAsTheyAreInTheFile)
{
    load(plain());
    const std::multiset<std::string> expected = corners(part());
    ASSERT_EQ(expected.size(), indices.size());
    qxJson unknown = draco();
    unknown["extensionsRequired"].push_back("EXT_a");
    qxJson strip = draco();
    strip["meshes"][0]["primitives"][0]["mode"] = 5;
    qxJson counted = draco(); // as the sheet was before it was compressed
    for (std::size_t i = 0; i < 5; ++i)
        counted["accessors"][i]["count"] = vertices + 1;
    const std::pair<const char *, qxJson> scenes[] = {
        {"triangles", meshopt()},
        {"indices", meshopt("INDICES")},
        {"edgebreaker", draco()},
        {"sequential", draco(draco::MESH_SEQUENTIAL_ENCODING)},
        {"with plain data", draco(draco::MESH_EDGEBREAKER_ENCODING, true)},
        {"with an unknown extension", unknown},
        {"strip", strip},
        {"counted otherwise", counted}};
    for (const auto &[name, json] : scenes) {
        SCOPED_TRACE(name);
        load(json);
        EXPECT_EQ(corners(part()), expected);
        EXPECT_EQ(file.warnings().size(), name == std::string("with an unknown extension") ? 1 : 0);
        expectSaved(json);
        const QByteArray uri = QByteArray::fromStdString(json["buffers"][0]["uri"]);
        const QByteArray bytes = QByteArray::fromBase64(uri.mid(uri.indexOf(',')));
        osg::setName(find("Part").node(), "Sheet");
        for (const char *target : {"saved.gltf", "other/saved.glb", "saved.gltf"}) {
            save(path(target));
            load(path(target));
            EXPECT_EQ(corners(part(0, "Sheet")), expected);
            const qxJson saved = jsonOf(path(target));
            EXPECT_EQ(saved["meshes"], json["meshes"]);
            EXPECT_EQ(saved["bufferViews"], json["bufferViews"]);
        }
        EXPECT_EQ(binOf(path("other/saved.glb")).mid(8, bytes.size()) == bytes, true);
    }
}

TEST_F(SceneFileCompressionTest, PartsOfOneCompressedMeshAndFilteredValuesAreDecoded)
{
    qxJson json = draco();
    qxJson &parts = json["meshes"][0]["primitives"];
    parts.push_back(qxJson(parts[0]));
    parts[1]["attributes"].erase("COLOR_0");
    parts[1]["extensions"]["KHR_draco_mesh_compression"]["attributes"].erase("COLOR_0");
    load(json);
    EXPECT_EQ(part(1)->getPositions()->getSize(), osg::UInt32(vertices));
    EXPECT_EQ(part(1)->getColors(), osg::NullFC);

    // Directions in four signed bytes, rotations in eight, numbers by exponent and mantissa.
    json = emptySheet();
    std::vector<float> directions;
    std::vector<float> rotations;
    for (std::size_t i = 0; i < std::size_t(vertices); ++i) {
        directions.insert(directions.end(), {normals[3 * i], 0, normals[3 * i + 2], 0});
        rotations.insert(rotations.end(), {normals[3 * i], 0, 0, normals[3 * i + 2]});
    }
    QByteArray filtered[3] = {QByteArray(4 * vertices, '\0'), QByteArray(8 * vertices, '\0'),
                              QByteArray(12 * vertices, '\0')};
    meshopt_encodeFilterOct(filtered[0].data(), vertices, 4, 8, directions.data());
    meshopt_encodeFilterQuat(filtered[1].data(), vertices, 8, 16, rotations.data());
    meshopt_encodeFilterExp(filtered[2].data(), vertices, 12, 15, positions.data());
    const char *const filters[] = {"OCTAHEDRAL", "QUATERNION", "EXPONENTIAL"};
    for (int i = 0; i < 3; ++i) {
        const int stride = 4 * (i + 1);
        const int view = append(json, encoded(filtered[i], "ATTRIBUTES", stride));
        const qxJson packed = json["bufferViews"][std::size_t(view)];
        json["bufferViews"][std::size_t(view)] = {{"buffer", 1},
                                                  {"byteLength", filtered[i].size()},
                                                  {"byteStride", stride},
                                                  {"extensions",
                                                   {{"EXT_meshopt_compression",
                                                     {{"buffer", 0},
                                                      {"byteOffset", packed["byteOffset"]},
                                                      {"mode", "ATTRIBUTES"},
                                                      {"byteLength", packed["byteLength"]},
                                                      {"byteStride", stride},
                                                      {"count", vertices},
                                                      {"filter", filters[i]}}}}}};
    }
    addAttribute(json, "NORMAL", "VEC3", 5120, 0);
    addAttribute(json, "COLOR_0", "VEC4", 5122, 1);
    addAttribute(json, "POSITION", "VEC3", 5126, 2);
    finish(json)["buffers"].push_back({{"byteLength", 12 * vertices}});
    load(json);
    const osg::GeometryPtr sheet = part();
    const osg::GeoColors4fPtr tints = osg::GeoColors4fPtr::dcast(sheet->getColors());
    for (osg::UInt32 i = 0; i < osg::UInt32(vertices); ++i) {
        for (osg::UInt32 c = 0; c < 3; ++c) {
            EXPECT_NEAR(sheet->getPositions()->getValue(i)[c], positions[3 * i + c], 1e-4);
            EXPECT_NEAR(sheet->getNormals()->getValue(i)[c], normals[3 * i + c], 0.02);
        }
        EXPECT_NEAR(std::fabs(tints->getField()[i].red()), std::fabs(rotations[4 * i]), 1e-3);
        EXPECT_NEAR(std::fabs(tints->getField()[i].alpha()), rotations[4 * i + 3], 1e-3);
    }
}

TEST_F(SceneFileCompressionTest, WhatIsDamagedIsRefusedUnlessPlainDataAreThere)
{
    const char *const view = "/bufferViews/0/extensions/EXT_meshopt_compression";
    const char *const mesh = "/meshes/0/primitives/0/extensions/KHR_draco_mesh_compression";
    struct Fault {
        bool isDraco;
        std::string place;
        qxJson value;
        const char *said;
    };
    const std::string way = "an impossible way of compression";
    const Fault faults[] = {
        {false, "/buffer", 9, "buffer view 0 refers to buffer 9"},
        {false, "/byteLength", 99999, "buffer view 0 ends at byte 99999 of buffer 0"},
        {false, "/count", 48, way.c_str()},
        {false, "/byteStride", 0, way.c_str()},
        {false, "/byteStride", 6, way.c_str()},
        {false, "/mode", "STRIPS", way.c_str()},
        {false, "/mode", "TRIANGLES", way.c_str()},
        {false, "/filter", "OCTAHEDRAL", way.c_str()},
        {false, "/filter", "QUATERNION", way.c_str()},
        {false, "/filter", 5, way.c_str()},
        {false, "/byteLength", 50, "buffer view 0: its compressed data are damaged"},
        {false, "/byteOffset", 4, "buffer view 0: its compressed data are damaged"},
        {true, "/bufferView", 7, "mesh 0 \"Shape\", primitive 0 refers to buffer view 7"},
        {true, "/attributes", 5, way.c_str()},
        {true, "/attributes/OTHER", 1, way.c_str()},
        {true, "/attributes/NORMAL", -1, way.c_str()},
        {true, "/attributes/NORMAL", 99, "NORMAL is not in the compressed data"},
        {true, "/attributes/TEXCOORD_0", 10, "TEXCOORD_0 is not in the compressed data"}};
    for (const Fault &fault : faults) {
        SCOPED_TRACE(fault.place + ' ' + fault.value.dump());
        qxJson json = fault.isDraco ? draco() : meshopt();
        json[qxJson::json_pointer((fault.isDraco ? mesh : view) + fault.place)] = fault.value;
        EXPECT_TRUE(loadError(write("scene.gltf", json)).contains(fault.said))
            << file.errorString().toStdString();
    }
    qxJson fan = draco();
    fan["meshes"][0]["primitives"][0]["mode"] = 6;
    EXPECT_TRUE(loadError(write("scene.gltf", fan)).contains(way.c_str()));

    load(plain());
    const std::multiset<std::string> expected = corners(part());
    qxJson optional = draco(draco::MESH_SEQUENTIAL_ENCODING, true);
    optional["bufferViews"][6]["byteLength"] = 60;
    load(optional);
    EXPECT_EQ(corners(part()), expected);
    EXPECT_EQ(file.warnings(),
              QStringList("mesh 0 \"Shape\", primitive 0: its compressed data are damaged; data "
                          "that are not compressed are shown"));
    optional["extensionsRequired"] = {"KHR_draco_mesh_compression"};
    EXPECT_NE(loadError(write("scene.gltf", optional)), "");
}

TEST_F(SceneFileCompressionTest, WhatADecoderIsAskedForIsPaidForFirst)
{
    qxMemoryBudget::setLimit(qxMemoryBudget::fromText("500MB"));
    // How many faces there are stands behind the header, and there behind the vertices.
    for (const int method : {draco::MESH_SEQUENTIAL_ENCODING, draco::MESH_EDGEBREAKER_ENCODING}) {
        qxJson json = draco(method);
        const int begin = json["bufferViews"][0]["byteOffset"];
        const int end = data.size();
        data.replace(begin + (method == draco::MESH_SEQUENTIAL_ENCODING ? 11 : 13), 1,
                     "\xFF\xFF\xFF\x7F");
        json["bufferViews"][0]["byteLength"] = end - begin;
        const QString said = loadError(write("scene.gltf", finish(json)));
        EXPECT_TRUE(said.contains("mesh 0 \"Shape\", primitive 0: ")
                    && said.contains(" GB of memory are needed"))
            << said.toStdString();
    }
    qxJson json = meshopt();
    qxJson &view = json["bufferViews"][0];
    view["extensions"]["EXT_meshopt_compression"]["count"] = 100000000;
    view["byteLength"] = 1200000000;
    json["buffers"][1]["byteLength"] = 1200000000;
    EXPECT_TRUE(loadError(write("scene.gltf", json)).contains("buffer view 0: 1.118 GB of memory"))
        << file.errorString().toStdString();
    qxMemoryBudget::setLimit(qxMemoryBudget::fromText("2GB"));
}

TEST_F(SceneFileCompressionTest, AnyDamageOfCompressedDataEndsInAnErrorOrInAScene)
{
    std::mt19937 random(5);
    for (const qxJson &json : {draco(), draco(draco::MESH_SEQUENTIAL_ENCODING), meshopt()}) {
        const QByteArray uri = QByteArray::fromStdString(json["buffers"][0]["uri"]);
        const QByteArray whole = QByteArray::fromBase64(uri.mid(uri.indexOf(',') + 1));
        for (int i = 0; i < 300; ++i) {
            QByteArray bytes = whole;
            for (int changes = 0; changes < 3; ++changes)
                bytes[int(random() % unsigned(bytes.size()))] = char(random());
            qxJson damaged = json;
            damaged["buffers"][0]["uri"] = "data:;base64," + bytes.toBase64().toStdString();
            host.clearScene();
            if (!file.load(write("scene.gltf", damaged))) {
                EXPECT_TRUE(file.errorString().contains("mesh 0")
                            || file.errorString().contains("buffer view"))
                    << file.errorString().toStdString();
            }
        }
    }
}
