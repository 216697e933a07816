#include "Files/qxGltfImages.h"

#include "Files/qxGltfCheck.h"
#include "Files/qxGltfModel.h"
#include "Files/qxGltfUri.h"

#include <OpenSG/OSGSimpleAttachments.h>

#include <QBuffer>
#include <QImage>
#include <QImageReader>

namespace {

/// Larger pictures are most likely made to exhaust the memory.
const int _maxSide = 16384;

QByteArray encoded(const qxGltfModel &model, const qxJson &image)
{
    const qxJson &uri = qxGltfMember(image, "uri");
    if (uri.is_string())
        return qxGltfRead(model.document, uri.get_ref<const std::string &>());
    const qxJson &views = qxGltfSection(model.document.json, "bufferViews");
    qxGltfCheckIndexValue(qxFileText::tr("it"), qxGltfMember(image, "bufferView"), views,
                          "buffer view");
    return model.bytesOfView(image["bufferView"].get<int>());
}

QImage decoded(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    if (reader.format() != "png" && reader.format() != "jpeg")
        throw qxGltfError(qxFileText::tr("it is neither PNG nor JPEG"));
    const QSize size = reader.size();
    if (size.width() > _maxSide || size.height() > _maxSide)
        throw qxGltfError(qxFileText::tr("it is too large"));
    const QImage image = reader.read();
    if (image.isNull())
        throw qxGltfError(reader.errorString());
    return image.mirrored().convertToFormat(QImage::Format_RGBA8888);
}

} // namespace

osg::ImagePtr qxGltfImages::ofTexture(int texture)
{
    if (texture < 0)
        return osg::ImagePtr();
    const int image = m_model.typed.textures[std::size_t(texture)].source;
    if (image < 0)
        return osg::ImagePtr();
    const auto known = m_images.find(image);
    return known != m_images.end() ? known->second.get() : decode(image);
}

osg::ImagePtr qxGltfImages::decode(int index)
{
    osg::RefPtr<osg::ImagePtr> &kept = m_images[index];
    const qxJson &json = m_model.document.json["images"][std::size_t(index)];
    try {
        const QImage picture = decoded(encoded(m_model, json));
        const osg::ImagePtr image = osg::Image::create();
        kept = image;
        const osg::CPEditor edit(image);
        image->set(osg::Image::OSG_RGBA_PF, picture.width(), picture.height(), 1, 1, 1, 0.0,
                   picture.constBits());
    } catch (const qxGltfError &error) {
        m_model.warnings << qxFileText::tr("%1 is left out: %2")
                                .arg(qxGltfCalled("image", index, json), error.reason());
    }
    return kept.get();
}
