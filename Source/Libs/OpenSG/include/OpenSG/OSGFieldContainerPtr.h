#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <cassert>
#include <iosfwd>

namespace osg {

class FieldContainer;

/// Whether this thread called osgInit(). With OpenSG 1.8 no other may look at a container, so
/// builds with assertions do not let it.
inline thread_local bool isLibraryThread = false;

/// Pointer to a container, without its class. A plain value: copying it counts nothing. Pointers
/// are equal and ordered by the object alone, so pointers of different types can be compared.
class FieldContainerPtrBase {
    void isSet() const {}

public:
    typedef void (FieldContainerPtrBase::*unspecified_bool_type)() const;

    /// Number of references held; 0 for null.
    Int32 getRefCount() const;
    /// Id for FieldContainerFactory::getContainer(). Not for null.
    UInt32 getFieldContainerId() const;
    /// Size of the object in bytes. Not for null.
    UInt16 getContainerSize() const;
    /// The object, NULL for null.
    FieldContainer *getBaseCPtr() const { return m_object; }

    bool operator==(const FieldContainerPtrBase &other) const { return m_object == other.m_object; }
    bool operator!=(const FieldContainerPtrBase &other) const { return m_object != other.m_object; }
    bool operator<(const FieldContainerPtrBase &other) const { return m_object < other.m_object; }
    bool operator!() const { return !m_object; }
    operator unspecified_bool_type() const
    {
        return m_object ? &FieldContainerPtrBase::isSet : nullptr;
    }
    void operator=(const FieldContainerPtrBase &other) { m_object = other.m_object; }

protected:
    constexpr FieldContainerPtrBase() = default;
    constexpr FieldContainerPtrBase(const FieldContainerPtrBase &) = default;
    explicit FieldContainerPtrBase(const FieldContainer *object)
        : m_object(const_cast<FieldContainer *>(object))
    {
    }

    /// The object for whoever looks at it.
    FieldContainer *accessed() const
    {
        assert(isLibraryThread && "a container is looked at in a thread without osgInit()");
        return m_object;
    }

    /// Mutable, because a release that destroys the object clears the pointer it was given.
    mutable FieldContainer *m_object = nullptr;

    friend void subRefCP(const FieldContainerPtrBase &object);
    friend void setRefdCP(FieldContainerPtrBase &target, const FieldContainerPtrBase &value);
};

/// Pointer to any container.
class FieldContainerPtr : public FieldContainerPtrBase {
public:
    typedef FieldContainer StoredObjectType;
    typedef FieldContainer ObjectType;

    constexpr FieldContainerPtr() = default;
    constexpr FieldContainerPtr(const FieldContainerPtr &) = default;
    explicit FieldContainerPtr(const FieldContainer *object) : FieldContainerPtrBase(object) {}
    explicit FieldContainerPtr(const FieldContainer &object) : FieldContainerPtrBase(&object) {}
    void operator=(const FieldContainerPtr &other) { m_object = other.m_object; }

    FieldContainer *operator->() const { return accessed(); }
    FieldContainer &operator*() const { return *accessed(); }
    FieldContainer *getCPtr() const { return m_object; }

    template <class In>
    static FieldContainerPtr dcast(const In in)
    {
        return FieldContainerPtr(in.getBaseCPtr());
    }
};

/// The type of the null pointer, which every pointer can be made from and compared with.
class NullFieldContainerPtr : public FieldContainerPtr {
public:
    constexpr NullFieldContainerPtr() = default;
};

extern const NullFieldContainerPtr NullFC;

/// Pointer to a container of class T. Converts to BasePtrT by slicing; downwards only by dcast().
template <class BasePtrT, class T>
class FCPtr : public BasePtrT {
public:
    typedef T StoredObjectType;
    typedef T ObjectType;

    constexpr FCPtr() = default;
    constexpr FCPtr(const FCPtr &) = default;
    FCPtr(const NullFieldContainerPtr &) {}
    explicit FCPtr(const T *object) { this->m_object = const_cast<T *>(object); }
    explicit FCPtr(const T &object) : FCPtr(&object) {}
    void operator=(const FCPtr &other) { this->m_object = other.m_object; }
    void operator=(const NullFieldContainerPtr &) { this->m_object = nullptr; }

    T *operator->() const { return static_cast<T *>(this->accessed()); }
    T &operator*() const { return *static_cast<T *>(this->accessed()); }
    /// The object, NULL for null.
    T *getCPtr() const { return static_cast<T *>(this->m_object); }

    /// The pointer as a pointer to T; null when it is null or the object is no T.
    template <class In>
    static FCPtr dcast(const In in)
    {
        return FCPtr(dynamic_cast<T *>(in.getBaseCPtr()));
    }
};

/// The same as OutPtrT::dcast(in).
template <class OutPtrT, class InPtrT>
OutPtrT dynamic_fcptr_cast(const InPtrT in)
{
    return OutPtrT::dcast(in);
}

std::ostream &operator<<(std::ostream &out, const FieldContainerPtrBase &object);

/// \name Reference counting
/// All accept null. A count at or below 0 after a release destroys the object at once, and the
/// pointer variable handed in becomes null; other copies dangle.
/// @{
void addRefCP(const FieldContainerPtrBase &object);
void subRefCP(const FieldContainerPtrBase &object);
/// Releases \a object and sets it to null.
void clearRefCP(FieldContainerPtrBase &object);
/// Releases the old value of \a target, stores \a value, references it. Nothing when they are
/// equal. When the old value takes \a value with it, the program ends: the pointer would dangle.
void setRefdCP(FieldContainerPtrBase &target, const FieldContainerPtrBase &value);
/// @}

/// \name Edit brackets
/// Fields are written between begin and end. The end appends (id, fields) to the change list,
/// unless that is read-only, and calls the container's changed(). Nothing is merged or compared.
/// All accept null; `fields` defaults to all.
/// @{
inline void beginEditCP(const FieldContainerPtr &, BitVector = FieldBits::AllFields,
                        UInt32 = ChangedOrigin::External)
{
}
void endEditCP(const FieldContainerPtr &object, BitVector fields = FieldBits::AllFields,
               UInt32 origin = ChangedOrigin::External);
/// Only calls changed().
void changedCP(const FieldContainerPtr &object, BitVector fields = FieldBits::AllFields,
               UInt32 origin = ChangedOrigin::External);
/// Only appends to the change list.
void endEditNotChangedCP(const FieldContainerPtr &object, BitVector fields = FieldBits::AllFields,
                         UInt32 origin = ChangedOrigin::External);
/// @}

/// An edit bracket that lasts for one scope.
class CPEditor {
public:
    /// Begins the edit. Null is ignored.
    explicit CPEditor(const FieldContainerPtr &object, BitVector fields = FieldBits::AllFields)
        : m_object(object), m_fields(fields)
    {
        beginEditCP(m_object, m_fields);
    }
    CPEditor(const CPEditor &) = delete;
    void operator=(const CPEditor &) = delete;
    /// Ends it.
    ~CPEditor() { endEditCP(m_object, m_fields); }

private:
    FieldContainerPtr m_object;
    BitVector m_fields;
};

} // namespace osg

/// Opens a bracket to the end of the scope. The variable must be a plain identifier.
#define CPEdit(VARIABLE, FIELDS) osg::CPEditor cpEditor_##VARIABLE(VARIABLE, FIELDS)
#define CPEditAll(VARIABLE) osg::CPEditor cpEditor_##VARIABLE(VARIABLE)
