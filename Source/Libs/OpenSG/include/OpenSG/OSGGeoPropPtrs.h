#pragma once

/// \file
/// The arrays that a geometry is made of, by name: kinds, formats, pointers.

#include <OpenSG/OSGAttachmentFields.h>
#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGVector.h>

namespace osg {

/// An array whatever the format of its elements; Kind says what the elements mean.
template <class Kind>
class AbstractGeoProperty;
/// An array of one format.
template <class Desc>
class GeoProperty;

/// Declares a kind of array and the type its elements are exchanged as.
#define OSG_GEO_KIND(NAME, GENERIC) \
    struct NAME##Kind { \
        typedef GENERIC GenericType; \
    }; \
    typedef AbstractGeoProperty<NAME##Kind> NAME; \
    typedef FCPtr<AttachmentPtr, NAME> NAME##Ptr; \
    OSG_FIELD_TYPEDEFS(NAME##Ptr, NAME##Ptr)

OSG_GEO_KIND(GeoPositions, Pnt3f)
OSG_GEO_KIND(GeoNormals, Vec3f)
/// Alpha is lost when colours are exchanged this way.
OSG_GEO_KIND(GeoColors, Color3f)
OSG_GEO_KIND(GeoTexCoords, Vec2f)
OSG_GEO_KIND(GeoIndices, UInt32)
OSG_GEO_KIND(GeoPTypes, UInt8)
OSG_GEO_KIND(GeoPLengths, UInt32)

/// Declares an array of a kind that stores its elements in a certain format.
#define OSG_GEO_FORMAT(NAME, KIND) \
    struct NAME##Desc; \
    typedef GeoProperty<NAME##Desc> NAME; \
    typedef FCPtr<KIND##Ptr, NAME> NAME##Ptr;

OSG_GEO_FORMAT(GeoPositions3f, GeoPositions)
OSG_GEO_FORMAT(GeoNormals3f, GeoNormals)
OSG_GEO_FORMAT(GeoColors3f, GeoColors)
OSG_GEO_FORMAT(GeoColors4f, GeoColors)
OSG_GEO_FORMAT(GeoTexCoords2f, GeoTexCoords)
OSG_GEO_FORMAT(GeoIndicesUI32, GeoIndices)
OSG_GEO_FORMAT(GeoIndicesUI16, GeoIndices)
OSG_GEO_FORMAT(GeoPTypesUI8, GeoPTypes)
OSG_GEO_FORMAT(GeoPLengthsUI32, GeoPLengths)
OSG_GEO_FORMAT(GeoPLengthsUI16, GeoPLengths)
OSG_GEO_FORMAT(GeoPLengthsUI8, GeoPLengths)

} // namespace osg
