#pragma once

#include "Render/qxEmbree.h"
#include "Render/qxRenderMath.h"

#include <OpenSG/OSGGeometry.h>

#include <QByteArray>

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
    /// Texture coordinates by their number; null without.
    osg::Vec2f texCoordsAt(const Place &place, osg::UInt32 number) const;
    osg::Vec4f colourAt(const Place &place) const; ///< opaque white without colours
    /// Along the first texture coordinates; its fourth value is -1 where the bitangent is turned
    /// round. Null without.
    osg::Vec4f tangentAt(const Place &place) const;
    /// From the first corner of a triangle to the second (0) or third one (1).
    osg::Vec3f side(std::uint32_t triangle, std::size_t number) const;
    ///@{
    /// The change of normal or texture coordinates when the weights of a place change.
    osg::Vec3f normalStep(std::uint32_t triangle, const osg::Vec2f &weights) const;
    osg::Vec2f texCoordsStep(std::uint32_t triangle, osg::UInt32 number,
                             const osg::Vec2f &weights) const;
    ///@}

    /// Of a core, null where it has none: places in pictures, then the tangents, x and y in the
    /// first, z and the sign of the bitangent in the second.
    typedef std::array<osg::GeoTexCoordsPtr, 8> TexCoords;
    static TexCoords texCoordsOf(const osg::GeometryPtr &core);

    /// Tells the triangles, with all that they have, from others; computed at the first call.
    const QByteArray &digest() const;

    /// Whether nodes may give the geometry a form of their own (qxRenderShape).
    bool isDeformable() const { return m_isDeformable; }
    /// What a form consists of.
    struct Form {
        std::vector<osg::Vec3f> positions;
        std::vector<osg::Vec3f> normals; ///< as many; none if they are to be computed
        std::vector<osg::Vec4f> tangents; ///< as many or none
    };
    Form form() const { return {m_positions, m_normals, m_tangents}; }
    /// A copy of another form. Positions that are not finite stay where they are.
    std::shared_ptr<const qxRenderGeometry> shaped(Form form) const;

    /// Whether the geometry it was made of changed since.
    bool isOutdated() const { return m_outdated; }
    void setOutdated() { m_outdated = true; }

private:
    template <class Value>
    Value at(const std::vector<Value> &values, const Place &place) const;
    template <class Value>
    Value step(const std::vector<Value> &values, std::uint32_t triangle,
               const osg::Vec2f &weights) const;
    void copyShared(const osg::GeometryPtr &core);
    void copyTangents(const TexCoords &all);
    void copyCorners(const osg::GeometryPtr &core);
    void computeNormals();

    std::vector<osg::Vec3f> m_positions;
    std::vector<osg::Vec3f> m_normals; ///< this and the following: as many, or none
    std::array<std::vector<osg::Vec2f>, 6> m_texCoords; ///< by number
    std::vector<osg::Vec4f> m_tangents;
    std::vector<osg::Vec4f> m_colours;
    std::vector<Triangle> m_triangles;
    mutable qxEmbreeScene m_scene;
    mutable QByteArray m_digest; ///< empty until asked for
    bool m_isDeformable = false;
    bool m_outdated = false;
};
