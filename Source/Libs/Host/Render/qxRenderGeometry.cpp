#include "Render/qxRenderGeometry.h"

#include "Animation/OSGDeformation.h"
#include "Render/qxDigest.h"

#include <OpenSG/OSGTriangleIterator.h>

#include <new>

namespace {

template <class Value, class PropertyPtr>
std::vector<Value> copied(const PropertyPtr &property)
{
    std::vector<Value> values;
    if (property == osg::NullFC)
        return values;
    values.reserve(property->getSize());
    for (osg::UInt32 i = 0; i < property->getSize(); ++i)
        values.push_back(Value(property->getValue(i)));
    return values;
}

/// Colours with their alpha, where the format has one.
std::vector<osg::Vec4f> copiedColours(const osg::GeoColorsPtr &property)
{
    std::vector<osg::Vec4f> values;
    if (property == osg::NullFC)
        return values;
    const osg::GeoColors4fPtr full = osg::GeoColors4fPtr::dcast(property);
    values.reserve(property->getSize());
    for (osg::UInt32 i = 0; i < property->getSize(); ++i) {
        const osg::Color3f colour = property->getValue(i);
        const float alpha = full == osg::NullFC ? 1.0f : full->getField()[i].alpha();
        values.push_back(osg::Vec4f(colour[0], colour[1], colour[2], alpha));
    }
    return values;
}

/// The element of a list at an index that may be -1 or too large.
template <class Value>
Value element(const std::vector<Value> &values, osg::Int32 index)
{
    return index >= 0 && std::size_t(index) < values.size() ? values[std::size_t(index)] : Value();
}

/// A list that is there serves every corner.
template <class Value>
void fitTo(std::vector<Value> &values, std::size_t count)
{
    if (!values.empty())
        values.resize(count);
}

} // namespace

std::shared_ptr<qxRenderGeometry> qxRenderGeometry::make(const osg::GeometryPtr &core)
{
    const auto geometry = std::make_shared<qxRenderGeometry>();
    if (core->getPositions() == osg::NullFC)
        return geometry;
    if (core->getIndexMapping().size() > 1)
        geometry->copyCorners(core);
    else
        geometry->copyShared(core);
    geometry->m_isDeformable =
        core->getIndexMapping().size() <= 1 && osg::Deformation::of(core) != osg::NullFC;
    return geometry;
}

std::shared_ptr<const qxRenderGeometry> qxRenderGeometry::shaped(Form form) const
{
    const auto copy = std::make_shared<qxRenderGeometry>();
    copy->m_texCoords = m_texCoords;
    copy->m_colours = m_colours;
    copy->m_triangles = m_triangles;
    copy->m_positions = std::move(form.positions);
    for (std::size_t i = 0; i < copy->m_positions.size(); ++i) {
        if (!qxIsFinite(copy->m_positions[i]))
            copy->m_positions[i] = m_positions[i];
    }
    copy->m_tangents = std::move(form.tangents);
    copy->m_normals = std::move(form.normals);
    if (copy->m_normals.empty())
        copy->computeNormals();
    return copy;
}

/// Every triangle turns its corners as much as it is large.
void qxRenderGeometry::computeNormals()
{
    m_normals.assign(m_positions.size(), osg::Vec3f());
    for (const Triangle &corners : m_triangles) {
        const osg::Vec3f first = m_positions[corners[0]];
        const osg::Vec3f normal =
            (m_positions[corners[1]] - first).cross(m_positions[corners[2]] - first);
        for (const std::uint32_t corner : corners)
            m_normals[corner] += normal;
    }
    for (osg::Vec3f &normal : m_normals)
        normal.normalize();
}

/// One index for all that a corner has: the lists are copied as they are.
void qxRenderGeometry::copyShared(const osg::GeometryPtr &core)
{
    m_positions = copied<osg::Vec3f>(core->getPositions());
    m_normals = copied<osg::Vec3f>(core->getNormals());
    m_colours = copiedColours(core->getColors());
    const std::size_t count = m_positions.size();
    const TexCoords places = texCoordsOf(core);
    for (std::size_t i = 0; i < m_texCoords.size(); ++i) {
        m_texCoords[i] = copied<osg::Vec2f>(places[i]);
        fitTo(m_texCoords[i], count);
    }
    copyTangents(places);
    fitTo(m_normals, count);
    fitTo(m_tangents, count);
    fitTo(m_colours, count);
    const osg::TriangleIterator end = core->endTriangles();
    for (osg::TriangleIterator it = core->beginTriangles(); it != end; ++it) {
        Triangle triangle;
        bool good = true;
        for (int k = 0; k < 3; ++k) {
            triangle[std::size_t(k)] = std::uint32_t(it.getPositionIndex(k));
            good = good && triangle[std::size_t(k)] < count
                && qxIsFinite(m_positions[triangle[std::size_t(k)]]);
        }
        if (good)
            m_triangles.push_back(triangle);
    }
}

void qxRenderGeometry::copyTangents(const TexCoords &all)
{
    const std::vector<osg::Vec2f> first = copied<osg::Vec2f>(all[m_texCoords.size()]);
    const std::vector<osg::Vec2f> second = copied<osg::Vec2f>(all[m_texCoords.size() + 1]);
    for (std::size_t i = 0; i < first.size() && i < second.size(); ++i)
        m_tangents.emplace_back(first[i][0], first[i][1], second[i][0], second[i][1]);
}

/// An index for each thing that a corner has: every corner of every triangle stands for itself.
void qxRenderGeometry::copyCorners(const osg::GeometryPtr &core)
{
    const std::vector<osg::Vec3f> positions = copied<osg::Vec3f>(core->getPositions());
    const std::vector<osg::Vec3f> normals = copied<osg::Vec3f>(core->getNormals());
    const std::vector<osg::Vec2f> texCoords = copied<osg::Vec2f>(core->getTexCoords());
    const std::vector<osg::Vec4f> colours = copiedColours(core->getColors());
    const osg::TriangleIterator end = core->endTriangles();
    for (osg::TriangleIterator it = core->beginTriangles(); it != end; ++it) {
        bool good = true;
        for (int k = 0; k < 3; ++k)
            good = good && std::size_t(it.getPositionIndex(k)) < positions.size()
                && qxIsFinite(element(positions, it.getPositionIndex(k)));
        if (!good)
            continue;
        const std::uint32_t first = std::uint32_t(m_positions.size());
        m_triangles.push_back({first, first + 1, first + 2});
        for (int k = 0; k < 3; ++k) {
            m_positions.push_back(element(positions, it.getPositionIndex(k)));
            if (!normals.empty())
                m_normals.push_back(element(normals, it.getNormalIndex(k)));
            if (!texCoords.empty())
                m_texCoords[0].push_back(element(texCoords, it.getTexCoordsIndex(k)));
            if (!colours.empty())
                m_colours.push_back(element(colours, it.getColorIndex(k)));
        }
    }
}

qxEmbreeGeometry qxRenderGeometry::placed(RTCDevice device, const osg::Matrix &matrix) const
{
    qxEmbreeGeometry mesh(rtcNewGeometry(device, RTC_GEOMETRY_TYPE_TRIANGLE));
    void *const places =
        rtcSetNewGeometryBuffer(mesh.get(), RTC_BUFFER_TYPE_VERTEX, 0, RTC_FORMAT_FLOAT3,
                                sizeof(osg::Vec3f), m_positions.size());
    rtcSetSharedGeometryBuffer(mesh.get(), RTC_BUFFER_TYPE_INDEX, 0, RTC_FORMAT_UINT3,
                               m_triangles.data(), 0, sizeof(Triangle), m_triangles.size());
    if (!places)
        throw std::bad_alloc();
    std::transform(m_positions.begin(), m_positions.end(), static_cast<osg::Vec3f *>(places),
                   [&matrix](const osg::Vec3f &position) {
                       osg::Pnt3f result;
                       matrix.multMatrixPnt(osg::Pnt3f(position), result);
                       return osg::Vec3f(result);
                   });
    return mesh;
}

RTCScene qxRenderGeometry::scene(RTCDevice device) const
{
    if (m_scene)
        return m_scene.get();
    const qxEmbreeGeometry mesh = placed(device, osg::Matrix::identity());
    rtcCommitGeometry(mesh.get());
    m_scene.reset(rtcNewScene(device));
    rtcSetSceneFlags(m_scene.get(), RTC_SCENE_FLAG_ROBUST);
    rtcAttachGeometry(m_scene.get(), mesh.get());
    rtcCommitScene(m_scene.get());
    return m_scene.get();
}

template <class Value>
Value qxRenderGeometry::at(const std::vector<Value> &values, const Place &place) const
{
    const Triangle &corners = m_triangles[place.triangle];
    return values[corners[0]] * (1.0f - place.u - place.v) + values[corners[1]] * place.u
        + values[corners[2]] * place.v;
}

osg::Vec3f qxRenderGeometry::normalAt(const Place &place) const
{
    return m_normals.empty() ? osg::Vec3f() : at(m_normals, place);
}

osg::Vec2f qxRenderGeometry::texCoordsAt(const Place &place, osg::UInt32 number) const
{
    if (number >= m_texCoords.size() || m_texCoords[number].empty())
        return osg::Vec2f();
    return at(m_texCoords[number], place);
}

osg::Vec4f qxRenderGeometry::tangentAt(const Place &place) const
{
    return m_tangents.empty() ? osg::Vec4f() : at(m_tangents, place);
}

osg::Vec3f qxRenderGeometry::side(std::uint32_t triangle, std::size_t number) const
{
    const Triangle &corners = m_triangles[triangle];
    return m_positions[corners[number + 1]] - m_positions[corners[0]];
}

template <class Value>
Value qxRenderGeometry::step(const std::vector<Value> &values, std::uint32_t triangle,
                             const osg::Vec2f &weights) const
{
    if (values.empty())
        return Value();
    const Triangle &corners = m_triangles[triangle];
    return (values[corners[1]] - values[corners[0]]) * weights[0]
        + (values[corners[2]] - values[corners[0]]) * weights[1];
}

osg::Vec3f qxRenderGeometry::normalStep(std::uint32_t triangle, const osg::Vec2f &weights) const
{
    return step(m_normals, triangle, weights);
}

osg::Vec2f qxRenderGeometry::texCoordsStep(std::uint32_t triangle, osg::UInt32 number,
                                           const osg::Vec2f &weights) const
{
    return number < m_texCoords.size() ? step(m_texCoords[number], triangle, weights)
                                       : osg::Vec2f();
}

qxRenderGeometry::TexCoords qxRenderGeometry::texCoordsOf(const osg::GeometryPtr &core)
{
    return {core->getTexCoords(),  core->getTexCoords1(), core->getTexCoords2(),
            core->getTexCoords3(), core->getTexCoords4(), core->getTexCoords5(),
            core->getTexCoords6(), core->getTexCoords7()};
}

const QByteArray &qxRenderGeometry::digest() const
{
    if (!m_digest.isEmpty())
        return m_digest;
    qxDigest digest;
    digest.addAll(m_positions);
    digest.addAll(m_normals);
    for (const std::vector<osg::Vec2f> &places : m_texCoords)
        digest.addAll(places);
    digest.addAll(m_tangents);
    digest.addAll(m_colours);
    digest.addAll(m_triangles);
    m_digest = digest.result();
    return m_digest;
}

osg::Vec4f qxRenderGeometry::colourAt(const Place &place) const
{
    return m_colours.empty() ? osg::Vec4f(1, 1, 1, 1) : at(m_colours, place);
}
