#include "Files/Gltf/Write/qxGltfGeometryWriter.h"

#include <OpenSG/OSGTriangleIterator.h>

#include <algorithm>

qxJson qxGltfGeometryWriter::write(const osg::GeometryPtr &geometry)
{
    std::vector<float> positions;
    std::vector<float> normals;
    std::vector<float> texCoords;
    for (osg::TriangleIterator triangle = geometry->beginTriangles();
         triangle != geometry->endTriangles(); ++triangle) {
        for (int corner = 0; corner < 3; ++corner) {
            const osg::Pnt3f position = triangle.getPosition(corner);
            const osg::Vec3f normal = triangle.getNormal(corner);
            const osg::Vec2f place = triangle.getTexCoords(corner);
            positions.insert(positions.end(), {position[0], position[1], position[2]});
            normals.insert(normals.end(), {normal[0], normal[1], normal[2]});
            texCoords.insert(texCoords.end(), {place[0], 1.0f - place[1]});
        }
    }
    if (positions.empty())
        throw qxGltfError(qxFileText::tr("a new geometry needs triangles"));

    qxJson attributes = {{"POSITION", append(positions, 3)}};
    addBounds(m_json["accessors"].back(), positions);
    if (geometry->getNormals() != osg::NullFC)
        attributes["NORMAL"] = append(normals, 3);
    if (geometry->getTexCoords() != osg::NullFC)
        attributes["TEXCOORD_0"] = append(texCoords, 2);
    return {{"attributes", attributes}};
}

/// The accessor of these values in the buffer that is still to come.
int qxGltfGeometryWriter::append(const std::vector<float> &values, int components)
{
    const int offset = m_bytes.size();
    m_bytes.append(reinterpret_cast<const char *>(values.data()),
                   int(values.size() * sizeof(float)));
    m_json["bufferViews"].push_back({{"buffer", qxGltfSection(m_json, "buffers").size()},
                                     {"byteOffset", offset},
                                     {"byteLength", m_bytes.size() - offset}});
    m_json["accessors"].push_back({{"bufferView", m_json["bufferViews"].size() - 1},
                                   {"componentType", 5126},
                                   {"count", values.size() / std::size_t(components)},
                                   {"type", components == 3 ? "VEC3" : "VEC2"}});
    return int(m_json["accessors"].size()) - 1;
}

void qxGltfGeometryWriter::addBounds(qxJson &accessor, const std::vector<float> &positions) const
{
    std::vector<float> least(positions.begin(), positions.begin() + 3);
    std::vector<float> most = least;
    for (std::size_t i = 0; i < positions.size(); ++i) {
        least[i % 3] = std::min(least[i % 3], positions[i]);
        most[i % 3] = std::max(most[i % 3], positions[i]);
    }
    accessor["min"] = qxGltfNumberList(least.data(), 3);
    accessor["max"] = qxGltfNumberList(most.data(), 3);
}
