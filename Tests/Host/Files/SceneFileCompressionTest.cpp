#include "Files/SceneFileFixture.h"
#include "Files/qxMemoryBudget.h"

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
    static const int vertices = side * side;

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
        EXPECT_EQ(file.warnings().size(), std::string(name).find("unknown") == 5 ? 1 : 0);
        expectSaved(json);
        find("Part").setName("Sheet");
        for (const char *target : {"saved.gltf", "saved.glb", "other/saved.gltf"}) {
            save(path(target));
            load(path(target));
            EXPECT_EQ(corners(part(0, "Sheet")), expected);
            qxJson saved = jsonOf(path(target));
            EXPECT_EQ(saved["meshes"], json["meshes"]);
            EXPECT_EQ(saved["bufferViews"], json["bufferViews"]);
        }
        EXPECT_EQ(bytesOf(path("other/saved.bin")),
                  data.isEmpty()
                      ? QByteArray()
                      : QByteArray::fromBase64(
                          QByteArray::fromStdString(json["buffers"][0]["uri"].get<std::string>())
                              .mid(13)));
    }
}
