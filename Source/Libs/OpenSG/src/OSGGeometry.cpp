#include <OpenSG/OSGGeometry.h>

#include <OpenSG/OSGTriangleIterator.h>
#include <OpenSG/OSGVolume.h>

namespace osg {

OSG_FIELD_MASK(Geometry, Types)
OSG_FIELD_MASK(Geometry, Lengths)
OSG_FIELD_MASK(Geometry, Positions)
OSG_FIELD_MASK(Geometry, Normals)
OSG_FIELD_MASK(Geometry, Colors)
OSG_FIELD_MASK(Geometry, SecondaryColors)
OSG_FIELD_MASK(Geometry, TexCoords)
OSG_FIELD_MASK(Geometry, TexCoords1)
OSG_FIELD_MASK(Geometry, TexCoords2)
OSG_FIELD_MASK(Geometry, TexCoords3)
OSG_FIELD_MASK(Geometry, TexCoords4)
OSG_FIELD_MASK(Geometry, TexCoords5)
OSG_FIELD_MASK(Geometry, TexCoords6)
OSG_FIELD_MASK(Geometry, TexCoords7)
OSG_FIELD_MASK(Geometry, Indices)
OSG_FIELD_MASK(Geometry, IndexMapping)
OSG_FIELD_MASK(Geometry, DlistCache)

FieldDescription *Geometry::_desc[] = {
    OSG_SF_DESC(Geometry, Types, "types", false),
    OSG_SF_DESC(Geometry, Lengths, "lengths", false),
    OSG_SF_DESC(Geometry, Positions, "positions", false),
    OSG_SF_DESC(Geometry, Normals, "normals", false),
    OSG_SF_DESC(Geometry, Colors, "colors", false),
    OSG_SF_DESC(Geometry, SecondaryColors, "secondaryColors", false),
    OSG_SF_DESC(Geometry, TexCoords, "texCoords", false),
    OSG_SF_DESC(Geometry, TexCoords1, "texCoords1", false),
    OSG_SF_DESC(Geometry, TexCoords2, "texCoords2", false),
    OSG_SF_DESC(Geometry, TexCoords3, "texCoords3", false),
    OSG_SF_DESC(Geometry, TexCoords4, "texCoords4", false),
    OSG_SF_DESC(Geometry, TexCoords5, "texCoords5", false),
    OSG_SF_DESC(Geometry, TexCoords6, "texCoords6", false),
    OSG_SF_DESC(Geometry, TexCoords7, "texCoords7", false),
    OSG_SF_DESC(Geometry, Indices, "indices", false),
    OSG_MF_DESC(Geometry, IndexMapping, "indexMapping", false),
    OSG_SF_DESC(Geometry, DlistCache, "dlistCache", false)};

FieldContainerType Geometry::_type(
    "Geometry", "MaterialDrawable", NULL, [] { return FieldContainerPtr(Geometry::createEmpty()); },
    NULL, _desc, sizeof(_desc));

OSG_FIELD_CONTAINER_DEF(Geometry, GeometryPtr)

/// Gives one place of a geometry another array, or none.
template <class PropertyPtr>
static void exchange(Geometry *geometry, PropertyPtr &place, const PropertyPtr &value)
{
    if (place == value)
        return;
    const FieldContainerPtr owner(geometry);
    const PropertyPtr added = value;
    // Reference before release: the old array may be all that keeps the new one.
    if (added) {
        addRefCP(added);
        added->addParent(owner);
    }
    if (place) {
        place->subParent(owner);
        subRefCP(place);
    }
    place = added;
}

#define OSG_GEO_SETTER(KIND, NAME) \
    void Geometry::set##NAME(const KIND##Ptr &value) \
    { \
        exchange(this, _sf##NAME.getValue(), value); \
    }

OSG_GEO_SETTER(GeoPTypes, Types)
OSG_GEO_SETTER(GeoPLengths, Lengths)
OSG_GEO_SETTER(GeoPositions, Positions)
OSG_GEO_SETTER(GeoNormals, Normals)
OSG_GEO_SETTER(GeoColors, Colors)
OSG_GEO_SETTER(GeoColors, SecondaryColors)
OSG_GEO_SETTER(GeoTexCoords, TexCoords)
OSG_GEO_SETTER(GeoTexCoords, TexCoords1)
OSG_GEO_SETTER(GeoTexCoords, TexCoords2)
OSG_GEO_SETTER(GeoTexCoords, TexCoords3)
OSG_GEO_SETTER(GeoTexCoords, TexCoords4)
OSG_GEO_SETTER(GeoTexCoords, TexCoords5)
OSG_GEO_SETTER(GeoTexCoords, TexCoords6)
OSG_GEO_SETTER(GeoTexCoords, TexCoords7)
OSG_GEO_SETTER(GeoIndices, Indices)

Geometry::~Geometry()
{
    setTypes(NullFC);
    setLengths(NullFC);
    setPositions(NullFC);
    setNormals(NullFC);
    setColors(NullFC);
    setSecondaryColors(NullFC);
    setTexCoords(NullFC);
    setTexCoords1(NullFC);
    setTexCoords2(NullFC);
    setTexCoords3(NullFC);
    setTexCoords4(NullFC);
    setTexCoords5(NullFC);
    setTexCoords6(NullFC);
    setTexCoords7(NullFC);
    setIndices(NullFC);
}

/// A copy of an array, null for null.
template <class PropertyPtr>
static PropertyPtr copyProperty(const PropertyPtr &property)
{
    return property ? PropertyPtr::dcast(property->shallowCopy()) : PropertyPtr();
}

GeometryPtr Geometry::clone()
{
    const GeometryPtr copy = Geometry::create();
    copy->setMaterial(getMaterial());
    copy->setTypes(copyProperty(getTypes()));
    copy->setLengths(copyProperty(getLengths()));
    copy->setPositions(copyProperty(getPositions()));
    copy->setNormals(copyProperty(getNormals()));
    copy->setColors(copyProperty(getColors()));
    copy->setSecondaryColors(copyProperty(getSecondaryColors()));
    copy->setTexCoords(copyProperty(getTexCoords()));
    copy->setTexCoords1(copyProperty(getTexCoords1()));
    copy->setTexCoords2(copyProperty(getTexCoords2()));
    copy->setTexCoords3(copyProperty(getTexCoords3()));
    copy->setTexCoords4(copyProperty(getTexCoords4()));
    copy->setTexCoords5(copyProperty(getTexCoords5()));
    copy->setTexCoords6(copyProperty(getTexCoords6()));
    copy->setTexCoords7(copyProperty(getTexCoords7()));
    copy->setIndices(copyProperty(getIndices()));
    copy->getIndexMapping() = getIndexMapping();
    copy->setDlistCache(getDlistCache());
    return copy;
}

Int16 Geometry::calcMappingIndex(UInt16 property) const
{
    for (UInt32 i = 0; i < _mfIndexMapping.getSize(); ++i) {
        if (_mfIndexMapping[i] & property)
            return Int16(i);
    }
    return -1;
}

TriangleIterator Geometry::beginTriangles() const
{
    return TriangleIterator(*this);
}

TriangleIterator Geometry::endTriangles() const
{
    TriangleIterator end(*this);
    end.setToEnd();
    return end;
}

void Geometry::adjustVolume(Volume &volume)
{
    if (!getPositions())
        return;
    for (UInt32 i = 0; i < getPositions()->size(); ++i)
        volume.extendBy(getPositions()->getValue(i));
}

void Geometry::changed(BitVector whichField, UInt32 origin)
{
    if (whichField & PositionsFieldMask)
        invalidateVolume();
    Inherited::changed(whichField, origin);
}

} // namespace osg
