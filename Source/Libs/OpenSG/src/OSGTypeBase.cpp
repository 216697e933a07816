#include <OpenSG/OSGTypeBase.h>

namespace osg {

static UInt32 nextTypeId = 1;

TypeBase::TypeBase(const Char8 *name) : m_id(nextTypeId++), m_name(name) {}

} // namespace osg
