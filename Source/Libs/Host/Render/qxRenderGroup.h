#pragma once

#include "Render/qxRenderShape.h"
#include "Render/qxRenderSources.h"
#include "Render/qxShownWalk.h"

/// A visible geometry node, prepared for ray tracing.
struct qxRenderInstance {
    /// The same in world coordinates, of length 1; null stays.
    osg::Vec3f worldNormal(const osg::Vec3f &normal) const;
    /// The change of worldNormal() when the normal changes by a small step.
    osg::Vec3f worldNormalStep(const osg::Vec3f &step, const osg::Vec3f &normal) const;

    osg::UInt32 node; ///< ids, to recognise what changed
    osg::UInt32 core;
    osg::UInt32 material; ///< 0 for none
    osg::Matrix toWorld; ///< from `geometry`, which is in the world already if a skin bends it
    osg::Vec3f normals[3]; ///< columns of the matrix that turns normals
    bool isMirrored; ///< whether the matrix mirrors
    std::shared_ptr<const qxRenderGeometry> source; ///< as the core is
    qxRenderShape shape; ///< that the node gives it; only for deformable ones
    std::shared_ptr<const qxRenderGeometry> geometry; ///< as it is shown
    std::shared_ptr<const qxRenderMaterial> surface;
    bool isVisible; ///< whether there is something to hit
    qxEmbreeGeometry embree; ///< as it is in the tree
    unsigned int mask; ///< as it was committed
};

/// Instances that are traced together: the scene, or the overlays of one layer.
class qxRenderGroup {
public:
    enum Mask { Opaque = 1, Translucent = 2 };

    qxRenderGroup(RTCDevice device, qxRenderSources &sources);
    qxRenderGroup(const qxRenderGroup &) = delete;

    /// \name An update: begin(), then all visible parts in order, then finish(). Unchanged
    /// instances are reused. @{
    void begin();
    void add(const qxShownPart &part);
    void finish();
    /// @}
    /// Makes the trees of the present instances, if these are others. Before that, scene(),
    /// translucent(), bounds() and what takes hits are as they were.
    void build();

    RTCScene scene() const { return m_scene.get(); }
    /// The normal of the triangle that was hit, in world coordinates, of length 1.
    osg::Vec3f flatNormalAt(const RTCHit &hit) const;
    const qxRenderInstance &instanceAt(const RTCHit &hit) const
    {
        return m_instances[m_isOneTree ? hit.geomID : hit.instID[0]];
    }
    const std::vector<qxRenderInstance> &instances() const { return m_instances; }
    const qxBox &bounds() const { return m_bounds; }
    /// The translucent ones among the instances, for hits as in scene(); null for none.
    RTCScene translucent() const { return m_translucent.get(); }
    /// Whether the instances have so few triangles that they share one tree.
    bool isSmall() const;
    /// Whether the last update found other instances, places or materials than the one before.
    bool isOther() const { return m_isOther; }

private:
    qxRenderInstance *known(osg::UInt32 node);
    void make(qxRenderInstance &instance, const qxShownPart &part);
    bool isSame(const qxRenderInstance &instance, const qxShownPart &part);
    void shape(qxRenderInstance &instance, const qxShownPart &part);
    static unsigned int maskOf(const qxRenderInstance &instance);
    void place(qxRenderInstance &instance);
    qxEmbreeScene tree(unsigned int mask) const;
    void commit();

    RTCDevice m_device;
    qxRenderSources &m_sources;
    qxRenderShapes m_shapes; ///< of this update
    std::vector<qxRenderInstance> m_instances;
    std::vector<qxRenderInstance> m_before; ///< of the last update; those taken over are empty
    std::size_t m_next = 0; ///< place in m_before where the next one is looked for
    std::unordered_map<osg::UInt32, std::size_t> m_places; ///< of nodes in m_before, when needed
    bool m_changed = true; ///< in this update
    bool m_isBuilt = false; ///< the trees are those of the instances
    bool m_isOther = true;
    bool m_isOneTree = true; ///< over all triangles; otherwise over trees of geometries
    qxEmbreeScene m_scene;
    qxEmbreeScene m_translucent;
    qxBox m_bounds;
};
