#pragma once

#include <OpenSG/OSGFieldContainerFields.h>
#include <OpenSG/OSGFieldContainerMacros.h>
#include <OpenSG/OSGFieldContainerType.h>

namespace osg {

/// Base of everything in a scene: an object with a type, an id, a reference count and fields.
/// A new object has count 0 and lives until a release brings the count to 0 or below.
class FieldContainer {
public:
    enum { NextFieldId = 1 };

    static FieldContainerType &getClassType() { return _type; }
    static UInt32 getClassTypeId() { return _type.getId(); }
    /// Always that of FieldContainer; a class's own is getClassType().getGroupId().
    static UInt16 getClassGroupId() { return _type.getGroupId(); }

    /// The type of the object, and what it says.
    virtual FieldContainerType &getType();
    virtual const FieldContainerType &getType() const;
    UInt32 getTypeId() const { return getType().getId(); }
    UInt16 getGroupId() const { return getType().getGroupId(); }
    const Char8 *getTypeName() const { return getType().getCName(); }

    /// Size of the object in bytes.
    virtual UInt32 getContainerSize() const = 0;

    /// NULL when the class has no such field.
    Field *getField(UInt32 id);
    Field *getField(const Char8 *name);

    /// A copy whose pointer fields show to the same objects, without counting them.
    virtual FieldContainerPtr shallowCopy() const = 0;

    /// Called at the end of each edit. Overrides call their base class.
    virtual void changed(BitVector whichField, UInt32 origin);

    virtual void dump(UInt32 indent = 0, const BitVector flags = 0) const = 0;

protected:
    /// Takes the next id.
    FieldContainer();
    /// A copy has an id and a count of its own.
    FieldContainer(const FieldContainer &other);
    virtual ~FieldContainer();
    void operator=(const FieldContainer &) = delete;

    /// Copying between threads, which does not happen here; kept for classes that declare it.
    virtual void executeSync(FieldContainer &, const BitVector &) {}
    void executeSyncImpl(FieldContainer *, const BitVector &) {}
    void executeSyncImpl(FieldContainer *, const BitVector &, const SyncInfo &) {}

    /// Writes type, id and name line of dump().
    void dumpHeader(UInt32 indent) const;

    /// A copy of the prototype of \a type, null when there is none.
    template <class PtrT>
    static PtrT createFrom(const FieldContainerType &type)
    {
        typedef typename PtrT::ObjectType Object;
        const FieldContainer *prototype = type.getPrototype().getCPtr();
        if (!prototype)
            return PtrT();
        return PtrT(created(new Object(*static_cast<const Object *>(prototype))));
    }
    /// An object made by the default constructor.
    template <class PtrT>
    static PtrT createDefault()
    {
        return PtrT(created(new typename PtrT::ObjectType));
    }
    template <class Object>
    /// A copy made by the copy constructor.
    static FieldContainerPtr copyOf(const Object &original)
    {
        return FieldContainerPtr(created(new Object(original)));
    }

private:
    friend class FieldContainerPtrBase;
    friend void addRefCP(const FieldContainerPtrBase &object);
    friend void subRefCP(const FieldContainerPtrBase &object);

    /// Records that there is a new object.
    template <class Object>
    static Object *created(Object *object)
    {
        recordCreated(*object);
        return object;
    }
    static void recordCreated(const FieldContainer &object);

    /// Unique in the process.
    UInt32 m_id;
    Int32 m_refCount = 0;

    static FieldContainerType _type;
};

} // namespace osg
