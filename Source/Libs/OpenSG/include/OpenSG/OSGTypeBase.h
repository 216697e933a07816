#pragma once

#include <OpenSG/OSGIDString.h>

namespace osg {

/// A named, numbered type. Two types are equal when their numbers are.
class TypeBase {
public:
    TypeBase(const TypeBase &) = delete;
    virtual ~TypeBase() = default;

    /// Number and name; the name is unique among the types that are loaded.
    UInt32 getId() const { return m_id; }
    const IDString &getName() const { return m_name; }
    const Char8 *getCName() const { return m_name.str(); }

    /// Whether it is the same type.
    bool operator==(const TypeBase &other) const { return m_id == other.m_id; }
    bool operator!=(const TypeBase &other) const { return m_id != other.m_id; }

protected:
    /// Takes the next free number of the process.
    explicit TypeBase(const Char8 *name);

private:
    UInt32 m_id;
    IDString m_name;
};

/// A type that knows the name of its parent type.
class DataType : public TypeBase {
public:
    /// "" without parent.
    const Char8 *getCParentName() const { return m_parentName.str(); }

protected:
    DataType(const Char8 *name, const Char8 *parentName) : TypeBase(name), m_parentName(parentName)
    {
    }

private:
    IDString m_parentName;
};

} // namespace osg
