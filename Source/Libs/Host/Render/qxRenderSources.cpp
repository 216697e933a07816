#include "Render/qxRenderSources.h"

#include "Pictures/qxEncodedPicture.h"
#include "Render/qxTiles.h"

#include <OpenSG/OSGFieldContainerFactory.h>

#include <algorithm>
#include <set>

namespace {

/// The fields of a geometry that its triangles do not depend on.
osg::BitVector unimportantFields()
{
    return osg::Geometry::ParentsFieldMask | osg::Geometry::AttachmentsFieldMask
        | osg::Geometry::MaterialFieldMask | osg::Geometry::DlistCacheFieldMask;
}

} // namespace

void qxRenderSources::update(const osg::FieldContainerPtr &marked)
{
    qxEditReader::Follower follower;
    follower.edited = [&](Id id, osg::BitVector mask) {
        m_isOther = m_isOther || (id != marked.getFieldContainerId() && isShown(id));
        edited(id, mask);
    };
    follower.destroyed = [this](Id id) { forget(id); };
    m_isOther = false;
    if (!m_edits.read(marked, follower)) {
        forgetEverything();
        m_isOther = true;
    }
    readMaterials();
}

/// Images that no material has are pictures themselves, such as that of the view.
bool qxRenderSources::isShown(Id id) const
{
    const osg::FieldContainerPtr edited = osg::FieldContainerFactory::the()->getContainer(id);
    return osg::ImagePtr::dcast(edited) == osg::NullFC
        || std::any_of(m_textures.begin(), m_textures.end(),
                       [id](const Textures &textures) { return textures.count(id) > 0; });
}

void qxRenderSources::edited(Id id, osg::BitVector mask)
{
    for (Textures &textures : m_textures)
        textures.erase(id);
    if (m_geometries.count(id) > 0 && (mask & ~unimportantFields()))
        forgetGeometry(id);
    const auto users = m_coresOf.find(id);
    if (users == m_coresOf.end())
        return;
    const std::vector<Id> cores = std::move(users->second);
    m_coresOf.erase(users);
    for (const Id core : cores)
        forgetGeometry(core);
}

void qxRenderSources::forget(Id id)
{
    for (Textures &textures : m_textures)
        textures.erase(id);
    m_coresOf.erase(id);
    forgetGeometry(id);
}

void qxRenderSources::forgetGeometry(Id core)
{
    const auto known = m_geometries.find(core);
    if (known == m_geometries.end())
        return;
    known->second->setOutdated();
    m_geometries.erase(known);
}

void qxRenderSources::forgetEverything()
{
    for (const auto &known : m_geometries)
        known.second->setOutdated();
    m_geometries.clear();
    m_coresOf.clear();
    for (Textures &textures : m_textures)
        textures.clear();
}

void qxRenderSources::readMaterials()
{
    const qxTextureSource textures = textureSource();
    for (auto entry = m_materials.begin(); entry != m_materials.end();) {
        const auto material =
            osg::MaterialPtr::dcast(osg::FieldContainerFactory::the()->getContainer(entry->first));
        if (material == osg::NullFC || entry->second.use_count() == 1) {
            entry = m_materials.erase(entry);
            continue;
        }
        *entry->second = qxReadMaterial(material, textures);
        ++entry;
    }
}

std::shared_ptr<const qxRenderGeometry> qxRenderSources::geometry(const osg::GeometryPtr &core)
{
    std::shared_ptr<qxRenderGeometry> &known = m_geometries[core.getFieldContainerId()];
    if (!known) {
        known = qxRenderGeometry::make(core);
        rememberProperties(core);
    }
    return known;
}

void qxRenderSources::rememberProperties(const osg::GeometryPtr &core)
{
    const osg::FieldContainerPtr properties[] = {core->getTypes(),     core->getLengths(),
                                                 core->getPositions(), core->getNormals(),
                                                 core->getIndices(),   core->getColors()};
    std::vector<osg::FieldContainerPtr> all(std::begin(properties), std::end(properties));
    for (const osg::GeoTexCoordsPtr &places : qxRenderGeometry::texCoordsOf(core))
        all.push_back(places);
    const Id id = core.getFieldContainerId();
    for (const osg::FieldContainerPtr &property : all) {
        if (property == osg::NullFC)
            continue;
        std::vector<Id> &cores = m_coresOf[property.getFieldContainerId()];
        if (cores.empty() || cores.back() != id)
            cores.push_back(id);
    }
}

std::shared_ptr<const qxRenderMaterial> qxRenderSources::material(const osg::MaterialPtr &material)
{
    if (material == osg::NullFC)
        return m_noMaterial;
    std::shared_ptr<qxRenderMaterial> &known = m_materials[material.getFieldContainerId()];
    if (!known) {
        decodePictures(material);
        known = std::make_shared<qxRenderMaterial>(qxReadMaterial(material, textureSource()));
    }
    return known;
}

/// All that the material is going to ask for, at once in several threads: most of the time until
/// the first picture goes into this.
void qxRenderSources::decodePictures(const osg::MaterialPtr &material)
{
    struct Wanted {
        osg::ImagePtr image;
        qxRenderTexture::Content content;
        QByteArray bytes;
        QString flaw;
        std::shared_ptr<const qxRenderTexture> texture;
    };
    std::vector<Wanted> all;
    std::set<std::pair<Id, int>> asked;
    qxReadMaterial(material, [&](const osg::ImagePtr &image, qxRenderTexture::Content content) {
        const bool isNew = image != osg::NullFC && !image->isValid()
            && m_textures[content].count(image.getFieldContainerId()) == 0
            && asked.emplace(image.getFieldContainerId(), content).second;
        const QByteArray bytes = isNew ? qxEncodedPicture::bytes(image) : QByteArray();
        if (!bytes.isNull())
            all.push_back({image, content, bytes, QString(), nullptr});
        return nullptr;
    });
    const auto decode = [&all](int i) {
        Wanted &one = all[std::size_t(i)];
        one.texture =
            qxRenderTexture::make(qxEncodedPicture::decoded(one.bytes, one.flaw), one.content);
    };
    if (all.empty())
        return;
    qxForAllTiles(int(all.size()), 0, decode, [](int) { return true; });
    for (const Wanted &one : all) {
        m_textures[one.content][one.image.getFieldContainerId()] = one.texture;
        if (!one.flaw.isEmpty())
            qxEncodedPicture::warn(one.image, one.flaw);
    }
}

qxTextureSource qxRenderSources::textureSource()
{
    return [this](const osg::ImagePtr &image, qxRenderTexture::Content content) {
        return texture(image, content);
    };
}

std::shared_ptr<const qxRenderTexture> qxRenderSources::texture(const osg::ImagePtr &image,
                                                                qxRenderTexture::Content content)
{
    if (image == osg::NullFC)
        return nullptr;
    Textures &textures = m_textures[content];
    const auto known = textures.find(image.getFieldContainerId());
    if (known != textures.end())
        return known->second;
    return textures[image.getFieldContainerId()] = qxRenderTexture::make(image, content);
}
