#pragma once

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGColor3fFields.h>
#include <OpenSG/OSGGeoPropPtrs.h>
#include <OpenSG/OSGVec2fFields.h>

namespace osg {

/// An array of a geometry, seen without the format of its elements. Indices must be in range.
template <class Kind>
class AbstractGeoProperty : public Attachment {
    typedef Attachment Inherited;

public:
    typedef typename Kind::GenericType GenericType;
    typedef FCPtr<AttachmentPtr, AbstractGeoProperty> PtrType;

    /// Type access.
    OSG_ABSTR_FIELD_CONTAINER_DECL(PtrType)

    /// The element, converted to the type it is exchanged as; the second form stores it.
    virtual GenericType getValue(const UInt32 index) const = 0;
    void getValue(GenericType &value, const UInt32 index) const { value = getValue(index); }
    /// Overwrites an element.
    virtual void setValue(const GenericType &value, const UInt32 index) = 0;
    /// Appends.
    virtual void addValue(const GenericType &value) = 0;
    void push_back(const GenericType &value) { addValue(value); }

    /// Number of elements.
    virtual UInt32 getSize() const = 0;
    UInt32 size() const { return getSize(); }
    /// New elements are all 0.
    virtual void resize(size_t size) = 0;
    virtual void clear() = 0;

    /// The first element, NULL when empty.
    virtual UInt8 *getData() const = 0;
    /// The number format of a component, a GL value.
    virtual UInt32 getFormat() const = 0;
    /// Components per element.
    virtual UInt32 getDimension() const = 0;
    /// Bytes per component.
    virtual UInt32 getFormatSize() const = 0;
    /// Bytes between elements, 0 when they are packed.
    virtual UInt32 getStride() const { return 0; }

    /// Edited positions change the volumes of the nodes that show them.
    void changed(BitVector whichField, UInt32 origin) override;

protected:
    AbstractGeoProperty() = default;
    AbstractGeoProperty(const AbstractGeoProperty &) = default;

private:
    friend class FieldContainer;
    static FieldContainerType _type;
};

/// An array of a geometry in one format. Elements pass through the kind's type; getField() gives
/// them as they are stored.
template <class Desc>
class GeoProperty : public AbstractGeoProperty<typename Desc::Kind> {
    typedef AbstractGeoProperty<typename Desc::Kind> Inherited;

public:
    typedef FCPtr<typename Inherited::PtrType, GeoProperty> PtrType;
    typedef typename Inherited::GenericType GenericType;
    typedef typename Desc::StoredFieldType StoredFieldType;
    typedef typename StoredFieldType::ValueType StoredType;
    enum { GeoPropDataFieldId = Inherited::NextFieldId, NextFieldId };
    static const BitVector GeoPropDataFieldMask;

    /// Type access and creation.
    OSG_FIELD_CONTAINER_DECL(PtrType)

    /// The elements as they are stored, such as colours with their alpha.
    StoredFieldType &getField() { return m_field; }
    const StoredFieldType &getField() const { return m_field; }
    StoredFieldType *getFieldPtr() { return &m_field; }

    using Inherited::getValue;
    GenericType getValue(const UInt32 index) const override;
    void setValue(const GenericType &value, const UInt32 index) override;
    void addValue(const GenericType &value) override;
    /// Inserts before the element at \a index; false when that is beyond the end.
    bool insertValue(const GenericType &value, const UInt32 index);
    UInt32 getSize() const override { return UInt32(m_field.size()); }
    void resize(size_t size) override { m_field.resize(size); }
    void clear() override { m_field.clear(); }
    /// The elements as raw memory, with what is needed to read it.
    UInt8 *getData() const override;
    UInt32 getFormat() const override { return Desc::Format; }
    UInt32 getDimension() const override { return Desc::Dimension; }
    UInt32 getFormatSize() const override { return sizeof(StoredType) / Desc::Dimension; }

protected:
    GeoProperty() = default;
    GeoProperty(const GeoProperty &) = default;

private:
    friend class FieldContainer;
    static FieldDescription *_desc[];
    static FieldContainerType _type;

    StoredFieldType m_field;
};

} // namespace osg
