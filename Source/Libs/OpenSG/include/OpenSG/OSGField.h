#pragma once

#include <OpenSG/OSGBaseTypes.h>

namespace osg {

class FieldContainerPtrBase;

/// What a field holds: one value or many. Fields of the same C++ type share one object.
class FieldType {
public:
    enum Cardinality { SINGLE_FIELD, MULTI_FIELD };

    constexpr explicit FieldType(Cardinality cardinality) : m_cardinality(cardinality) {}
    FieldType(const FieldType &) = delete;

    Cardinality getCardinality() const { return m_cardinality; }
    bool operator==(const FieldType &other) const { return this == &other; }
    bool operator!=(const FieldType &other) const { return this != &other; }

private:
    Cardinality m_cardinality;
};

/// One field of a container, seen without its value type.
class Field {
public:
    virtual ~Field() = default;

    virtual const FieldType &getType() const = 0;
    /// Number of values, 1 for a single-value field.
    virtual UInt32 getSize() const = 0;
    bool isEmpty() const { return getSize() == 0; }

    /// Takes over the values of a field of the same type; any other is ignored. Counts nothing.
    virtual void setAbstrValue(const Field &other) = 0;

    /// The container pointer at \a index, null when the field holds other values. Whoever assigns
    /// to it keeps the class of the object and does the reference counting.
    virtual FieldContainerPtrBase *getPointer(UInt32 index) = 0;

protected:
    /// Only as a part of its container.
    Field() = default;
    Field(const Field &) = default;
    void operator=(const Field &) {}
};

} // namespace osg
