#include "Light/qxLightPictureReader.h"

#include "Files/Gltf/Common/qxGltfJson.h"
#include "Files/qxFileText.h"
#include "Light/qxExrReader.h"
#include "Light/qxRadianceReader.h"

namespace {

bool isRadiance(const QByteArray &bytes)
{
    if (!bytes.startsWith("#?") && !bytes.startsWith("\x76\x2f\x31\x01"))
        throw qxGltfError(qxFileText::tr("it is neither a Radiance nor an OpenEXR picture"));
    return bytes[0] == '#';
}

} // namespace

qxLightPicture qxReadLightPicture(const QByteArray &bytes, qxMemoryBudget &budget)
{
    return isRadiance(bytes) ? qxReadRadiance(bytes, budget) : qxReadExr(bytes, budget);
}

QSize qxLightPictureSize(const QByteArray &bytes)
{
    return isRadiance(bytes) ? qxRadianceSize(bytes) : qxExrSize(bytes);
}
