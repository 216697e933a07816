#pragma once

/// \file
/// The formats that geometry arrays come in.

#include <OpenSG/OSGColor4fFields.h>
#include <OpenSG/OSGGL.h>
#include <OpenSG/OSGGeoProperty.h>
#include <OpenSG/OSGNumberFields.h>
#include <OpenSG/OSGPnt3fFields.h>
#include <OpenSG/OSGVec3fFields.h>

namespace osg {

/// Describes a format: the field that stores the elements, the GL number format, components.
#define OSG_GEO_DESC(NAME, KIND, FIELD, FORMAT, DIMENSION) \
    struct NAME##Desc { \
        typedef KIND##Kind Kind; \
        typedef FIELD StoredFieldType; \
        enum { Format = FORMAT, Dimension = DIMENSION }; \
    };

/// Corners, in the coordinates of the geometry.
OSG_GEO_DESC(GeoPositions3f, GeoPositions, MFPnt3f, GL_FLOAT, 3)
/// Directions perpendicular to the surface.
OSG_GEO_DESC(GeoNormals3f, GeoNormals, MFVec3f, GL_FLOAT, 3)
/// Colours, opaque or with alpha.
OSG_GEO_DESC(GeoColors3f, GeoColors, MFColor3f, GL_FLOAT, 3)
OSG_GEO_DESC(GeoColors4f, GeoColors, MFColor4f, GL_FLOAT, 4)
/// Places in a picture, (0, 0) being its lower left corner.
OSG_GEO_DESC(GeoTexCoords2f, GeoTexCoords, MFVec2f, GL_FLOAT, 2)
/// References to elements of the arrays above.
OSG_GEO_DESC(GeoIndicesUI32, GeoIndices, MFUInt32, GL_UNSIGNED_INT, 1)
OSG_GEO_DESC(GeoIndicesUI16, GeoIndices, MFUInt16, GL_UNSIGNED_SHORT, 1)
/// Primitive kinds, and how many vertices each has.
OSG_GEO_DESC(GeoPTypesUI8, GeoPTypes, MFUInt8, GL_UNSIGNED_BYTE, 1)
OSG_GEO_DESC(GeoPLengthsUI32, GeoPLengths, MFUInt32, GL_UNSIGNED_INT, 1)
OSG_GEO_DESC(GeoPLengthsUI16, GeoPLengths, MFUInt16, GL_UNSIGNED_SHORT, 1)
OSG_GEO_DESC(GeoPLengthsUI8, GeoPLengths, MFUInt8, GL_UNSIGNED_BYTE, 1)

// The library holds their types and their code.
#define OSG_GEO_KIND_EXTERN(NAME) \
    template <> \
    FieldContainerType NAME::_type; \
    extern template class AbstractGeoProperty<NAME##Kind>;
#define OSG_GEO_FORMAT_EXTERN(NAME) \
    template <> \
    FieldDescription *NAME::_desc[1]; \
    template <> \
    FieldContainerType NAME::_type; \
    extern template class GeoProperty<NAME##Desc>;

OSG_GEO_KIND_EXTERN(GeoPositions)
OSG_GEO_KIND_EXTERN(GeoNormals)
OSG_GEO_KIND_EXTERN(GeoColors)
OSG_GEO_KIND_EXTERN(GeoTexCoords)
OSG_GEO_KIND_EXTERN(GeoIndices)
OSG_GEO_KIND_EXTERN(GeoPTypes)
OSG_GEO_KIND_EXTERN(GeoPLengths)
OSG_GEO_FORMAT_EXTERN(GeoPositions3f)
OSG_GEO_FORMAT_EXTERN(GeoNormals3f)
OSG_GEO_FORMAT_EXTERN(GeoColors3f)
OSG_GEO_FORMAT_EXTERN(GeoColors4f)
OSG_GEO_FORMAT_EXTERN(GeoTexCoords2f)
OSG_GEO_FORMAT_EXTERN(GeoIndicesUI32)
OSG_GEO_FORMAT_EXTERN(GeoIndicesUI16)
OSG_GEO_FORMAT_EXTERN(GeoPTypesUI8)
OSG_GEO_FORMAT_EXTERN(GeoPLengthsUI32)
OSG_GEO_FORMAT_EXTERN(GeoPLengthsUI16)
OSG_GEO_FORMAT_EXTERN(GeoPLengthsUI8)

} // namespace osg
