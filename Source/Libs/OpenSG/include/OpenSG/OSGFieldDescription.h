#pragma once

#include <OpenSG/OSGField.h>
#include <OpenSG/OSGIDString.h>

#include <functional>

namespace osg {

class FieldContainer;

/// How to get at a field of a container: made from a getter without arguments that returns a
/// pointer to the field, such as `&Switch::getSFChoice`.
class FieldAccessMethod {
public:
    template <class ContainerT, class FieldT>
    FieldAccessMethod(FieldT *(ContainerT::*getter)())
        : m_get([getter](FieldContainer &owner) -> Field * {
              return (static_cast<ContainerT &>(owner).*getter)();
          })
    {
    }

    /// The field of \a owner, which must be of the class of the getter.
    Field *operator()(FieldContainer &owner) const { return m_get(owner); }

private:
    std::function<Field *(FieldContainer &)> m_get;
};

/// One entry in the field table of a container class.
class FieldDescription {
public:
    /// Internal fields are bookkeeping that clones do not take over.
    FieldDescription(const FieldType &type, const Char8 *name, UInt32 id, BitVector mask,
                     bool internal, const FieldAccessMethod &access)
        : m_type(type), m_name(name), m_id(id), m_mask(mask), m_internal(internal), m_access(access)
    {
    }

    /// What the field holds.
    const FieldType &getFieldType() const { return m_type; }
    /// The field's name as FieldContainer::getField() takes it.
    const IDString &getName() const { return m_name; }
    const Char8 *getCName() const { return m_name.str(); }
    /// The place among the class's fields from 1, and the bit that stands for it.
    UInt32 getFieldId() const { return m_id; }
    BitVector getFieldMask() const { return m_mask; }
    /// Whether clones leave the field out.
    bool isInternal() const { return m_internal; }

    /// The field of \a owner, which must be of the described class.
    Field *getField(FieldContainer &owner) const { return m_access(owner); }

private:
    const FieldType &m_type;
    IDString m_name;
    UInt32 m_id;
    BitVector m_mask;
    bool m_internal;
    FieldAccessMethod m_access;
};

} // namespace osg
