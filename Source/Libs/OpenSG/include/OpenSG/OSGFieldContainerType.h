#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>
#include <OpenSG/OSGFieldDescription.h>
#include <OpenSG/OSGTypeBase.h>

#include <vector>

namespace osg {

/// Makes the object that create() of a class copies.
typedef FieldContainerPtr (*PrototypeCreateF)();
typedef void (*InitContainerF)();

/// The run-time description of one container class. A static object: its constructor registers it,
/// osgInit() initialises it. Until then it has no parent, no fields and no prototype.
class FieldContainerType : public DataType {
public:
    /// The parent is named by text. Without group name the type is a group of its own; without
    /// \a createPrototype the class is abstract. \a initMethod runs right here and must not create
    /// containers. The descriptions (\a bytesOfDescs: sizeof the table) belong to the type.
    FieldContainerType(const Char8 *name, const Char8 *parentName, const Char8 *groupName = NULL,
                       PrototypeCreateF createPrototype = NULL, InitContainerF initMethod = NULL,
                       FieldDescription **descs = NULL, UInt32 bytesOfDescs = 0,
                       bool descsAddable = false);
    ~FieldContainerType() override;

    UInt16 getGroupId() const { return m_groupId; }
    /// NULL for FieldContainer, and before osgInit().
    FieldContainerType *getParent() const { return m_parent; }

    /// True also for the type itself. Before osgInit() only then.
    bool isDerivedFrom(const FieldContainerType &other) const
    {
        const FieldContainerType *type = this;
        while (type && type != &other)
            type = type->m_parent;
        return type != nullptr;
    }
    /// What kind of class it is; the last three are false before osgInit().
    bool isAbstract() const { return !m_createPrototype; }
    bool isNode() const;
    bool isNodeCore() const;
    bool isAttachment() const;

    /// The object that create() copies; null when abstract and outside osgInit() and osgExit().
    const FieldContainerPtr &getPrototype() const { return m_prototype; }

    /// Fields of the class and its ancestors; ids start at 1.
    UInt32 getNumFieldDescs() const { return UInt32(m_descs.size()); }
    /// NULL when unknown.
    FieldDescription *getFieldDescription(UInt32 idFrom1) const;
    FieldDescription *findFieldDescription(const Char8 *name) const;

private:
    friend class FieldContainerFactory;

    /// Finds the parent and gathers the fields; false while the parent is unknown.
    bool link();
    void makePrototype();
    void dropPrototype() { clearRefCP(m_prototype); }

    UInt16 m_groupId;
    FieldContainerType *m_parent = nullptr;
    PrototypeCreateF m_createPrototype;
    FieldContainerPtr m_prototype;
    FieldDescription **m_ownDescs;
    UInt32 m_ownDescCount;
    bool m_linked = false;
    std::vector<FieldDescription *> m_descs;
};

} // namespace osg
