#include <OpenSG/OSGStateChunk.h>

namespace osg {

FieldContainerType StateChunk::_type("StateChunk", "Attachment", NULL, NULL);

OSG_ABSTR_FIELD_CONTAINER_DEF(StateChunk, StateChunkPtr)

} // namespace osg
