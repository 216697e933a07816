#pragma once

#include <OpenSG/OSGField.h>
#include <OpenSG/OSGFieldContainerPtr.h>

#include <type_traits>

namespace osg {

/// A value as container pointer, null when it is something else.
template <class ValueT>
FieldContainerPtrBase *asContainerPtr(ValueT &value)
{
    if constexpr (std::is_base_of_v<FieldContainerPtrBase, ValueT>)
        return &value;
    else
        return static_cast<void>(value), nullptr;
}

/// A field that holds exactly one value.
template <class ValueT>
class SField : public Field {
public:
    /// What is stored is the value itself.
    typedef ValueT StoredType;
    typedef ValueT ValueType;

    SField() = default;
    SField(const SField &) = default;
    explicit SField(const ValueT &value) : m_value(value) {}
    void operator=(const SField &other) { m_value = other.m_value; }

    /// One object for all fields of this type in the process.
    static const FieldType &getClassType() { return s_type; }
    const FieldType &getType() const override { return s_type; }
    UInt32 getSize() const override { return 1; }

    /// The value, to read or to write in place.
    ValueT &getValue() { return m_value; }
    const ValueT &getValue() const { return m_value; }
    /// Copies the value. Container pointers are not counted.
    void setValue(const ValueT &value) { m_value = value; }
    void setValue(const SField &other) { m_value = other.m_value; }
    /// Takes over another field; what executeSync() of own cores calls.
    void syncWith(const SField &other) { m_value = other.m_value; }
    void setAbstrValue(const Field &other) override
    {
        if (other.getType() == s_type)
            m_value = static_cast<const SField &>(other).m_value;
    }
    /// The value when it is a container pointer.
    FieldContainerPtrBase *getPointer(UInt32) override { return asContainerPtr(m_value); }

    bool operator==(const SField &other) const { return m_value == other.m_value; }
    bool operator!=(const SField &other) const { return !(*this == other); }

private:
    ValueT m_value = ValueT();

    inline static const FieldType s_type{FieldType::SINGLE_FIELD};
};

} // namespace osg
