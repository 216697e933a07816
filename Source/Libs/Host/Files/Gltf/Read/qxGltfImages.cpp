#include "Files/Gltf/Read/qxGltfImages.h"

#include "Files/Gltf/Common/qxGltfCheckValues.h"
#include "Files/Gltf/Common/qxGltfUri.h"
#include "Files/Gltf/Read/qxGltfModel.h"
#include "Pictures/qxEncodedPicture.h"

QByteArray qxGltfPictureBytes(qxGltfModel &model, const qxJson &image)
{
    const qxJson &uri = qxGltfMember(image, "uri");
    if (uri.is_string())
        return qxGltfReadUri(model.document, uri.get_ref<const std::string &>(), model.budget);
    const qxJson &views = qxGltfSection(model.document.json, "bufferViews");
    qxGltfCheckIndexValue(qxFileText::tr("it"), qxGltfMember(image, "bufferView"), views,
                          "buffer view");
    const int view = image["bufferView"].get<int>();
    const QByteArray bytes = model.bytesOfView(view);
    model.budget.take(bytes.size(), 1); // the picture keeps a copy
    return bytes;
}

std::string qxGltfPictureKey(const qxJson &image)
{
    const qxJson &uri = qxGltfMember(image, "uri");
    return uri.is_string() ? uri.get<std::string>()
                           : '#' + qxGltfMember(image, "bufferView").dump();
}

std::vector<int> qxGltfTextureSources(const qxJson &texture)
{
    const qxJson &webp = qxGltfMember(qxGltfMember(texture, "extensions"), "EXT_texture_webp");
    std::vector<int> sources;
    for (const int source : {qxGltfIndex(webp, "source"), qxGltfIndex(texture, "source")}) {
        if (source >= 0)
            sources.push_back(source);
    }
    return sources;
}

osg::ImagePtr qxGltfImages::ofTexture(int texture, bool forColours)
{
    const qxJson &json = qxGltfSection(m_model.document.json, "textures")[std::size_t(texture)];
    for (const int source : qxGltfTextureSources(json)) {
        const osg::ImagePtr image = ofImage(source, forColours);
        if (image != osg::NullFC)
            return image;
    }
    return osg::ImagePtr();
}

osg::ImagePtr qxGltfImages::ofImage(int index, bool forColours)
{
    const qxJson &json = m_model.document.json["images"][std::size_t(index)];
    const auto [entry, isNew] = m_images.try_emplace(qxGltfPictureKey(json));
    Known &known = entry->second;
    if (known.isPaid[forColours] || (!isNew && known.image == osg::NullFC))
        return known.image.get();
    const qxMemoryBudget before = m_model.budget;
    try {
        if (isNew)
            read(known, index);
        m_model.budget.take(known.size, 1);
        known.isPaid[forColours] = true;
    } catch (const qxGltfError &error) {
        m_model.budget = before;
        m_model.warnings << qxFileText::tr("%1 is left out: %2")
                                .arg(qxGltfLabel("image", index, json), error.reason());
        if (isNew)
            known.image = osg::NullFC;
        return osg::ImagePtr();
    }
    return known.image.get();
}

void qxGltfImages::read(Known &known, int index)
{
    const qxJson &json = m_model.document.json["images"][std::size_t(index)];
    const qxEncodedPicture picture(qxGltfPictureBytes(m_model, json));
    if (!picture.flaw().isEmpty())
        throw qxGltfError(picture.flaw());
    known.size = picture.decodedSize();
    known.image = picture.image(qxGltfLabel("image", index, json));
}
