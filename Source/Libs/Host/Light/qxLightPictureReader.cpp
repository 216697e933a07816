#include "Light/qxLightPictureReader.h"

#include "Files/Gltf/Common/qxGltfJson.h"
#include "Files/qxFileText.h"
#include "Light/qxExrReader.h"
#include "Light/qxRadianceReader.h"

qxLightPicture qxReadLightPicture(const QByteArray &bytes, qxMemoryBudget &budget)
{
    if (bytes.startsWith("#?"))
        return qxReadRadiance(bytes, budget);
    if (bytes.startsWith("\x76\x2f\x31\x01"))
        return qxReadExr(bytes, budget);
    throw qxGltfError(qxFileText::tr("it is neither a Radiance nor an OpenEXR picture"));
}
