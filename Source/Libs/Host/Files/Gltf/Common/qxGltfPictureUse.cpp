#include "Files/Gltf/Common/qxGltfPictureUse.h"

#include "Materials/qxSurface.h"

const qxJson &qxGltfPictureUse(const qxJson &material, std::size_t role)
{
    static const std::vector<qxGltfPlace> places = [] {
        std::vector<qxGltfPlace> all;
        for (const qxSurface::PictureKind &kind : qxSurface::pictureKinds())
            all.emplace_back(kind.place);
        return all;
    }();
    return qxGltfAt(material, places[role]);
}
