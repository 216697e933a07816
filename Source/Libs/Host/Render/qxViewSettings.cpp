#include "Render/qxViewSettings.h"

#include "Files/Gltf/Common/qxGltfFiles.h"
#include "Files/Gltf/Common/qxGltfJson.h"
#include "Files/qxMemoryBudget.h"
#include "Light/qxEnvironmentLight.h"
#include "Light/qxLightPictureReader.h"

#include <new>

qxViewSettings &qxViewSettings::the()
{
    static qxViewSettings settings;
    return settings;
}

std::shared_ptr<const qxEnvironmentLight> qxViewSettings::readEnvironment(const QString &file,
                                                                          QString &error)
{
    try {
        qxMemoryBudget budget(qxMemoryBudget::limit());
        const QByteArray bytes = qxGltfReadFile(file, budget);
        return std::make_shared<const qxEnvironmentLight>(qxReadLightPicture(bytes, budget));
    } catch (const qxGltfError &reason) {
        error = reason.reason();
    } catch (const std::bad_alloc &) {
        error = qxFileText::tr("not enough memory");
    }
    return nullptr;
}

std::shared_ptr<const qxEnvironmentLight> qxViewSettings::studio()
{
    return std::make_shared<const qxEnvironmentLight>(qxEnvironmentLight::studio());
}
