#pragma once

#include <OpenSG/OSGCoredNodePtr.h>
#include <OpenSG/OSGDrawableFields.h>
#include <OpenSG/OSGNodeCore.h>

namespace osg {

/// Base of the cores that can be seen.
class Drawable : public NodeCore {
    typedef NodeCore Inherited;

public:
    typedef DrawablePtr Ptr;

    OSG_ABSTR_FIELD_CONTAINER_DECL(DrawablePtr)

protected:
    Drawable() = default;
    Drawable(const Drawable &) = default;

private:
    friend class FieldContainer;
    static FieldContainerType _type;
};

OSG_ABSTR_FIELD_CONTAINER_INL_DEF(Drawable, DrawablePtr)

} // namespace osg
