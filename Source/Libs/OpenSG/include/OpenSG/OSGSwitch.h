#pragma once

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGInt32Fields.h>
#include <OpenSG/OSGSwitchFields.h>

namespace osg {

/// Shows one of its node's children, all, or none.
class Switch : public Group {
    typedef Group Inherited;

public:
    typedef SwitchPtr Ptr;
    enum { ChoiceFieldId = Inherited::NextFieldId, NextFieldId };

    /// Choices beside the index of a child. Any other value is stored too, and shows nothing.
    enum { ALL = -2, NONE = -1 };

    OSG_FIELD_CONTAINER_DECL(SwitchPtr)

    /// Index of the child that is shown; at first none.
    OSG_SF_INIT(SFInt32, Choice, NONE)

protected:
    Switch() = default;
    Switch(const Switch &) = default;

    OSG_CONTAINER_STATICS
};

/// The name that field masks are known under as well.
typedef Switch SwitchBase;
typedef RefPtr<SwitchPtr> SwitchRefPtr;
typedef CoredNodePtr<Switch> SwitchNodePtr;

OSG_FIELD_CONTAINER_INL_DEF(Switch, SwitchPtr)

} // namespace osg
