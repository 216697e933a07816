#include <OpenSG/OSGDrawable.h>

namespace osg {

FieldContainerType Drawable::_type("Drawable", "NodeCore", NULL, NULL);

OSG_ABSTR_FIELD_CONTAINER_DEF(Drawable, DrawablePtr)

} // namespace osg
