#include <OpenSG/OSGGeoProperty.h>

#include <OpenSG/OSGGeoPropertyTypes.h>
#include <OpenSG/OSGGeometry.h>

namespace osg {

// Between the type that a kind is exchanged as and the one that a format stores.
template <class To, class From>
static To convertTo(const From &value)
{
    return To(value);
}

template <>
Color4f convertTo<Color4f, Color3f>(const Color3f &color)
{
    return Color4f(color.red(), color.green(), color.blue(), 1.f);
}

template <>
Color3f convertTo<Color3f, Color4f>(const Color4f &color)
{
    return Color3f(color.red(), color.green(), color.blue());
}

template <class Kind>
FieldContainerType &AbstractGeoProperty<Kind>::getType()
{
    return _type;
}

template <class Kind>
const FieldContainerType &AbstractGeoProperty<Kind>::getType() const
{
    return _type;
}

template <class Kind>
void AbstractGeoProperty<Kind>::changed(BitVector whichField, UInt32 origin)
{
    if constexpr (std::is_same_v<Kind, GeoPositionsKind>) {
        for (const FieldContainerPtr &geometry : getParents())
            changedCP(geometry, Geometry::PositionsFieldMask, ChangedOrigin::Child);
    }
    Inherited::changed(whichField, origin);
}

template <class Desc>
FieldContainerType &GeoProperty<Desc>::getType()
{
    return _type;
}

template <class Desc>
const FieldContainerType &GeoProperty<Desc>::getType() const
{
    return _type;
}

template <class Desc>
typename GeoProperty<Desc>::PtrType GeoProperty<Desc>::create()
{
    return FieldContainer::createFrom<PtrType>(_type);
}

template <class Desc>
typename GeoProperty<Desc>::PtrType GeoProperty<Desc>::createEmpty()
{
    return FieldContainer::createDefault<PtrType>();
}

template <class Desc>
UInt32 GeoProperty<Desc>::getContainerSize() const
{
    return sizeof(GeoProperty);
}

template <class Desc>
FieldContainerPtr GeoProperty<Desc>::shallowCopy() const
{
    return FieldContainer::copyOf(*this);
}

template <class Desc>
typename GeoProperty<Desc>::GenericType GeoProperty<Desc>::getValue(const UInt32 index) const
{
    return convertTo<GenericType>(m_field[index]);
}

template <class Desc>
void GeoProperty<Desc>::setValue(const GenericType &value, const UInt32 index)
{
    m_field[index] = convertTo<StoredType>(value);
}

template <class Desc>
void GeoProperty<Desc>::addValue(const GenericType &value)
{
    m_field.push_back(convertTo<StoredType>(value));
}

template <class Desc>
bool GeoProperty<Desc>::insertValue(const GenericType &value, const UInt32 index)
{
    if (index > m_field.size())
        return false;
    m_field.insert(m_field.begin() + index, convertTo<StoredType>(value));
    return true;
}

template <class Desc>
UInt8 *GeoProperty<Desc>::getData() const
{
    if (m_field.empty())
        return NULL;
    return reinterpret_cast<UInt8 *>(const_cast<StoredType *>(m_field.getValues().data()));
}

template <class Desc>
const BitVector GeoProperty<Desc>::GeoPropDataFieldMask =
    TypeTraits<BitVector>::One << GeoProperty<Desc>::GeoPropDataFieldId;

#define OSG_GEO_KIND_CODE(NAME) \
    template <> \
    FieldContainerType NAME::_type(#NAME, "Attachment", #NAME); \
    template class AbstractGeoProperty<NAME##Kind>;

OSG_GEO_KIND_CODE(GeoPositions)
OSG_GEO_KIND_CODE(GeoNormals)
OSG_GEO_KIND_CODE(GeoColors)
OSG_GEO_KIND_CODE(GeoTexCoords)
OSG_GEO_KIND_CODE(GeoIndices)
OSG_GEO_KIND_CODE(GeoPTypes)
OSG_GEO_KIND_CODE(GeoPLengths)

#define OSG_GEO_FORMAT_CODE(NAME, KIND) \
    template <> \
    FieldDescription *NAME::_desc[] = {new FieldDescription( \
        StoredFieldType::getClassType(), "geoPropData", NAME::GeoPropDataFieldId, \
        NAME::GeoPropDataFieldMask, false, (FieldAccessMethod)&NAME::getFieldPtr)}; \
    template <> \
    FieldContainerType NAME::_type( \
        #NAME, #KIND, #KIND, [] { return FieldContainerPtr(NAME::createEmpty()); }, NULL, _desc, \
        sizeof(_desc)); \
    template class GeoProperty<NAME##Desc>;

OSG_GEO_FORMAT_CODE(GeoPositions3f, GeoPositions)
OSG_GEO_FORMAT_CODE(GeoNormals3f, GeoNormals)
OSG_GEO_FORMAT_CODE(GeoColors3f, GeoColors)
OSG_GEO_FORMAT_CODE(GeoColors4f, GeoColors)
OSG_GEO_FORMAT_CODE(GeoTexCoords2f, GeoTexCoords)
OSG_GEO_FORMAT_CODE(GeoIndicesUI32, GeoIndices)
OSG_GEO_FORMAT_CODE(GeoIndicesUI16, GeoIndices)
OSG_GEO_FORMAT_CODE(GeoPTypesUI8, GeoPTypes)
OSG_GEO_FORMAT_CODE(GeoPLengthsUI32, GeoPLengths)
OSG_GEO_FORMAT_CODE(GeoPLengthsUI16, GeoPLengths)
OSG_GEO_FORMAT_CODE(GeoPLengthsUI8, GeoPLengths)

} // namespace osg
