#pragma once

#include <OpenSG/OSGAttachmentFields.h>
#include <OpenSG/OSGFieldContainerType.h>
#include <OpenSG/OSGNodeCoreFields.h>
#include <OpenSG/OSGNodeFields.h>

#include <array>
#include <map>
#include <memory>
#include <string>

namespace osg {

/// Knows all container classes by name and all living containers by id.
class FieldContainerFactory {
public:
    /// The only one.
    static FieldContainerFactory *the();

    /// Initialises types that were registered after osgInit(), as a library loaded later brings
    /// them. False when one names a parent that nobody knows.
    bool initializePendingTypes();

    /// Null when there is no such container any more. Ids are never used twice.
    FieldContainerPtr getContainer(UInt32 id) const;
    /// NULL when unknown.
    FieldContainerType *findType(const Char8 *name) const;

    /// A new object of the named class; null when unknown, abstract or of another kind.
    FieldContainerPtr createFieldContainer(const Char8 *typeName) const;
    NodePtr createNode(const Char8 *typeName) const;
    NodeCorePtr createNodeCore(const Char8 *typeName) const;
    AttachmentPtr createAttachment(const Char8 *typeName) const;

private:
    friend class FieldContainer;
    friend class FieldContainerType;
    friend bool osgExit();

    /// Containers by id. A page goes when its last container does.
    struct Page {
        enum { Size = 1024 };
        std::array<FieldContainer *, Size> containers = {};
        UInt32 used = 0;
    };

    FieldContainerFactory();
    FieldContainerFactory(const FieldContainerFactory &) = delete;

    /// Called by types and containers as they come and go. A second type of a name, and a container
    /// before osgInit(), end the program.
    void registerType(FieldContainerType *type);
    void unregisterType(FieldContainerType *type);
    UInt16 registerGroup(const Char8 *name);
    UInt32 registerContainer(FieldContainer *container);
    void unregisterContainer(UInt32 id);
    /// Drops all prototypes, so that nothing is created any more.
    void terminate();

    std::vector<FieldContainerType *> m_types;
    std::map<std::string, FieldContainerType *> m_typesByName;
    std::map<std::string, UInt16> m_groups;
    std::vector<std::unique_ptr<Page>> m_pages;
    UInt32 m_nextId = 1;
    bool m_started = false;
    bool m_terminated = false;
};

} // namespace osg
