#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>

namespace osg {

/// A pointer that holds a reference. Beware of a temporary one: it takes the only reference of a
/// new object and destroys it.
template <class PtrT>
class RefPtr {
public:
    typedef PtrT Ptr;
    typedef typename PtrT::ObjectType ObjectType;
    typedef FieldContainerPtrBase::unspecified_bool_type unspecified_bool_type;

    RefPtr() = default;
    /// Null. A plain pointer has to be wrapped explicitly.
    RefPtr(const NullFieldContainerPtr &) {}
    explicit RefPtr(const PtrT &object) : m_object(object) { addRefCP(m_object); }
    RefPtr(const RefPtr &other) : m_object(other.m_object) { addRefCP(m_object); }
    /// Destroys the object when this was the last reference.
    ~RefPtr() { subRefCP(m_object); }

    /// References the new object before it releases the old one.
    void operator=(const PtrT &object)
    {
        const PtrT old = m_object;
        addRefCP(object);
        m_object = object;
        subRefCP(old);
    }
    void operator=(const RefPtr &other) { *this = other.m_object; }
    void operator=(const NullFieldContainerPtr &) { clearRefCP(m_object); }

    /// The plain pointer, which holds no reference.
    PtrT get() const { return m_object; }
    operator PtrT() const { return m_object; }
    ObjectType *operator->() const { return m_object.operator->(); }
    ObjectType &operator*() const { return *m_object; }
    ObjectType *getCPtr() const { return m_object.getCPtr(); }

    /// Tests for null; comparisons are those of the plain pointers.
    bool operator!() const { return !m_object; }
    operator unspecified_bool_type() const { return m_object; }
    bool operator==(const FieldContainerPtrBase &other) const { return m_object == other; }
    bool operator!=(const FieldContainerPtrBase &other) const { return m_object != other; }
    bool operator<(const FieldContainerPtrBase &other) const { return m_object < other; }
    bool operator==(const RefPtr &other) const { return m_object == other.m_object; }
    bool operator!=(const RefPtr &other) const { return m_object != other.m_object; }
    bool operator<(const RefPtr &other) const { return m_object < other.m_object; }

private:
    PtrT m_object;
};

} // namespace osg
