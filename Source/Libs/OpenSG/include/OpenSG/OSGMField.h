#pragma once

#include <OpenSG/OSGSField.h>

#include <algorithm>
#include <vector>

namespace osg {

/// Second argument of syncWith() in builds that share multi fields. Carries nothing here.
struct SyncInfo {};

/// A field that holds a list of values. Changing it counts no references.
template <class ValueT>
class MField : public Field {
public:
    /// The vector behind the field, and the type names that containers have.
    typedef std::vector<ValueT> StoredType;
    typedef ValueT ValueType;
    typedef ValueT value_type;
    typedef typename StoredType::size_type size_type;
    typedef typename StoredType::difference_type difference_type;
    typedef typename StoredType::iterator iterator;
    typedef typename StoredType::const_iterator const_iterator;
    typedef typename StoredType::reverse_iterator reverse_iterator;
    typedef typename StoredType::const_reverse_iterator const_reverse_iterator;
    typedef typename StoredType::reference reference;
    typedef typename StoredType::const_reference const_reference;

    MField() = default;
    MField(const MField &) = default;
    void operator=(const MField &other) { m_values = other.m_values; }

    /// One object for all fields of this type in the process.
    static const FieldType &getClassType() { return s_type; }
    const FieldType &getType() const override { return s_type; }
    UInt32 getSize() const override { return UInt32(m_values.size()); }

    /// The values as the vector that they are kept in.
    StoredType &getValues() { return m_values; }
    const StoredType &getValues() const { return m_values; }
    void setValues(const StoredType &values) { m_values = values; }
    /// Takes over another field, in the two forms that own cores may call.
    void syncWith(const MField &other) { m_values = other.m_values; }
    void syncWith(const MField &other, const SyncInfo &) { m_values = other.m_values; }
    void setAbstrValue(const Field &other) override
    {
        if (other.getType() == s_type)
            m_values = static_cast<const MField &>(other).m_values;
    }
    /// The element when it is a container pointer.
    FieldContainerPtrBase *getPointer(UInt32 index) override
    {
        if constexpr (std::is_base_of_v<FieldContainerPtrBase, ValueT>)
            return &m_values[index];
        else
            return static_cast<void>(index), nullptr;
    }

    // The list operations are those of std::vector.
    iterator begin() { return m_values.begin(); }
    iterator end() { return m_values.end(); }
    const_iterator begin() const { return m_values.begin(); }
    const_iterator end() const { return m_values.end(); }
    reverse_iterator rbegin() { return m_values.rbegin(); }
    reverse_iterator rend() { return m_values.rend(); }
    const_reverse_iterator rbegin() const { return m_values.rbegin(); }
    const_reverse_iterator rend() const { return m_values.rend(); }
    reference front() { return m_values.front(); }
    const_reference front() const { return m_values.front(); }
    reference back() { return m_values.back(); }
    const_reference back() const { return m_values.back(); }
    reference operator[](UInt32 index) { return m_values[index]; }
    const_reference operator[](UInt32 index) const { return m_values[index]; }

    size_type size() const { return m_values.size(); }
    bool empty() const { return m_values.empty(); }
    void clear() { m_values.clear(); }
    /// Changes at the end, in the middle and of the length. Ranges are not erased at once.
    void push_back(const ValueT &value) { m_values.push_back(value); }
    iterator insert(iterator at, const ValueT &value) { return m_values.insert(at, value); }
    iterator erase(iterator at) { return m_values.erase(at); }
    void resize(size_type size, const ValueT &value = ValueT()) { m_values.resize(size, value); }
    void reserve(size_type size) { m_values.reserve(size); }

    /// The first entry equal to \a value, end() when there is none.
    iterator find(const ValueT &value) { return std::find(begin(), end(), value); }
    const_iterator find(const ValueT &value) const { return std::find(begin(), end(), value); }

    /// Whether all values are equal, in the same order.
    bool operator==(const MField &other) const { return m_values == other.m_values; }
    bool operator!=(const MField &other) const { return !(*this == other); }

private:
    StoredType m_values;

    inline static const FieldType s_type{FieldType::MULTI_FIELD};
};

} // namespace osg

/// Declares SFName and MFName for values of a type; the library holds the only copy of their code.
#define OSG_FIELD_TYPEDEFS(VALUE, NAME) \
    typedef SField<VALUE> SF##NAME; \
    typedef MField<VALUE> MF##NAME; \
    extern template class SField<VALUE>; \
    extern template class MField<VALUE>;
