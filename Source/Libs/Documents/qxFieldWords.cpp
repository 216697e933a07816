#include "qxFieldWords.h"

namespace {

const char *const listWords[] = {"viewpoint", "animation", "geometry", "target"};
const char *const inclusionWords[] = {"nodes", "materials", "lights", "environment", "view"};
static_assert(std::size(listWords) == qxNameLists && std::size(inclusionWords) == qxInclusions);

} // namespace

QLatin1String qxFieldWords::of(qxNameList list)
{
    return QLatin1String(listWords[int(list)]);
}

QLatin1String qxFieldWords::of(qxInclusion what)
{
    return QLatin1String(inclusionWords[int(what)]);
}
