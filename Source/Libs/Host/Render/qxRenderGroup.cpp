#include "Render/qxRenderGroup.h"

#include "qxNodeWalk.h"

namespace {

/// Nearly always the next node is the next one of the last time, or some have gone in between.
const std::size_t _lookAhead = 32;

/// One tree over so many triangles is made quickly, and rays go through it several times faster
/// than through overlapping trees of single geometries.
const std::size_t _mostInOneTree = 250000;

/// The columns of the transposed inverse; null for a matrix without inverse.
void setNormals(qxRenderInstance &instance, const osg::Matrix &matrix)
{
    osg::Vec3f(&columns)[3] = instance.normals;
    osg::Vec3f x[3];
    for (osg::UInt32 i = 0; i < 3; ++i)
        x[i] = osg::Vec3f(matrix[i][0], matrix[i][1], matrix[i][2]);
    const float determinant = x[0].dot(x[1].cross(x[2]));
    instance.isMirrored = determinant < 0.0f;
    const float factor = determinant != 0.0f && std::isfinite(determinant) ? 1 / determinant : 0;
    columns[0] = x[1].cross(x[2]) * factor;
    columns[1] = x[2].cross(x[0]) * factor;
    columns[2] = x[0].cross(x[1]) * factor;
}

bool canBeSeen(const qxRenderInstance &instance)
{
    if (instance.geometry->triangles().empty() || instance.normals[0].squareLength() == 0.0f)
        return false;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        if (!qxIsFinite(instance.normals[i]))
            return false;
    }
    return std::isfinite(instance.toWorld[3].dot(osg::Vec4f(1, 1, 1, 1)));
}

osg::UInt32 idOf(const osg::MaterialPtr &material)
{
    return material == osg::NullFC ? 0 : material.getFieldContainerId();
}

osg::Vec3f turned(const qxRenderInstance &instance, const osg::Vec3f &normal)
{
    const osg::Vec3f(&columns)[3] = instance.normals;
    return columns[0] * normal[0] + columns[1] * normal[1] + columns[2] * normal[2];
}

} // namespace

osg::Vec3f qxRenderInstance::worldNormal(const osg::Vec3f &normal) const
{
    return qxUnit(turned(*this, normal));
}

osg::Vec3f qxRenderInstance::worldNormalStep(const osg::Vec3f &step, const osg::Vec3f &normal) const
{
    osg::Vec3f whole = turned(*this, normal);
    const float length = whole.length();
    if (!(length > 0.0f))
        return osg::Vec3f();
    whole *= 1.0f / length;
    const osg::Vec3f turnedStep = turned(*this, step);
    return (turnedStep - whole * whole.dot(turnedStep)) * (1.0f / length);
}

qxRenderGroup::qxRenderGroup(RTCDevice device, qxRenderSources &sources)
    : m_device(device), m_sources(sources)
{
}

osg::Vec3f qxRenderGroup::flatNormalAt(const RTCHit &hit) const
{
    const osg::Vec3f normal(hit.Ng_x, hit.Ng_y, hit.Ng_z);
    const qxRenderInstance &instance = instanceAt(hit);
    if (!m_isOneTree)
        return instance.worldNormal(normal);
    return qxUnit(instance.isMirrored ? -normal : normal);
}

void qxRenderGroup::begin()
{
    m_before.swap(m_instances);
    m_instances.clear();
    m_instances.reserve(m_before.size());
    m_places.clear();
    m_shapes = qxRenderShapes();
    m_next = 0;
    m_isOther = false;
}

/// The instance of a node at the last time, null when it was not shown.
qxRenderInstance *qxRenderGroup::known(osg::UInt32 node)
{
    const std::size_t end = std::min(m_before.size(), m_next + _lookAhead);
    for (std::size_t i = m_next; i < end; ++i) {
        if (m_before[i].node == node)
            return &m_before[i];
    }
    if (m_places.empty()) {
        for (std::size_t i = 0; i < m_before.size(); ++i)
            m_places.emplace(m_before[i].node, i);
    }
    const auto place = m_places.find(node);
    return place == m_places.end() ? nullptr : &m_before[place->second];
}

void qxRenderGroup::add(const qxShownPart &part)
{
    qxRenderInstance *const before = known(part.node);
    if (!before) {
        make(m_instances.emplace_back(), part);
        return;
    }
    const std::size_t place = std::size_t(before - m_before.data());
    m_changed = m_changed || place != m_next;
    m_next = place + 1;
    m_instances.push_back(std::move(*before));
    qxRenderInstance &instance = m_instances.back();
    if (!isSame(instance, part)) {
        make(instance, part);
    } else if (instance.material != idOf(part.material)) {
        instance.material = idOf(part.material);
        instance.surface = m_sources.material(part.material);
        m_isOther = true;
    }
}

/// Whether an instance of the last time is the part as it is now, but for its material.
bool qxRenderGroup::isSame(const qxRenderInstance &instance, const qxShownPart &part)
{
    if (instance.core != part.core.getFieldContainerId() || instance.source->isOutdated())
        return false;
    if (!instance.source->isDeformable())
        return instance.toWorld == part.toWorld;
    const qxRenderShape shape = m_shapes.of(qxNodeWithId(part.node));
    return instance.shape == shape && (shape.isSkinned() || instance.toWorld == part.toWorld);
}

/// Gives a deformable geometry the form that it has in this node. A skin brings it into the world
/// by its joints alone.
void qxRenderGroup::shape(qxRenderInstance &instance, const qxShownPart &part)
{
    instance.shape = m_shapes.of(qxNodeWithId(part.node));
    if (instance.shape.isSkinned())
        instance.toWorld = osg::Matrix();
    if (!instance.shape.isRest())
        instance.geometry = qxShaped(*instance.source, part.core, instance.shape);
}

void qxRenderGroup::make(qxRenderInstance &instance, const qxShownPart &part)
{
    instance.node = part.node;
    instance.core = part.core.getFieldContainerId();
    instance.material = idOf(part.material);
    instance.toWorld = part.toWorld;
    instance.source = m_sources.geometry(part.core);
    instance.geometry = instance.source;
    if (instance.source->isDeformable())
        shape(instance, part);
    instance.surface = m_sources.material(part.material);
    instance.embree.reset();
    instance.mask = 0;
    setNormals(instance, instance.toWorld);
    instance.isVisible = canBeSeen(instance);
    m_changed = true;
}

bool qxRenderGroup::isSmall() const
{
    std::size_t triangles = 0;
    for (const qxRenderInstance &instance : m_instances)
        triangles += instance.geometry->triangles().size();
    return triangles <= _mostInOneTree;
}

void qxRenderGroup::place(qxRenderInstance &instance)
{
    instance.mask = 0;
    if (m_isOneTree) {
        instance.embree = instance.geometry->placed(m_device, instance.toWorld);
        return;
    }
    instance.embree.reset(rtcNewGeometry(m_device, RTC_GEOMETRY_TYPE_INSTANCE));
    rtcSetGeometryInstancedScene(instance.embree.get(), instance.geometry->scene(m_device));
    rtcSetGeometryTransform(instance.embree.get(), 0, RTC_FORMAT_FLOAT4X4_COLUMN_MAJOR,
                            instance.toWorld.getValues());
}

void qxRenderGroup::finish()
{
    m_changed = m_changed || m_instances.size() != m_before.size();
    m_before.clear();
    for (const qxRenderInstance &instance : m_instances)
        m_changed = m_changed || (instance.isVisible && instance.mask != maskOf(instance));
    m_isOther = m_isOther || m_changed;
    m_isBuilt = m_isBuilt && !m_changed;
    m_changed = false;
}

void qxRenderGroup::build()
{
    if (m_isBuilt)
        return;
    const bool isOneTree = isSmall();
    const bool isOther = isOneTree != m_isOneTree;
    m_isOneTree = isOneTree;
    for (qxRenderInstance &instance : m_instances) {
        if (!instance.isVisible)
            continue;
        if (!instance.embree || isOther)
            place(instance);
        const unsigned int mask = maskOf(instance);
        if (mask == instance.mask)
            continue;
        instance.mask = mask;
        rtcSetGeometryMask(instance.embree.get(), mask);
        rtcCommitGeometry(instance.embree.get());
    }
    commit();
    m_isBuilt = true;
}

unsigned int qxRenderGroup::maskOf(const qxRenderInstance &instance)
{
    return instance.surface->isOpaque() ? Opaque : Translucent;
}

/// A tree over the instances of these masks, made from all of them in order, so that it does not
/// depend on what was shown before; null for none.
qxEmbreeScene qxRenderGroup::tree(unsigned int mask) const
{
    qxEmbreeScene scene(rtcNewScene(m_device));
    rtcSetSceneFlags(scene.get(), RTC_SCENE_FLAG_ROBUST);
    bool isEmpty = true;
    for (std::size_t i = 0; i < m_instances.size(); ++i) {
        if (!m_instances[i].embree || !(m_instances[i].mask & mask))
            continue;
        rtcAttachGeometryByID(scene.get(), m_instances[i].embree.get(), unsigned(i));
        isEmpty = false;
    }
    if (isEmpty && mask == Translucent)
        return nullptr;
    rtcCommitScene(scene.get());
    return scene;
}

void qxRenderGroup::commit()
{
    m_scene = tree(Opaque | Translucent);
    m_translucent = tree(Translucent);
    m_bounds = qxBox();
    RTCBounds bounds;
    rtcGetSceneBounds(m_scene.get(), &bounds);
    if (!(bounds.lower_x <= bounds.upper_x))
        return;
    m_bounds.lower = osg::Vec3f(bounds.lower_x, bounds.lower_y, bounds.lower_z);
    m_bounds.upper = osg::Vec3f(bounds.upper_x, bounds.upper_y, bounds.upper_z);
}
