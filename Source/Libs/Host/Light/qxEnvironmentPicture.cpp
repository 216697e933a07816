#include "Light/qxEnvironmentPicture.h"

#include "Files/Gltf/Common/qxGltfJson.h"
#include "Files/qxMemoryBudget.h"
#include "Light/OSGEnvironmentPicture.h"
#include "Light/qxLightPictureReader.h"
#include "qxLog.h"
#include "qxText.h"

#include <OpenSG/OSGSwitch.h>

#include <cstring>
#include <new>

namespace {

osg::EnvironmentPicturePtr pictureOf(const osg::NodePtr &node)
{
    if (node == osg::NullFC || node->getTravMask() == 0)
        return osg::EnvironmentPicturePtr();
    return osg::EnvironmentPicturePtr::dcast(
        node->findAttachment(osg::EnvironmentPicture::getClassType()));
}

} // namespace

/// The numbers stand before the bytes of the file.
void qxEnvironmentPicture::attachTo(const osg::NodePtr &node) const
{
    std::string content(2 * sizeof(float), '\0');
    std::memcpy(&content[0], &exposure, sizeof(float));
    std::memcpy(&content[sizeof(float)], &rotation, sizeof(float));
    content.append(bytes.constData(), std::size_t(bytes.size()));
    const osg::EnvironmentPicturePtr attachment = osg::EnvironmentPicture::create();
    {
        const osg::CPEditor edit(attachment);
        attachment->getField().setValue(content);
    }
    const osg::CPEditor edit(node, osg::Node::AttachmentsFieldMask);
    node->addAttachment(attachment);
}

osg::UInt32 qxEnvironmentPicture::shownBy(const osg::NodePtr &environments)
{
    const auto choices = environments == osg::NullFC || environments->getTravMask() == 0
        ? osg::SwitchPtr()
        : osg::SwitchPtr::dcast(environments->getCore());
    if (choices == osg::NullFC)
        return 0;
    const osg::Int32 choice = choices->getChoice();
    for (osg::UInt32 i = 0; i < environments->getNChildren(); ++i) {
        if (choice != osg::Switch::ALL && choice != osg::Int32(i))
            continue;
        const osg::EnvironmentPicturePtr picture = pictureOf(environments->getChild(i));
        if (picture != osg::NullFC)
            return picture.getFieldContainerId();
    }
    return 0;
}

std::optional<qxEnvironmentLight> qxEnvironmentPicture::lightOf(osg::UInt32 attachment)
{
    const auto picture = osg::EnvironmentPicturePtr::dcast(
        osg::FieldContainerFactory::the()->getContainer(attachment));
    const std::string &content = picture->getField().getValue();
    const std::size_t start = 2 * sizeof(float);
    float numbers[2];
    std::memcpy(numbers, content.data(), start);
    try {
        qxMemoryBudget budget(qxMemoryBudget::limit());
        const QByteArray file =
            QByteArray::fromRawData(content.data() + start, int(content.size() - start));
        return qxEnvironmentLight(qxReadLightPicture(file, budget))
            .scaled(std::exp2(numbers[0]))
            .turned(numbers[1]);
    } catch (const qxGltfError &error) {
        const QString said =
            qxFileText::tr("The picture of the environment is left out: %1").arg(error.reason());
        qxLog::warning("%s", qxText::toUtf8(said).c_str());
    }
    return std::nullopt;
}
