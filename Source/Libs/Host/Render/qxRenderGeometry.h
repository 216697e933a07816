#pragma once

#include "Render/qxEmbree.h"
#include "Render/qxRenderMath.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGMatrix.h>

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

/// A copy of the triangles of a geometry for ray tracing, in its own coordinates. All nodes with
/// that geometry share it.
class qxRenderGeometry {
public:
    typedef std::array<std::uint32_t, 3> Triangle; ///< places in the lists of the corners

    /// Leaves out points, lines and triangles with coordinates that are not finite.
    static std::shared_ptr<qxRenderGeometry> make(const osg::GeometryPtr &core);

    /// The triangles as a geometry of Embree, transformed by a matrix.
    qxEmbreeGeometry placed(RTCDevice device, const osg::Matrix &matrix) const;
    /// A search tree over the triangles, for instances; built at the first call.
    RTCScene scene(RTCDevice device) const;
    const std::vector<Triangle> &triangles() const { return m_triangles; }
    const std::vector<osg::Vec3f> &positions() const { return m_positions; }

    /// A point of a triangle; u and v are the weights of its second and third corner.
    struct Place {
        std::uint32_t triangle;
        float u;
        float v;
    };
    osg::Vec3f normalAt(const Place &place) const; ///< null without normals
    osg::Vec2f texCoordsAt(const Place &place) const; ///< null without texture coordinates
    /// The change of the texture coordinates per length in world coordinates, to which `matrix`
    /// transforms.
    float texCoordsPerLength(const Place &place, const osg::Matrix &matrix) const;
    osg::Vec4f colourAt(const Place &place) const; ///< opaque white without colours

    /// Whether nodes may give the geometry a form of their own (qxRenderShape).
    bool isDeformable() const { return m_isDeformable; }
    /// What a form consists of.
    struct Form {
        std::vector<osg::Vec3f> positions;
        std::vector<osg::Vec3f> normals; ///< as many; none if they are to be computed
    };
    Form form() const { return {m_positions, m_normals}; }
    /// A copy of another form. Positions that are not finite stay where they are.
    std::shared_ptr<const qxRenderGeometry> shaped(Form form) const;

    /// Whether the geometry it was made of changed since.
    bool isOutdated() const { return m_outdated; }
    void setOutdated() { m_outdated = true; }

private:
    template <class Value>
    Value at(const std::vector<Value> &values, const Place &place) const;
    void copyShared(const osg::GeometryPtr &core);
    void copyCorners(const osg::GeometryPtr &core);
    void computeNormals();

    std::vector<osg::Vec3f> m_positions;
    std::vector<osg::Vec3f> m_normals; ///< this and the following: as many, or none
    std::vector<osg::Vec2f> m_texCoords;
    std::vector<osg::Vec4f> m_colours;
    std::vector<Triangle> m_triangles;
    mutable qxEmbreeScene m_scene;
    bool m_isDeformable = false;
    bool m_outdated = false;
};
