#include "Files/Gltf/Common/qxGltfVariants.h"

#include "Files/Gltf/Common/qxGltfExtras.h"

#include <algorithm>

namespace {

/// What holds the variants document.
template <class Json>
Json &holderOf(Json &document, int scene)
{
    return qxGltfSection(document, "scenes").empty()
        ? document
        : document["scenes"][std::size_t(std::max(scene, 0))];
}

} // namespace

int qxGltfShownScene(const qxJson &document)
{
    if (qxGltfSection(document, "scenes").empty())
        return -1;
    return std::max(0, qxGltfIndex(document, "scene"));
}

QByteArray qxGltfVariantsIn(const qxJson &document, int scene)
{
    const qxJson &extras = qxGltfMember(holderOf(document, scene), "extras");
    const qxJson &text = qxGltfMember(extras, qxGltfKeys::variants);
    return text.is_string() ? QByteArray::fromStdString(text.get<std::string>()) : QByteArray();
}

void qxGltfSetVariants(qxJson &document, int scene, const QByteArray &variants)
{
    if (variants == qxGltfVariantsIn(document, scene))
        return;
    qxGltfSetExtra(holderOf(document, scene), qxGltfKeys::variants,
                   variants.isEmpty() ? qxJson() : qxJson(variants.toStdString()));
}
