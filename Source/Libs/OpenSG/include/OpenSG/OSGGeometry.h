#pragma once

#include <OpenSG/OSGBoolFields.h>
#include <OpenSG/OSGGeoPropertyTypes.h>
#include <OpenSG/OSGGeometryFields.h>
#include <OpenSG/OSGMaterialDrawable.h>

namespace osg {

class TriangleIterator;

/// A property of a geometry: mask, accessors and field. The setter references the new array, then
/// releases the old one; null for none.
#define OSG_GEO_PROPERTY(KIND, NAME) \
public: \
    static const BitVector NAME##FieldMask; \
    SF##KIND##Ptr *getSF##NAME() \
    { \
        return &_sf##NAME; \
    } \
    KIND##Ptr &get##NAME() \
    { \
        return _sf##NAME.getValue(); \
    } \
    const KIND##Ptr &get##NAME() const \
    { \
        return _sf##NAME.getValue(); \
    } \
    void set##NAME(const KIND##Ptr &value); \
\
protected: \
    SF##KIND##Ptr _sf##NAME;

/// Polygons, lines and points. `Types` holds a GL primitive kind per primitive, `Lengths` how many
/// vertices it has. Without `Indices` vertices are taken in order. With them each vertex has one
/// index for all properties, or, when `IndexMapping` is not empty, one index per entry of the
/// mapping, which says what that index is for (a sum of Map values).
class Geometry : public MaterialDrawable {
    typedef MaterialDrawable Inherited;

public:
    typedef GeometryPtr Ptr;
    enum {
        TypesFieldId = Inherited::NextFieldId,
        LengthsFieldId,
        PositionsFieldId,
        NormalsFieldId,
        ColorsFieldId,
        SecondaryColorsFieldId,
        TexCoordsFieldId,
        TexCoords1FieldId,
        TexCoords2FieldId,
        TexCoords3FieldId,
        TexCoords4FieldId,
        TexCoords5FieldId,
        TexCoords6FieldId,
        TexCoords7FieldId,
        IndicesFieldId,
        IndexMappingFieldId,
        DlistCacheFieldId,
        NextFieldId
    };
    /// Entries of the index mapping.
    enum {
        MapPosition = 1,
        MapNormal = 2,
        MapColor = 4,
        MapSecondaryColor = 8,
        MapTexCoords = 16,
        MapTexCoords1 = 32,
        MapTexCoords2 = 64,
        MapTexCoords3 = 128,
        MapTexCoords4 = 256,
        MapTexCoords5 = 512,
        MapTexCoords6 = 1024,
        MapTexCoords7 = 2048
    };

    OSG_FIELD_CONTAINER_DECL(GeometryPtr)

    /// A geometry with arrays of its own and the same material.
    GeometryPtr clone();

    /// Place of a property among a vertex's indices; -1 when it is not mapped.
    Int16 calcMappingIndex(UInt16 property) const;

    /// All triangles of all primitives; polygons are cut up, points and lines left out.
    TriangleIterator beginTriangles() const;
    TriangleIterator endTriangles() const;

    /// Extends by all positions, used or not.
    void adjustVolume(Volume &volume) override;
    /// New positions put the volumes above out of date.
    void changed(BitVector whichField, UInt32 origin) override;

    /// Primitive kinds and their numbers of vertices.
    OSG_GEO_PROPERTY(GeoPTypes, Types)
    OSG_GEO_PROPERTY(GeoPLengths, Lengths)
    /// What vertices have: place, direction of the surface, colours.
    OSG_GEO_PROPERTY(GeoPositions, Positions)
    OSG_GEO_PROPERTY(GeoNormals, Normals)
    OSG_GEO_PROPERTY(GeoColors, Colors)
    OSG_GEO_PROPERTY(GeoColors, SecondaryColors)
    /// Places in up to eight pictures.
    OSG_GEO_PROPERTY(GeoTexCoords, TexCoords)
    OSG_GEO_PROPERTY(GeoTexCoords, TexCoords1)
    OSG_GEO_PROPERTY(GeoTexCoords, TexCoords2)
    OSG_GEO_PROPERTY(GeoTexCoords, TexCoords3)
    OSG_GEO_PROPERTY(GeoTexCoords, TexCoords4)
    OSG_GEO_PROPERTY(GeoTexCoords, TexCoords5)
    OSG_GEO_PROPERTY(GeoTexCoords, TexCoords6)
    OSG_GEO_PROPERTY(GeoTexCoords, TexCoords7)
    /// Which elements belong to a vertex; null when all stand in the order of the vertices.
    OSG_GEO_PROPERTY(GeoIndices, Indices)
    /// What each index of a vertex is for; empty when there is one for all.
    OSG_MF(MFUInt16, IndexMapping)
    /// Whether a renderer may keep the geometry in a form of its own.
    OSG_SF_INIT(SFBool, DlistCache, true)

protected:
    Geometry() = default;
    Geometry(const Geometry &) = default;
    ~Geometry() override;

    OSG_CONTAINER_STATICS
};

typedef Geometry GeometryBase;
typedef RefPtr<GeometryPtr> GeometryRefPtr;
typedef CoredNodePtr<Geometry> GeometryNodePtr;

OSG_FIELD_CONTAINER_INL_DEF(Geometry, GeometryPtr)

} // namespace osg
